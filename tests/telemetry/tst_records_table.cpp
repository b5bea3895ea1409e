// The window of records, as a host sees it: files in, widgets out; what a person types is typed.

#include "sample_pages.h"
#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "support/scripted_host.h"
#include "support/window_parts.h"
#include "telemetry/files/export_form.h"
#include "telemetry/files/telemetry_file.h"

#include <QtTest>
#include <QtWidgets>

using namespace vlk;

namespace {

const QString kNone(QChar(0x2013));

QString momentOf(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds + localOffset(), Qt::UTC).toString("dd.MM.yyyy HH:mm:ss");
}

QString zone()
{
    return localOffset() == 0
               ? "UTC"
               : QString("UTC%1%2").arg(localOffset() < 0 ? "" : "+").arg(localOffset() / 3600);
}

TelemetryPages drive()
{
    TelemetryPages pages;
    for (int i = 0; i < 40; ++i)
        pages.push_back(recordOf({{"NumPage", quint64(1000 + i)},
                                  {"Code", quint64(i == 7 || i == 30 ? 35 : 2)},
                                  {"Time", quint64(1738400400 + 60 * i)},
                                  {"Power", quint64(12000 + 100 * i)},
                                  {"StateIn1", quint64(i % 2)},
                                  {"Latitude", 33900000},
                                  {"Longitude", quint32(-300001)},
                                  {"Temp1", 128}}));
    return pages;
}

} // namespace

Q_DECLARE_METATYPE(vlk::ExportForm)

class RecordsTableTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c());
        host_.start();
        host_.onSend = [this](Message message, void* p1, void* p2) {
            if (message != Message::RequestEventText)
                return;
            ++eventQuestions_;
            if (const auto code = vlk::asValue(p1); code != 0)
                *static_cast<QString*>(p2) = QStringLiteral("event %1").arg(code);
        };
    }

    void columns()
    {
        show(pagesOf(recordOf({{"NumPage", 1}, {"Code", 3}}),
                     recordOf({{"NumPage", 2},
                               {"Time", 1738411200},
                               {"Power", 12345},
                               {"Temp1", 128},
                               {"User1Byte_1", 251},
                               {"Latitude", 33900000},
                               {"Longitude", quint32(-300001)}}),
                     packetOf(navigationOf(9, 0), kSecondHead.mid(2), cardEntry("card"))));
        // Number and time first; the file's name of a sensor, and the unit, in the head. No record has a
        // value of Temp1.
        const QStringList heads = shownHeads();
        QCOMPARE(heads.mid(0, 3), QStringList({"tmizta_123", "tmizta_125, " + zone(), "tmizta_124"}));
        for (const char* head : {"tmizta_149, abbr_016", "tmizta_158, abbr_011", "tmizta_359"})
            QVERIFY2(heads.contains(head), head);
        QVERIFY(!heads.join(' ').contains("Cabin"));
        QCOMPARE(cells(0, {"NumPage", "Code", "Time", "Power", "Packet"}),
                 QStringList({"1", "event 3", kNone, kNone, kNone}));
        QCOMPARE(
            cells(1, {"NumPage", "Code", "Time", "Power", "Latitude", "Longitude", "User", "T1", "Packet"}),
            QStringList(
                {"2", kNone, momentOf(1738411200), "12.35", "56.500000", "-0.500002", "-5", kNone, kNone}));
        // The host has no words for this event.
        QCOMPARE(cells(2, {"NumPage", "Code", "Packet"}), QStringList({"9", "0", "tmizta_362: card"}));
        const auto tip = [this](int row, const char* column) {
            return cell(row, column).data(Qt::ToolTipRole).toString();
        };
        QCOMPARE(tip(0, "Power"), QString("tmiw_170"));
        QCOMPARE(tip(1, "T1"), QString("tmiw_263"));
        QCOMPARE(tip(1, "Latitude"), QString("56\u00b0 30.0000' tmiw_171"));
        QVERIFY(cell(0, "Power").data(Qt::ForegroundRole).isValid());
        const QSize room = window->screen()->availableSize();
        const int frame = window->frameGeometry().height() - window->height();
        QCOMPARE(firstSize_.height(), qMin(680, room.height() - frame));
        QCOMPARE(window->windowTitle(), QString("telemetry.xml - tmiw_031"));
        QVERIFY(qobject_cast<QGridLayout*>(table_->parentWidget()->layout()));
    }

    // Number and time stay where they are, and a cell that is gone to is not below them.
    void frozenColumns()
    {
        show(drive());
        window->resize(420, 400);
        auto* frozen = child<QTableView>("tableWidget_Frozen");
        QTest::keyClick(table_, Qt::Key_End);
        QVERIFY(table_->horizontalScrollBar()->value() > 0);
        QCOMPARE(frozen->columnAt(5), column("NumPage"));
        QCOMPARE(frozen->verticalScrollBar()->value(), table_->verticalScrollBar()->value());
        for (int step = 0; step < 4; ++step) {
            QTest::keyClick(table_, Qt::Key_Left);
            QVERIFY(table_->visualRect(table_->currentIndex()).left() >= frozen->width());
        }
        QTest::keyClick(table_, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(frozen->verticalScrollBar()->value(), table_->verticalScrollBar()->maximum());
        // Either head sorts, and both say so.
        QTest::mouseClick(frozen->horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 10});
        QTest::mouseClick(frozen->horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 10});
        QCOMPARE(table_->horizontalHeader()->sortIndicatorSection(), column("NumPage"));
        const QString first = cells(0, {"NumPage"}).value(0);
        QVERIFY(first == "1039" || first == "1000");
        window->resize(1024, 680);
    }

    void chosenColumns()
    {
        show(drive());
        QVERIFY(!isShown("T1"));
        QVERIFY(!menuAction("rec_020", "tmizta_123")->isEnabled());
        menuAction("rec_026", "rec_012")->trigger();
        menuAction("rec_023", "rec_011")->trigger();
        QVERIFY(isShown("T1") && !isShown("Power"));
        table_->setCurrentIndex(cell(0, "Latitude"));
        choose("rec_066");
        const QStringList chosen = shownHeads();
        QVERIFY(chosen.indexOf("tmizta_149, abbr_016") < chosen.indexOf("Door (IN1)"));
        // All of it is kept for the next file, whatever its columns are.
        show(pagesOf(recordOf({{"NumPage", 1}, {"Power", 12000}, {"Reserv", 4000}})));
        QVERIFY(!isShown("Power") && isShown("Reserv"));
        show(drive());
        QCOMPARE(shownHeads(), chosen);
        table_->setCurrentIndex(cell(0, "Latitude"));
        choose("rec_065");
        QVERIFY(!isShown("Latitude"));
        menuAction(nullptr, "rec_013")->trigger();
        QVERIFY(isShown("Power") && isShown("Latitude") && !isShown("T1"));
    }

    // A value that only one record of many has is found after a while.
    void rareValue()
    {
        TelemetryPages pages;
        for (int i = 0; i < 3000; ++i)
            pages.push_back(recordOf({{"NumPage", quint64(i)}, {"Temp1", quint64(i == 2001 ? 20 : 128)}}));
        show(pages);
        QTRY_VERIFY(isShown("T1"));
    }

    void sorting_data()
    {
        DataTable<QString, QStringList, QStringList>({"column", "ascending", "descending"})
            .row("numbers by size", "NumPage", {"2", "3", "10", "20"}, {"20", "10", "3", "2"})
            .row("times by time", "Time", {"10", "2", "3", "20"}, {"3", "2", "10", "20"})
            .row("words by alphabet", "O1", {"10", "20", "2", "3"}, {"2", "10", "20", "3"})
            .row("signed, absent last", "User", {"20", "10", "2", "3"}, {"10", "20", "2", "3"})
            .row("no numbers last", "Way", {"20", "2", "10", "3"}, {"2", "20", "10", "3"});
    }
    // Equal values keep the order of the file in both directions.
    void sorting()
    {
        QFETCH(QString, column);
        // 31 January, 1 and 2 February 2025. The way of two records is no number.
        const quint64 noNumber = 0x7fc00000;
        show(pagesOf(recordOf({{"NumPage", 10},
                               {"Time", 1738314000},
                               {"StateOut1", 1},
                               {"Way", noNumber},
                               {"User1Byte_1", 5}}),
                     recordOf({{"NumPage", 2},
                               {"Time", 1738400400},
                               {"StateOut1", 0},
                               {"Way", std::bit_cast<quint32>(7.5F)}}),
                     recordOf({{"NumPage", 3}, {"Time", 1738486800}, {"Way", noNumber}}),
                     recordOf({{"NumPage", 20},
                               {"StateOut1", 1},
                               {"Way", std::bit_cast<quint32>(-1.0F)},
                               {"User1Byte_1", 251}})));
        table_->setCurrentIndex(cell(0, "NumPage"));
        table_->sortByColumn(this->column(column), Qt::AscendingOrder);
        QTEST(numbers(), "ascending");
        table_->sortByColumn(this->column(column), Qt::DescendingOrder);
        QTEST(numbers(), "descending");
        // The selection goes with its record.
        QCOMPARE(table_->currentIndex().row(), numbers().indexOf("10"));
    }

    // Each record has an event of its own, and the host is asked for those on show alone.
    void longTable()
    {
        TelemetryPages pages;
        for (quint64 i = 1; i <= 3000; ++i)
            pages.push_back(recordOf({{"NumPage", i}, {"Code", i}}));
        eventQuestions_ = 0;
        show(pages);
        table_->scrollToBottom();
        table_->grab();
        QVERIFY2(eventQuestions_ > 0 && eventQuestions_ < 250, qPrintable(QString::number(eventQuestions_)));
        QCOMPARE(cells(2999, {"NumPage", "Code"}), QStringList({"3000", "event 3000"}));
    }

    void filter_data()
    {
        DataTable<QString, QStringList, QString>({"typed", "numbers", "told"})
            .row("event by its words", "Code = \"event 35\"", {"1007", "1030"}, {})
            .row("conditions", "NumPage < 1003 and not IN1 = 1", {"1000", "1002"}, {})
            .row("nothing", "Power < 1", {}, {})
            .row("fault", "NumPage < ", {}, "rec_005");
    }
    void filter()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, numbers);
        QFETCH(QString, told);
        show(drive());
        QCOMPARE(text("label_Count"), QString("rec_051"));
        type("lineEdit_Filter", typed);
        pressInFilter(Qt::Key_Return);
        QVERIFY(window->isVisible());
        QTEST(text("label_FilterFault"), "told");
        QCOMPARE(child("label_FilterFault")->isVisible(), !told.isEmpty());
        if (!told.isEmpty()) {
            QCOMPARE(this->numbers().size(), 40);
            return;
        }
        QCOMPARE(this->numbers(), numbers);
        QCOMPARE(text("label_Count"), QString("rec_052"));
        QCOMPARE(table_->findChild<QWidget*>("pushButton_Empty")->isVisible(), numbers.isEmpty());
        // Sorting keeps to them, and Esc gives back what is applied before it closes the window.
        table_->sortByColumn(column("NumPage"), Qt::DescendingOrder);
        QCOMPARE(this->numbers().size(), numbers.size());
        type("lineEdit_Filter", "Pow");
        QVERIFY(popup());
        pressInFilter(Qt::Key_Escape); // what is offered goes first
        pressInFilter(Qt::Key_Escape);
        QCOMPARE(child<QLineEdit>("lineEdit_Filter")->text(), typed);
        QVERIFY(window->isVisible());
        if (numbers.isEmpty()) {
            table_->findChild<QPushButton*>("pushButton_Empty")->click();
        } else {
            table_->setCurrentIndex(cell(0, "NumPage"));
            choose("rec_063");
        }
        QCOMPARE(this->numbers().size(), numbers.isEmpty() ? 40 : 1);
    }

    // The current record, at which a cursor stands, is there again with the filter gone.
    void keptRecord()
    {
        show(drive());
        table_->setCurrentIndex(cell(5, "NumPage"));
        type("lineEdit_Filter", "NumPage < 1003");
        pressInFilter(Qt::Key_Return);
        table_->setFocus();
        QCOMPARE(numbers().size(), 3);
        QVERIFY(!table_->currentIndex().isValid() && !table_->selectionModel()->hasSelection());
        // Esc takes one thing after the other back before it closes the window.
        child<QWidget>("plot_Curves")->setFocus();
        QTest::keyClick(child<QWidget>("plot_Curves"), Qt::Key_B);
        QTest::keyClick(table_, Qt::Key_F, Qt::ControlModifier);
        table_->setFocus();
        for (const int rows : {3, 3, 40}) {
            QVERIFY(window->isVisible());
            QTest::keyClick(table_, Qt::Key_Escape);
            QCOMPARE(numbers().size(), rows);
        }
        QCOMPARE(table_->currentIndex().row(), 5);
        child<QLineEdit>("lineEdit_Filter")->setFocus();
        QTest::keyClick(child<QLineEdit>("lineEdit_Filter"), Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), table_);
        QTest::keyClick(table_, Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    void cutRecord()
    {
        show(drive());
        const QString path = folder_.filePath("telemetry.xml");
        QVERIFY(QFile::resize(path, readFile(path).lastIndexOf("<NumPage>") + 13));
        open(path);
        QTRY_VERIFY(table_->model()->rowCount() == 40);
        const int last = 39;
        QCOMPARE(text("label_Count"), QString("rec_297"));
        QCOMPARE(cell(last, "NumPage").data(Qt::ToolTipRole).toString(), QString("rec_296"));
        QVERIFY(cell(last, "NumPage").data(Qt::FontRole).value<QFont>().italic());
        QVERIFY(!cell(last - 1, "NumPage").data(Qt::FontRole).isValid());
    }

    void completion()
    {
        show(drive());
        auto* line = child<QLineEdit>("lineEdit_Filter");
        type("lineEdit_Filter", "Lati");
        QAbstractItemView* offered = popup();
        QVERIFY(offered);
        QTest::keyClick(offered, Qt::Key_Down);
        QTest::keyClick(offered, Qt::Key_Return);
        QCOMPARE(line->text(), QString("Latitude "));
        QCOMPARE(numbers().size(), 40);
        // Enter takes nothing that was not gone to.
        QTest::keyClicks(line, "> 56,4 and Pow");
        QVERIFY(popup());
        pressInFilter(Qt::Key_Return);
        QCOMPARE(text("label_FilterFault"), QString("rec_005"));
        line->setText("Latitude > 56,4");
        pressInFilter(Qt::Key_Return);
        QCOMPARE(text("label_FilterFault"), QString());
    }

    void finding()
    {
        show(drive());
        QTest::keyClick(table_, Qt::Key_F, Qt::ControlModifier);
        auto* words = child<QLineEdit>("lineEdit_Find");
        QCOMPARE(QApplication::focusWidget(), words);
        QTest::keyClicks(words, "EVENT 35");
        const auto go = [&](Qt::Key key, Qt::KeyboardModifiers with = {}) {
            QTest::keyClick(words, key, with);
            return numbers().value(table_->currentIndex().row()) + ' ' + text("label_Find");
        };
        QCOMPARE(go(Qt::Key_Return), QString("1007 "));
        QCOMPARE(table_->currentIndex().column(), column("Code"));
        QCOMPARE(go(Qt::Key_F3), QString("1030 "));
        QCOMPARE(go(Qt::Key_F3), QString("1007 rec_044"));
        QCOMPARE(go(Qt::Key_F3, Qt::ShiftModifier), QString("1030 rec_047"));
        words->selectAll();
        QTest::keyClicks(words, "14.5");
        QCOMPARE(go(Qt::Key_Return), QString("1025 rec_044"));
        words->selectAll();
        QTest::keyClicks(words, "nowhere");
        QCOMPARE(go(Qt::Key_Return), QString("1025 rev_127"));
        QTest::keyClick(words, Qt::Key_Escape);
        QVERIFY(words->isHidden() || !words->isVisible());
        QVERIFY(window->isVisible());
        QCOMPARE(QApplication::focusWidget(), table_);
    }

    void copying_data()
    {
        DataTable<QLocale, QString, QString>({"locale", "number", "time"})
            .row("English", QLocale(QLocale::English), "12.00", "2025-02-01 ")
            .row("Russian", QLocale(QLocale::Russian), "12,00", "01.02.2025 ");
    }
    void copying()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, number);
        QFETCH(QString, time);
        const QLocale before;
        QLocale::setDefault(locale);
        show(drive());
        QTest::keyClick(table_, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(table_, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(table_, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0].split('\t'), shownHeads());
        const QStringList cells = lines[1].split('\t');
        QCOMPARE(cells[0], QString("1000"));
        QVERIFY2(cells[1].startsWith(time), qPrintable(cells[1]));
        QCOMPARE(cells[shownHeads().indexOf("tmizta_158, abbr_011")], number);
        choose("rec_061");
        QCOMPARE(QApplication::clipboard()->text(), QString("56.500000, -0.500002"));
        choose("rec_062");
        QCOMPARE(QApplication::clipboard()->text(), QString("geo:56.500000,-0.500002"));
        QLocale::setDefault(before);
    }

    void sums()
    {
        show(drive());
        QCOMPARE(text("label_Sums"), QString());
        table_->selectAll();
        table_->selectionModel()->setCurrentIndex(cell(3, "Power"), QItemSelectionModel::NoUpdate);
        QTRY_COMPARE(text("label_Sums"), QString("rec_050"));
        const Texts texts("rec_050", "%1 %2 %3 %4 %5");
        host_.send(Message::LanguageChanged);
        QCOMPARE(text("label_Sums"), QString("tmizta_158, abbr_011 12.00 15.90 13.950 40"));
    }

    void openedRecord()
    {
        show(drive());
        table_->setCurrentIndex(cell(5, "Power"));
        QTest::keyClick(table_, Qt::Key_Return);
        QWidget* browser = ScriptedHost::window("VLK_Widget_Tmi_Page");
        QVERIFY(browser && browser->isVisible());
        const auto number = [&] {
            return ScriptedHost::child<QLabel>(browser, "label_Event_NumPage_Value")->text();
        };
        QCOMPARE(number(), QString("1005"));
        QCOMPARE(ScriptedHost::child<QLabel>(browser, "label_File")->text(), QString("telemetry.xml"));
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, {},
                          table_->visualRect(cell(2, "Code")).center());
        QTest::mouseDClick(table_->viewport(), Qt::LeftButton, {},
                           table_->visualRect(cell(2, "Code")).center());
        QCOMPARE(number(), QString("1002"));
        // What the browser shows stays when the table has another file.
        show(pagesOf(recordOf({{"NumPage", 1}})));
        ScriptedHost::child<QSlider>(browser, "horizontalSlider")->setValue(9);
        QCOMPARE(number(), QString("1009"));
    }

    void exporting_data()
    {
        // the whole, the rows on show, two chosen rows; lines or points in the file, or what is told
        DataTable<int, ExportForm, int, bool, QString>({"what", "form", "count", "isDiskFull", "told"})
            .row("whole, CSV", 2, ExportForm::csv, 41, false, "rec_096")
            .row("on show, TSV", 0, ExportForm::tsv, 6, false, "rec_096")
            .row("chosen, as lines", 1, ExportForm::ndjson, 2, false, "rec_096")
            .row("track", 2, ExportForm::gpx, 40, false, "rec_096")
            .row("full disk", 2, ExportForm::xml, 0, true, "tmiw_187");
    }
    void exporting()
    {
        QFETCH(int, what);
        QFETCH(ExportForm, form);
        QFETCH(int, count);
        QFETCH(bool, isDiskFull);
        show(drive());
        type("lineEdit_Filter", "NumPage < 1005");
        pressInFilter(Qt::Key_Return);
        table_->setFocus();
        table_->setCurrentIndex(cell(1, "NumPage"));
        QTest::keyClick(table_, Qt::Key_Down, Qt::ShiftModifier);
        const QString path = folder_.filePath(QStringLiteral("exported.") + rowOf(form).suffix);
        std::optional<FullDisk> disk;
        ScriptedHost::whenModal([&](QWidget* dialog) {
            ScriptedHost::child<QAbstractButton>(dialog,
                                                 qPrintable(QStringLiteral("radioButton_What%1").arg(what)))
                ->click();
            auto* forms = ScriptedHost::child<QComboBox>(dialog, "comboBox_Form");
            forms->setCurrentIndex(forms->findData(static_cast<int>(form)));
            QCOMPARE(ScriptedHost::child<QWidget>(dialog, "comboBox_Sign")->isEnabled(),
                     rowOf(form).hasDecimalSign);
            ScriptedHost::whenModal([&](QWidget* files) {
                QCOMPARE(qobject_cast<QFileDialog*>(files)->selectedFiles().value(0).section('/', -1),
                         QStringLiteral("telemetry.") + rowOf(form).suffix);
                ScriptedHost::child<QLineEdit>(files, "fileNameEdit")->setText(path);
                if (isDiskFull)
                    disk.emplace(100);
                QMetaObject::invokeMethod(files, "accept");
            });
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        press("pushButton_Export");
        disk.reset();
        QTEST(text("label_Damage"), "told");
        QCOMPARE(QFile::exists(path), !isDiskFull);
        const QByteArray content = readFile(path);
        if (form == ExportForm::ndjson)
            qWarning() << content.left(3000);
        QCOMPARE(form == ExportForm::gpx ? content.count("<trkpt") : content.count('\n'), count);
        QFile::remove(path);
    }

    // A file that takes a while is read from the event loop: it can be cancelled, and neither another file
    // nor a closed window is in its way.
    void slices()
    {
        show(pagesOf(recordOf({{"NumPage", 1}})));
        const QByteArray one = readFile(folder_.filePath("telemetry.xml"));
        const int page = one.indexOf("\t<Page");
        const int end = one.indexOf("</TMI>");
        const int pages = 400'000;
        // What is not spelled as usual is read line by line.
        QByteArray odd = one.mid(page, end - page);
        odd.insert(odd.indexOf("\t\t<"), "\t\t<Other>1</Other>\r\n");
        const QString large = writeFile(folder_.filePath("large.xml"),
                                        one.left(page).replace("count=\"1\"", "count=\"400000\"") +
                                            odd.repeated(pages) + one.mid(end));
        const auto rows = [this] { return table_->model()->rowCount(); };
        const auto* bar = child<QWidget>("progressBar_Work");
        open(large);
        QCOMPARE(rows(), 0);
        QTRY_VERIFY(bar->isVisible());
        QTest::keyClick(table_, Qt::Key_Escape);
        QVERIFY(window->isVisible() && !bar->isVisible());
        QCOMPARE(text("label_Damage"), QString("rec_074"));
        press("label_Damage_Action1");
        QTRY_VERIFY(bar->isVisible());
        open(folder_.filePath("telemetry.xml"));
        QTest::qWait(100);
        QCOMPARE(rows(), 1);
        open(large);
        window->close();
        QTest::qWait(100);
        QCOMPARE(rows(), 0);
        open(large);
        QTRY_COMPARE_WITH_TIMEOUT(rows(), pages, 60'000);
        QCOMPARE(text("label_Damage"), QString());
    }

    // Two pages of which the first has no end: the second is in it, until it is brought back.
    void hiddenRecords()
    {
        show(drive());
        QByteArray content = readFile(folder_.filePath("telemetry.xml"));
        const int end = content.indexOf("\t</Page>");
        content.remove(end, content.indexOf('\n', end) + 1 - end);
        open(writeFile(folder_.filePath("telemetry.xml"), content));
        QVERIFY(text("label_Damage").contains("rec_076"));
        const int before = table_->model()->rowCount();
        press("label_Damage_Action1");
        QCOMPARE(table_->model()->rowCount(), before + 1);
        QCOMPARE(numbers().value(1), QString("1001"));
        QVERIFY(!text("label_Damage").contains("rec_076"));
    }

    void language()
    {
        show(drive());
        {
            const Brackets brackets;
            host_.send(Message::LanguageChanged);
            QVERIFY(shownHeads().value(0).startsWith('<'));
            QCOMPARE(window->windowTitle(), QString("telemetry.xml - <tmiw_031>"));
            QCOMPARE(child<QAbstractButton>("pushButton_Columns")->text(), QString("<rec_006>"));
            QCOMPARE(cells(1, {"IN1"}).value(0).left(1), QString("<"));
        }
        host_.send(Message::LanguageChanged);
        QCOMPARE(window->windowTitle(), QString("telemetry.xml - tmiw_031"));
    }

private:
    // One text for one key.
    class Texts : public QTranslator
    {
    public:
        Texts(const char* key, const char* text) : key_(key), text_(text)
        {
            QCoreApplication::installTranslator(this);
        }
        bool isEmpty() const override { return false; }
        QString translate(const char*, const char* key, const char*, int) const override
        {
            return QString(key == key_ ? text_ : key);
        }

    private:
        QByteArray key_, text_;
    };

    void open(const QString& path)
    {
        const std::int32_t table = 1;
        host_.send(Message::ShowStoredFile, &path, &table);
    }
    void show(const TelemetryPages& pages)
    {
        TelemetryOrigin origin;
        origin.titles.inputs[0] = "Door";
        origin.titles.temperatures[0] = "Cabin";
        origin.titles.userTypes[0] = "s";
        const QString path = folder_.filePath("telemetry.xml");
        QVERIFY(saveTelemetryFile(path, TelemetryForm::xml, storeOf(pages), origin));
        open(path);
        window = ScriptedHost::window("VLK_Widget_Tmi_Table");
        if (firstSize_.isEmpty())
            firstSize_ = window->size();
        table_ = child<QTableView>("tableWidget");
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
        table_->setFocus();
    }
    void type(const char* name, const QString& typed)
    {
        auto* line = child<QLineEdit>(name);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, typed);
    }
    // To whom a key goes.
    void pressInFilter(Qt::Key key) const
    {
        QTest::keyClick(popup() ? static_cast<QWidget*>(popup()) : child<QLineEdit>("lineEdit_Filter"), key);
    }
    static QAbstractItemView* popup()
    {
        return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    }

    // By a part of its head, or of the key of it.
    int column(const QString& name) const
    {
        static const QHash<QString, QString> parts{{"NumPage", "tmizta_123"},
                                                   {"Code", "tmizta_124"},
                                                   {"Time", "tmizta_125,"},
                                                   {"Power", "tmizta_158"},
                                                   {"Reserv", "tmizta_159"},
                                                   {"Latitude", "tmizta_149"},
                                                   {"Longitude", "tmizta_150"},
                                                   {"Way", "tmizta_155"},
                                                   {"O1", "O1"},
                                                   {"IN1", "Door (IN1)"},
                                                   {"T1", QString::fromUtf8("Cabin (Т1)")},
                                                   {"User", "tmizta_355"},
                                                   {"Packet", "tmizta_359"}};
        const QAbstractItemModel* model = table_->model();
        for (int column = 0; column < model->columnCount(); ++column) {
            if (model->headerData(column, Qt::Horizontal).toString().startsWith(parts.value(name)))
                return column;
        }
        return -1;
    }
    QModelIndex cell(int row, const QString& name) const { return table_->model()->index(row, column(name)); }
    QStringList cells(int row, const QStringList& names) const
    {
        QStringList texts;
        for (const QString& name : names)
            texts << cell(row, name).data().toString();
        return texts;
    }
    QStringList numbers() const
    {
        QStringList texts;
        for (int row = 0; row < table_->model()->rowCount(); ++row)
            texts << cell(row, "NumPage").data().toString();
        return texts;
    }
    bool isShown(const char* name) const
    {
        return column(name) >= 0 && !table_->isColumnHidden(column(name));
    }
    QStringList shownHeads() const
    {
        QStringList heads;
        const QHeaderView* header = table_->horizontalHeader();
        for (int place = 0; place < header->count(); ++place) {
            const int column = header->logicalIndex(place);
            if (!header->isSectionHidden(column))
                heads << table_->model()->headerData(column, Qt::Horizontal).toString();
        }
        return heads;
    }

    static QAction* actionIn(QMenu* menu, const QString& text)
    {
        for (QAction* action : menu->actions()) {
            if (action->text().startsWith(text))
                return action;
        }
        qFatal("no %s in the menu", qPrintable(text));
    }
    // In the menu of columns, or in that of a group.
    QAction* menuAction(const char* group, const char* text) const
    {
        QMenu* menu = child<QPushButton>("pushButton_Columns")->menu();
        Q_EMIT menu->aboutToShow();
        return actionIn(group ? actionIn(menu, group)->menu() : menu, text);
    }
    // In the menu of the current cell.
    void choose(const char* text) const
    {
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            menu->setActiveAction(actionIn(menu, text));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, {});
        QApplication::sendEvent(table_, &asked);
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
    QTableView* table_ = nullptr;
    int eventQuestions_ = 0;
    QSize firstSize_;
};

QTEST_MAIN(RecordsTableTest)
#include "tst_records_table.moc"
