// What the window of records does with them: finding, opening, exporting, and files that take a while.

#include "records_window.h"
#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "telemetry/files/export_form.h"

using namespace vlk;

Q_DECLARE_METATYPE(vlk::ExportForm)

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

    // A file that is opened in the window that is there begins as in a new one.
    void openedAgain()
    {
        show(drive());
        const QString path = folder_.filePath("telemetry.xml");
        table_->setFocus();
        open(path);
        QCOMPARE(QApplication::focusWidget(), child<QLineEdit>("lineEdit_Filter"));
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
            .row("whole, CSV", 2, ExportForm::Csv, "a.csv", 41, false, "rec_096")
            .row("on show, TSV", 0, ExportForm::Tsv, "a.tsv", 6, false, "rec_096")
            .row("chosen, as lines", 1, ExportForm::Ndjson, "a", 2, false, "rec_096")
            .row("track", 2, ExportForm::Gpx, "a.gpx", 40, false, "rec_096")
            .row("another form's ending", 2, ExportForm::Csv, "a.GPX", 40, false, "rec_096. rec_470")
            .row("an ending of none", 2, ExportForm::Csv, "a.txt", 41, false, "rec_096. rec_510")
            .row("a date in the name", 2, ExportForm::Gpx, "Рейс 22.11.2026", 40, false, "rec_096")
            .row("full disk", 2, ExportForm::Xml, "a.xml", 0, true, "tmiw_275");
    }
    void exporting()
    {
        QFETCH(int, what);
        QFETCH(ExportForm, form);
        QFETCH(QString, typed);
        QFETCH(int, count);
        QFETCH(bool, isDiskFull);
        // The text that a file cannot be written has two lines, the file and why, and the button a letter.
        const TextsAs reason([](const QString& key) {
            return key == "rec_007" ? "&Export" : key == "tmiw_187" ? "%1\n%2" : QString();
        });
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
        QCOMPARE(content.startsWith("\xEF\xBB\xBFtmizta_123"),
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
        exportTo(ExportForm::Gpx, folder_.filePath("office/a.gpx"));
        QString begins;
        exportTo(ExportForm::Gpx, folder_.filePath("b.gpx"), &begins);
        QCOMPARE(begins, folder_.filePath("office"));
        QCOMPARE(text("label_Damage"), QString("rec_096"));
        // What a track has no place for is told.
        TelemetryPages pages = drive();
        pages.push_back(recordOf({{"NumPage", 1040}, {"Time", 1738402800}}));
        show(pages);
        exportTo(ExportForm::Gpx, folder_.filePath("c.gpx"));
        QCOMPARE(text("label_Damage"), QString("rec_096. rec_651"));
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
        exportTo(ExportForm::Xml, folder_.filePath("late.xml"));
        QTRY_VERIFY(bar->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!bar->isVisible(), 60'000);
        QTest::keyClick(table_, Qt::Key_Escape);
        QVERIFY(window->isVisible());

        // An export does not go on unseen.
        const QString out = folder_.filePath("all.xml");
        exportTo(ExportForm::Xml, out);
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
        // The next key closes no notice.
        QCOMPARE(window->focusWidget(), table_);
        QCOMPARE(numbers().value(1), QString("1001"));
        QCOMPARE(text("label_Damage"), QString("tmiw_188 rec_380"));
        // Curves, track and fuel tell there too.
        QCOMPARE(window->findChildren<QWidget*>("noticeBar").size(), 1);
    }

    // Of elements that share a line the first one is read, until they are taken apart: by whom is asked, or
    // where there would hardly be a record.
    void sharedLines()
    {
        show(drive());
        const QString path = folder_.filePath("telemetry.xml");
        const QByteArray whole = readFile(path);
        const int first = whole.indexOf("\t<Page ");
        QByteArray content = whole;
        content.remove(content.indexOf("\r\n", first), 2);
        open(writeFile(path, content));
        QCOMPARE(text("label_Damage"), QString("tmiw_188 rec_660 tmiw_192 rec_743"));
        QCOMPARE(table_->model()->rowCount(), 40);
        child<QPushButton>("label_Damage_Action1")->click();
        QCOMPARE(text("label_Damage"), QString("tmiw_188 rec_742"));
        open(writeFile(path, whole.left(first) + whole.mid(first).replace("\r\n", "")));
        QCOMPARE(text("label_Damage"), QString("tmiw_188 rec_742"));
        QCOMPARE(numbers().size(), 40);
        QCOMPARE(numbers().value(39), QString("1039"));
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
        exportTo(ExportForm::Csv, csv);
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
            return std::pair(*places, static_cast<double>(sizes.front()) / (sizes.front() + sizes.back()));
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
    // Takes the choice that the window offers first.
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
