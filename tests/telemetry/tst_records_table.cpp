// The table of records: its columns, their order and texts, and what is copied out of it.

#include "records_window.h"
#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"

using namespace vlk;

Q_DECLARE_METATYPE(std::function<void()>)

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

} // namespace

class RecordsTableTest : public QObject, private RecordsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { start(); }

    void columns()
    {
        show(pagesOf(recordOf({{"NumPage", 1}, {"Code", 3}}),
                     recordOf({{"NumPage", 2},
                               {"Time", 1738411200},
                               {"Power", 12345},
                               {"Temp1", 128},
                               {"User1Byte_1", 251},
                               {"Latitude", 33900000},
                               {"Longitude", static_cast<quint32>(-300001)}}),
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
        // What is copied then is where the user went.
        QVERIFY(table_->selectionModel()->isSelected(table_->currentIndex()));
        QCOMPARE(frozen->verticalScrollBar()->value(), table_->verticalScrollBar()->maximum());
        // Either head sorts, and both say so.
        QTest::mouseClick(frozen->horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 10});
        QTest::mouseClick(frozen->horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 10});
        QCOMPARE(table_->horizontalHeader()->sortIndicatorSection(), column("NumPage"));
        const QString first = cells(0, {"NumPage"}).value(0);
        QVERIFY(first == "1039" || first == "1000");
        window->resize(1024, 680);
    }

    // Number and time stand beside the values of their record, whatever comes before the filter's end.
    void panesInStep_data()
    {
        using Act = std::function<void()>;
        const auto chosen = [this](const char* item) {
            return Act([this, item] {
                table_->setCurrentIndex(cell(table_->currentIndex().row(), "Latitude"));
                choose(item);
            });
        };
        DataTable<Act>({"change"})
            .row("none", [] {})
            .row("column moved", chosen("rec_067"))
            .row("column hidden", chosen("rec_065"))
            .row("column narrower", [this] { table_->setColumnWidth(column("Latitude"), 40); })
            .row("window smaller", [this] { window->resize(600, 420); });
    }
    void panesInStep()
    {
        QFETCH(std::function<void()>, change);
        TelemetryPages pages;
        for (int i = 0; i < 3000; ++i)
            pages.push_back(recordOf({{"NumPage", static_cast<quint64>(i)},
                                      {"Time", static_cast<quint64>(1738400400 + 60 * i)},
                                      {"Power", 12000},
                                      {"Latitude", 33900000}}));
        show(pages);
        auto* frozen = child<QTableView>("tableWidget_Frozen");
        const auto areInStep = [&] {
            QCoreApplication::processEvents();
            const int bottom = table_->viewport()->height() - 1;
            return frozen->rowAt(1) >= 0 && frozen->rowAt(1) == table_->rowAt(1) &&
                   frozen->rowAt(bottom) == table_->rowAt(bottom) &&
                   table_->currentIndex().row() >= table_->rowAt(1) &&
                   table_->currentIndex().row() <= table_->rowAt(bottom);
        };
        table_->setCurrentIndex(cell(2000, "Latitude"));
        QVERIFY(areInStep());
        choose("rec_425");
        QCOMPARE(table_->model()->rowCount(), 61);
        QVERIFY(areInStep());
        change();
        QVERIFY(areInStep());
        QTest::keyClick(table_, Qt::Key_Escape);
        QCOMPARE(table_->model()->rowCount(), 3000);
        QVERIFY(areInStep());
        QTest::keyClick(table_, Qt::Key_PageUp);
        QVERIFY(areInStep());
        window->resize(1024, 680);
        menuAction(nullptr, "rec_013")->trigger();
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
        QVERIFY(!isShown("Latitude") && !table_->isColumnHidden(table_->currentIndex().column()));
        menuAction(nullptr, "rec_013")->trigger();
        QVERIFY(isShown("Power") && isShown("Latitude") && !isShown("T1"));
    }

    // A value that only one record of many has is found after a while.
    void rareValue()
    {
        TelemetryPages pages;
        for (int i = 0; i < 3000; ++i)
            pages.push_back(recordOf({{"NumPage", static_cast<quint64>(i)},
                                      {"Temp1", static_cast<quint64>(i == 2001 ? 20 : 128)}}));
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
        const TextsAs texts([](const QString& key) { return key == "rec_050" ? "%1 %2 %3 %4 %5" : key; });
        host_.send(Message::LanguageChanged);
        QCOMPARE(text("label_Sums"), QString("tmizta_158, abbr_011 12.00 15.90 13.950 40"));
        // The summary is made of the same rows, and of none behind another filter.
        QTest::keyClick(table_, Qt::Key_PageDown, Qt::ControlModifier);
        auto* views = child<QTabWidget>("tabWidget_Views");
        QCOMPARE(views->currentWidget(), child<QWidget>("widget_Summary"));
        QVERIFY(views->hasFocus() || views->tabBar()->hasFocus());
        child<QComboBox>("comboBox_SummaryOver")->setCurrentIndex(2);
        const auto* summary = child<QTableView>("tableView_Summary")->model();
        QCOMPARE(summary->index(15, 1).data().toString(), QString("40"));
        QTest::keyClick(table_, Qt::Key_Down);
        QTRY_COMPARE(summary->rowCount(), 0);
        table_->selectAll();
        QTRY_COMPARE(summary->rowCount(), 18);
        type("lineEdit_Filter", "Code = 35");
        pressInFilter(Qt::Key_Return);
        QTRY_COMPARE(summary->rowCount(), 0);
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
};

QTEST_MAIN(RecordsTableTest)
#include "tst_records_table.moc"
