// What the window of records does with them: filtering, finding, opening, exporting, and files that take a
// while.

#include "records_window.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "telemetry/files/export_form.h"

using namespace vlk;

Q_DECLARE_METATYPE(vlk::ExportForm)

// Of the text that a file cannot be written: the file, and in a line of its own why. The button has a letter.
class ReasonApart : public QTranslator
{
public:
    ReasonApart() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override
    {
        if (qstrcmp(key, "rec_007") == 0)
            return QStringLiteral("&Export");
        return qstrcmp(key, "tmiw_187") == 0 ? QStringLiteral("%1\n%2") : QString();
    }
};

class RecordsWindowTest : public QObject, private RecordsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { start(); }

    // By the next start too, whatever file it is.
    void keepsWhichCurvesAreShown()
    {
        const vlk::Paths paths{{}, folder_.path(), {}, {}};
        host_.send(Message::SetPaths, &paths);
        QVERIFY(QDir(folder_.path()).mkdir(".settings"));
        const QString kept =
            writeFile(folder_.filePath(".settings/curves.ini"),
                      "[presets]\n1\\items=Power\n1\\name=Mine\nsize=1\n[chosen]\nname=Mine\n");
        show(drive());
        auto* presets = child<QComboBox>("comboBox_CurvePreset");
        QCOMPARE(presets->currentText(), QString("Mine"));
        QTest::keyClick(presets, Qt::Key_Home);
        QTest::keyClick(presets, Qt::Key_Down);
        QCOMPARE(presets->currentText(), QString("rec_161"));
        show(drive());
        QCOMPARE(presets->currentText(), QString("rec_161"));
        QVERIFY(readFile(kept).contains("name=rec_161"));
    }

    void filter_data()
    {
        DataTable<QString, QStringList, QString>({"typed", "numbers", "told"})
            .row("event by its words", "Code = \"event 35\"", {"1007", "1030"}, {})
            .row("event that the file lacks", "Code = \"event 41\"", {}, {})
            .row("event that there is not", "Code = \"events 41\"", {}, "rec_005")
            .row("conditions", "NumPage < 1003 and not IN1 = 1", {"1000", "1002"}, {})
            .row("nothing", "Power < 1", {}, {})
            .row("column that the file lacks", "Power > 1 or GSM > 1", {}, "rec_512")
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
        const auto* frozen = child<QTableView>("tableWidget_Frozen");
        QTRY_COMPARE(frozen->height() > frozen->horizontalHeader()->height(), !numbers.isEmpty());
        // Of one that cannot be read nothing is shown: what is on show is told with the fault.
        type("lineEdit_Filter", "Power > fast");
        pressInFilter(Qt::Key_Return);
        QCOMPARE(text("label_FilterFault"), QString("rec_005 rec_511"));
        QCOMPARE(text("label_Count"), QString("rec_052"));
        type("lineEdit_Filter", typed);
        pressInFilter(Qt::Key_Return);
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
        // The button in the field empties it for good.
        type("lineEdit_Filter", "NumPage < 1003");
        pressInFilter(Qt::Key_Return);
        QCOMPARE(this->numbers().size(), 3);
        for (auto* button : child<QLineEdit>("lineEdit_Filter")->findChildren<QToolButton*>())
            if (button->defaultAction()->objectName() == "_q_qlineeditclearaction")
                button->click();
        QTRY_COMPARE(this->numbers().size(), 40);
    }

    // Of any column; of all of them an hour around the record.
    void filterByCell_data()
    {
        DataTable<QString, QString, int>({"column", "choice", "count"})
            .row("a number", "Power", "rec_063", 1)
            .row("a time", "Time", "rec_063", 1)
            .row("an event", "Code", "rec_063", 2)
            .row("a state", "IN1", "rec_063", 20)
            .row("a place", "Longitude", "rec_063", 40)
            .row("an hour", "Power", "rec_425", 38);
    }
    void filterByCell()
    {
        QFETCH(QString, column);
        QFETCH(QString, choice);
        show(drive());
        table_->setCurrentIndex(cell(7, column));
        choose(qPrintable(choice));
        QCOMPARE(text("label_FilterFault"), QString());
        QTEST(numbers().size(), "count");
        QVERIFY(numbers().contains("1007"));
    }

    // F6 goes from what was asked to what was found.
    void areas()
    {
        show(drive());
        child<QLineEdit>("lineEdit_Filter")->setFocus();
        QTest::keyClick(window, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), table_);
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(window, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), child<QWidget>("plot_Curves"));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(window, Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), child<QLineEdit>("lineEdit_Filter"));
    }

    // F1 tells of the part of the window that has the keyboard.
    void helpOfEachPart()
    {
        show(drive());
        const auto page = [this] {
            host_.sent.clear();
            QTest::keyClick(window->focusWidget(), Qt::Key_F1);
            return host_.takeSent(Message::ShowHelp).value(0).text2;
        };
        QCOMPARE(page(), QString("r-7106records.html"));
        const auto* views = child<QTabWidget>("tabWidget_Views");
        for (int view = 0; view < views->count(); ++view) {
            QTest::keyClick(window->focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
            const bool isTrack = views->tabText(views->currentIndex()) == QLatin1String("rec_199");
            QCOMPARE(page(), QString(isTrack ? "r-7106records.html" : "r-7106fuelList.html"));
        }
        child<QTableView>("tableView_Fuel")->setFocus();
        QCOMPARE(page(), QString("r-7106fuelList.html"));
    }

    // The latest one first, for all files, in words of the language of the moment.
    void latestFilters()
    {
        show(drive());
        auto* line = child<QLineEdit>("lineEdit_Filter");
        for (const char* typed : {"NumPage < 1003", "Door (IN1) = 1", "Power > ", "NumPage < 1003"}) {
            type("lineEdit_Filter", typed);
            pressInFilter(Qt::Key_Return);
        }
        show(drive());
        QCOMPARE(line->text(), QString());
        line->setFocus();
        QTest::keyClick(line, Qt::Key_Down);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(line->text(), QString("Door (IN1) = \"tmizta_033\""));
        QCOMPARE(numbers().size(), 20);
    }

    // A file that is opened in the window that is there begins as in a new one.
    void openedAgain()
    {
        show(drive());
        const QString path = folder_.filePath("telemetry.xml");
        table_->setFocus();
        open(path);
        QCOMPARE(QApplication::focusWidget(), child<QLineEdit>("lineEdit_Filter"));
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

    // What passes is in sight where it is, else the first of what does.
    void placeInFiltered()
    {
        show(drive());
        table_->setCurrentIndex(cell(39, "NumPage"));
        const auto isInSight = [this](int row) {
            const QRect place = table_->visualRect(cell(row, "NumPage"));
            return place.top() >= 0 && place.bottom() <= table_->viewport()->height();
        };
        const std::pair<const char*, int> filters[] = {
            {"NumPage > 1004", 34}, {"NumPage < 1035", 0}, {"NumPage < 1002", 0}, {"", 39}};
        for (const auto& [filter, row] : filters) {
            type("lineEdit_Filter", filter);
            pressInFilter(Qt::Key_Return);
            QCoreApplication::processEvents();
            QVERIFY2(isInSight(row), filter);
        }
    }

    void completion()
    {
        show(drive());
        auto* line = child<QLineEdit>("lineEdit_Filter");
        // Before all others what the file has, as it stands in the heads.
        type("lineEdit_Filter", "x");
        pressInFilter(Qt::Key_Backspace);
        QVERIFY(popup());
        const char* const heads[] = {"tmizta_123", "tmizta_124", "tmizta_125"};
        for (int row = 0; row < 3; ++row)
            QCOMPARE(popup()->model()->index(row, 0).data().toString(), QString(heads[row]));
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
            // A busy machine needs more than one slice.
            const QDeadlineTimer end(10'000);
            while (text("label_Find") == "rec_046" && !end.hasExpired())
                QTest::qWait(1);
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
        // Both go on together.
        QTest::keyClick(ScriptedHost::child<QSlider>(browser, "horizontalSlider"), Qt::Key_Right);
        QCOMPARE(number(), QString("1003"));
        QCOMPARE(table_->currentIndex().row(), 3);
        QTest::keyClick(table_, Qt::Key_Down);
        QCOMPARE(number(), QString("1004"));
        // What the browser shows stays when the table has another file.
        show(pagesOf(recordOf({{"NumPage", 1}})));
        ScriptedHost::child<QSlider>(browser, "horizontalSlider")->setValue(9);
        QCOMPARE(number(), QString("1009"));
    }

    void exporting_data()
    {
        // the whole, the rows on show, two chosen rows; lines or points in the file, or what is told
        using Row = DataTable<int, ExportForm, QString, int, bool, QString>;
        Row({"what", "form", "typed", "count", "isDiskFull", "told"})
            .row("whole, CSV", 2, ExportForm::csv, "a.csv", 41, false, "rec_096")
            .row("on show, TSV", 0, ExportForm::tsv, "a.tsv", 6, false, "rec_096")
            .row("chosen, as lines", 1, ExportForm::ndjson, "a", 2, false, "rec_096")
            .row("track", 2, ExportForm::gpx, "a.gpx", 40, false, "rec_096")
            .row("another form's ending", 2, ExportForm::csv, "a.GPX", 40, false, "rec_096. rec_470")
            .row("an ending of none", 2, ExportForm::csv, "a.txt", 41, false, "rec_096. rec_510")
            .row("a date in the name", 2, ExportForm::gpx, "Рейс 22.11.2026", 40, false, "rec_096")
            .row("full disk", 2, ExportForm::xml, "a.xml", 0, true, "tmiw_275");
    }
    void exporting()
    {
        QFETCH(int, what);
        QFETCH(ExportForm, form);
        QFETCH(QString, typed);
        QFETCH(int, count);
        QFETCH(bool, isDiskFull);
        const ReasonApart reason;
        show(drive());
        type("lineEdit_Filter", "NumPage < 1005");
        pressInFilter(Qt::Key_Return);
        table_->setFocus();
        table_->setCurrentIndex(cell(1, "NumPage"));
        QTest::keyClick(table_, Qt::Key_Down, Qt::ShiftModifier);
        std::optional<FullDisk> disk;
        ScriptedHost::whenModal([&](QWidget* dialog) {
            ScriptedHost::child<QAbstractButton>(dialog,
                                                 qPrintable(QStringLiteral("radioButton_What%1").arg(what)))
                ->click();
            auto* forms = ScriptedHost::child<QComboBox>(dialog, "comboBox_Form");
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
            QCOMPARE(dialog->focusWidget(), forms);
            forms->setCurrentIndex(forms->findData(static_cast<int>(form)));
            QCOMPARE(ScriptedHost::child<QWidget>(dialog, "comboBox_Sign")->isEnabled(),
                     rowOf(form).hasDecimalSign);
            ScriptedHost::whenModal([&](QWidget* files) {
                QCOMPARE(files->objectName(), QString("fileDialog_Told"));
                QCOMPARE(qobject_cast<QFileDialog*>(files)->selectedFiles().value(0).section('/', -1),
                         QStringLiteral("telemetry.") + rowOf(form).suffix);
                typeName(files, folder_.filePath(typed));
                if (isDiskFull)
                    disk.emplace(5000);
                QMetaObject::invokeMethod(files, "accept");
            });
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QCoreApplication::processEvents();
        const QPoint place = table_->mapTo(window, QPoint());
        press("pushButton_Export");
        disk.reset();
        QTEST(text("label_Damage").section('\n', -1), "told");
        QTRY_VERIFY(child("label_Damage")->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(table_->mapTo(window, QPoint()), place); // what is told moves nothing
        const bool hasEnding = QRegularExpression("\\.[A-Za-z]+$").match(typed).hasMatch();
        const QString path = folder_.filePath(hasEnding ? typed : typed + '.' + rowOf(form).suffix);
        QCOMPARE(QFile::exists(path), !isDiskFull);
        const QByteArray content = readFile(path);
        // By which spreadsheets know the encoding of headings.
        QCOMPARE(content.startsWith("\xEF\xBB\xBFNumPage"),
                 rowOf(form).hasDecimalSign && !path.endsWith("GPX"));
        const auto* again = window->findChild<QAbstractButton*>("label_Damage_Action1");
        QCOMPARE(again ? again->text() : QString(), isDiskFull ? "Export" : "");
        const bool isTrack = path.endsWith(".gpx", Qt::CaseInsensitive);
        QCOMPARE(isTrack ? content.count("<trkpt") : content.count('\n'), count);
        QFile::remove(path);
    }

    // The next one goes where the latest went.
    void exportFolder()
    {
        show(drive());
        QVERIFY(QDir(folder_.path()).mkpath("office"));
        exportTo(ExportForm::gpx, folder_.filePath("office/a.gpx"));
        QString begins;
        exportTo(ExportForm::gpx, folder_.filePath("b.gpx"), &begins);
        QCOMPARE(begins, folder_.filePath("office"));
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
        const auto told = [this](const char* table) {
            return child<QTableView>(table)->findChild<QLabel*>("label_Empty")->text();
        };
        QCOMPARE(told("tableWidget"), QString("rec_371"));
        QCOMPARE(told("tableView_Fuel"), QString("rec_371"));
        auto* sensors = child<QToolButton>("toolButton_FuelTanks")->menu();
        Q_EMIT sensors->aboutToShow();
        QCOMPARE(sensors->actions().last()->text(), QString("rec_371"));
        QTest::keyClick(table_, Qt::Key_Escape);
        QCOMPARE(told("tableView_Fuel"), QString("rec_258"));
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

        // Esc that comes late for what took a while closes nothing.
        exportTo(ExportForm::xml, folder_.filePath("late.xml"));
        QTRY_VERIFY(bar->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!bar->isVisible(), 60'000);
        QTest::keyClick(table_, Qt::Key_Escape);
        QVERIFY(window->isVisible());

        // An export does not go on unseen.
        const QString out = folder_.filePath("all.xml");
        exportTo(ExportForm::xml, out);
        for (const bool ends : {false, true}) {
            QTRY_VERIFY(bar->isVisible());
            ScriptedHost::whenModal([ends](QWidget* box) {
                QCOMPARE(box->objectName(), QString("messageBox_EndExport"));
                if (ends)
                    QTest::keyClick(box, Qt::Key_Tab);
                QTest::keyClick(box->focusWidget(), Qt::Key_Space);
            });
            window->close();
            QCOMPARE(window->isVisible(), !ends);
        }
        QTest::qWait(100);
        QVERIFY(!QFile::exists(out));
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
        // By keys alone, to the bar and on.
        child<QLineEdit>("lineEdit_Filter")->setFocus();
        QTest::keyClick(window, Qt::Key_F6);
        const QPointer<QWidget> button = QApplication::focusWidget();
        QTest::keyClick(window, Qt::Key_F6);
        QCOMPARE(QApplication::focusWidget(), table_);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
        QCOMPARE(table_->model()->rowCount(), before + 1);
        QCOMPARE(numbers().value(1), QString("1001"));
        QCOMPARE(text("label_Damage"), QString("tmiw_188 rec_380"));
        // Curves, track and fuel tell there too.
        QCOMPARE(window->findChildren<QWidget*>("noticeBar").size(), 1);
    }

    // A damaged record is grey and counted apart; no filter finds it, no copy and no export holds its
    // numbers.
    void damagedRecord()
    {
        show(drive());
        const QString path = folder_.filePath("telemetry.xml");
        QByteArray content = readFile(path);
        const int power = content.indexOf("<Power>", content.indexOf("<NumPage>1001<")) + 7;
        content[power] = 'x';
        open(writeFile(path, content));
        QCOMPARE(text("label_Count"), QString("rec_297"));
        QCOMPARE(cell(1, "Power").data(Qt::ToolTipRole).toString(), QString("rec_460"));
        QVERIFY(!cell(0, "Power").data(Qt::FontRole).isValid() &&
                cell(1, "Power").data(Qt::FontRole).isValid());
        table_->setFocus();
        table_->setCurrentIndex(cell(1, "NumPage"));
        QTest::keyClick(table_, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().split('\n').value(1).trimmed().isEmpty());
        const QString csv = folder_.filePath("damaged.csv");
        exportTo(ExportForm::csv, csv);
        QVERIFY2(text("label_Damage").endsWith("rec_461"), qPrintable(text("label_Damage")));
        QCOMPARE(readFile(csv).count('\n'), 40); // the head and 39 records
        for (const char* typed : {"NumPage < 1003", "not NumPage > 1002"}) {
            type("lineEdit_Filter", typed);
            pressInFilter(Qt::Key_Return);
            QCOMPARE(numbers(), QStringList({"1000", "1002"}));
        }
    }

    // Of a time that cannot be right a line tells, and leads to it.
    void strayedTime()
    {
        show(drive());
        const QString path = folder_.filePath("telemetry.xml");
        QByteArray content = readFile(path);
        content[content.indexOf("<Time>", content.indexOf("<NumPage>1003<")) + 6] = '3';
        open(writeFile(path, content));
        QCOMPARE(text("label_Damage"), QString("rec_601"));
        ScriptedHost::child<QAbstractButton>(window, "label_Damage_Action1")->click();
        QCOMPARE(table_->currentIndex().row(), 3);
    }

    // The division between curves and table is the user's, whatever size the window takes, and is written
    // down.
    void keepsHowTheWindowIsDivided_data()
    {
        DataTable<Qt::Orientation, QString>({"orientation", "name"})
            .row("curves above the table", Qt::Vertical, "curves")
            .row("table beside the views", Qt::Horizontal, "table");
    }
    void keepsHowTheWindowIsDivided()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(QString, name);
        const auto share = [&] {
            const QList<QSplitter*> splitters = window->findChildren<QSplitter*>();
            const auto places = std::ranges::find_if(splitters, [&](const QSplitter* splitter) {
                return splitter->orientation() == orientation && splitter->isAncestorOf(table_);
            });
            const QList<int> sizes = (*places)->sizes();
            return std::pair(*places, double(sizes.front()) / (sizes.front() + sizes.back()));
        };
        const auto open = [&] {
            show(drive());
            window->resize(1700, 700); // texts that are keys want room
            QCoreApplication::processEvents();
        };
        open();
        const auto [places, before] = share();
        QWidget* const handle = places->handle(1);
        const QPoint grip = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, grip);
        const QPoint to = grip + (orientation == Qt::Vertical ? QPoint(0, -60) : QPoint(60, 0));
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(handle, &move);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
        const double chosen = share().second;
        QVERIFY2(qAbs(chosen - before) > 0.03, qPrintable(QString::number(chosen)));
        window->resize(window->size() + QSize(200, 200));
        QCoreApplication::processEvents();
        QVERIFY(qAbs(share().second - chosen) < 0.02);
        const QSettings file(folder_.filePath(".settings/records-places.ini"), QSettings::IniFormat);
        QVERIFY(qAbs(file.value(name).toDouble() - chosen) < 0.02);
        window->close();
        open();
        QVERIFY(qAbs(share().second - chosen) < 0.02);
    }

private:
    // In place of a proposed one that is there already, which is selected and would be taken.
    static void typeName(QWidget* files, const QString& path)
    {
        qobject_cast<QFileDialog*>(files)->selectFile(path);
        ScriptedHost::child<QLineEdit>(files, "fileNameEdit")->setText(path);
    }
    // Of what the window offers first.
    void exportTo(ExportForm form, const QString& path, QString* begins = nullptr)
    {
        ScriptedHost::whenModal([&](QWidget* dialog) {
            auto* forms = ScriptedHost::child<QComboBox>(dialog, "comboBox_Form");
            forms->setCurrentIndex(forms->findData(static_cast<int>(form)));
            ScriptedHost::whenModal([&](QWidget* files) {
                if (begins)
                    *begins = qobject_cast<QFileDialog*>(files)->directory().path();
                typeName(files, path);
                QMetaObject::invokeMethod(files, "accept");
            });
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        press("pushButton_Export");
    }
};

QTEST_MAIN(RecordsWindowTest)
#include "tst_records_window.moc"
