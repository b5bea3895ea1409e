#include "opened_workbench.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "support/files.h"
#include "window/folders_dialog.h"
#include "window/recent_files.h"
#include "window/write_report_view.h"

#include <QtTest>
#include <QtWidgets>

#include <thread>

namespace {

Q_LOGGING_CATEGORY(typing, "vlk.settings.typing")

struct Bench : OpenedWorkbench
{
    // The plug-in writes whatever it is given.
    bool start()
    {
        workbench::WriteRoad* road = &window.session().road();
        QObject::connect(
            road, &workbench::WriteRoad::reviewReady, &window,
            [this] {
                if (auto* button = window.findChild<QAbstractButton*>(QStringLiteral("pushButton_Write"))) {
                    QTRY_VERIFY(button->isEnabled());
                    button->click();
                }
            },
            Qt::QueuedConnection);
        return OpenedWorkbench::start(VLK_ECHO_PLUGIN);
    }
};

QStringList textsOf(const QWidget& window)
{
    QStringList texts{window.windowTitle()};
    for (const QObject* object : window.findChildren<QObject*>())
        for (const char* property :
             {"text", "title", "toolTip", "placeholderText", "accessibleName", "currentText"})
            texts.append(object->property(property).toString());
    texts.removeAll(QString());
    return texts;
}

// Closes the message box that is up after an act, or comes up within it, and gives its text.
QString messageDuring(const std::function<void()>& act)
{
    QString text;
    const auto close = [&text] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    };
    QTimer inside;
    QObject::connect(&inside, &QTimer::timeout, close);
    inside.start(0);
    act();
    QCoreApplication::processEvents();
    close();
    return text;
}

// Takes the next file dialog that comes up and gives it the name, or cancels it.
void chooseNext(const QString& path)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->deleteLater();
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    timer->start(5);
}

const QByteArray kTelemetry = "<TMI model=\"R-7106\" >\n<Page type=\"176\" ver=\"30\" format=\"1\">\n"
                              "<NumPage>1</NumPage>\n</Page>\n</TMI>\n";

// The letters behind "&" of what is on show.
QStringList mnemonics(const QWidget& window)
{
    QStringList letters;
    static const QRegularExpression letter(QStringLiteral("&([^&\\s])"));
    const auto take = [&letters](const QString& text) {
        const auto found = letter.match(text);
        if (found.hasMatch())
            letters.append(found.captured(1).toLower());
    };
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        if (const auto* bar = qobject_cast<const QTabBar*>(widget))
            for (int i = 0; i < bar->count(); ++i)
                take(bar->tabText(i));
        else if (qobject_cast<const QMenuBar*>(widget))
            for (const QAction* action : widget->actions())
                take(action->text());
        else if (!qobject_cast<const QToolButton*>(widget))
            for (const char* property : {"text", "title"})
                take(widget->property(property).toString());
    }
    return letters;
}

} // namespace

class WorkbenchWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksBothLanguages()
    {
        Bench bench;
        QVERIFY(bench.start());
        const QStringList english = textsOf(bench.window);
        bench.window.setLanguage(QStringLiteral("ru"));
        QCoreApplication::processEvents();
        const QStringList russian = textsOf(bench.window);
        for (const QStringList& texts : {english, russian})
            QCOMPARE(texts.filter(QStringLiteral("wb_")), QStringList());
        // After the switch no text of Latin letters alone is left but those that are the same in both.
        static const QRegularExpression cyrillic(QStringLiteral("[а-яА-Я]"));
        QStringList foreign = english.filter(cyrillic);
        foreign.removeDuplicates();
        QCOMPARE(foreign, QStringList(QStringLiteral("Русский")));
        QVERIFY(russian.filter(cyrillic).size() > 50);
        QCOMPARE(bench.settings.language(), QStringLiteral("ru"));
    }

    void followsTheTracker()
    {
        Bench bench;
        QVERIFY(bench.start());
        QVERIFY(bench.action("action_Read")->isEnabled());
        QCOMPARE(bench.text("label_DeviceModel"), QStringLiteral("R-7106"));
        bench.action("action_Cable")->trigger();
        QVERIFY(!bench.window.session().tracker().attached());
        QVERIFY(!bench.action("action_Read")->isEnabled());
        QVERIFY(!bench.action("action_Telemetry")->isEnabled());
        QVERIFY(bench.action("action_Open")->isEnabled());
        QCOMPARE(bench.text("label_DeviceModel"), QStringLiteral("–"));
        bench.window.findChild<QAbstractButton*>(QStringLiteral("pushButton_Cable"))->click();
        QVERIFY(bench.action("action_Cable")->isChecked());
    }

    void standsWithoutAPlugin()
    {
        Bench bench;
        bench.window.show();
        QVERIFY(!bench.window.start(QStringLiteral("/no/plugin.so")));
        for (const char* name :
             {"action_Read", "action_Open", "action_New", "action_Telemetry", "action_Browse"})
            QVERIFY(!bench.action(name)->isEnabled());
        bench.window.setMode(2);
        bench.window.setLanguage(QStringLiteral("ru"));
        bench.window.close();
    }

    void showsWhatTheTrackerTook()
    {
        Bench bench;
        QVERIFY(bench.start());
        QByteArray content = bench.window.session().tracker().readConfiguration().document;
        content.replace("port=\"4000\"", "port=\"4001\"");
        const QString edited = writeFile(bench.root.filePath(QStringLiteral("edited.xml")), content);

        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(edited)});
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        // Without a drag under way the application would not deliver it.
        static_cast<QObject&>(bench.window).event(&drop);
        QTRY_VERIFY2(bench.text("label_Report").contains(QStringLiteral("Written and confirmed: ")),
                     qPrintable(bench.text("label_Report")));
        QCOMPARE(bench.settings.recentFiles().value(0).path, edited);

        QFile::remove(edited);
        QVERIFY(messageDuring([&] { bench.window.openFile(edited); }).contains(edited));
        QVERIFY(bench.settings.recentFiles().isEmpty());
    }

    // A preset is applied to what the user chooses, and is not opened itself.
    void asksWhatAPresetIsFor_data()
    {
        DataTable<QString, QString, QString>({"verb", "chosen", "passed"})
            .row("tracker", "Read from tracker", "", "2101 tracker.xml, 7106008 6")
            .row("new one", "New configuration", "", "2101 , 7106008 6")
            .row("file", "Open a file…", "whole.xml", "2101 whole.xml, 7106008 6")
            .row("another preset", "Open a file…", "preset.xml", "")
            .row("nothing", "Cancel", "", "");
    }
    void asksWhatAPresetIsFor()
    {
        QFETCH(QString, verb);
        QFETCH(QString, chosen);
        QFETCH(QString, passed);
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        OpenedWorkbench bench;
        QVERIFY(bench.start(VLK_PLUGIN));
        workbench::PluginLink& link = bench.window.session().link();
        QStringList told;
        connect(&link, &workbench::PluginLink::passed, this, [&](vlk::Direction, quint32 id, const void* p1) {
            if (id == 2101)
                told << "2101 " + QFileInfo(static_cast<const vlk::OpenRequest*>(p1)->path).fileName();
            else if (id == 7106008)
                told << QStringLiteral("7106008 %1")
                            .arg(static_cast<const vlk::PresetApplication*>(p1)->outcome);
        });
        const QString preset =
            writeFile(bench.root.filePath(QStringLiteral("preset.xml")),
                      "<DEVICE creator=\"preset\"><TRACK><POINTS angle=\"9\"/></TRACK></DEVICE>");
        writeFile(bench.root.filePath(QStringLiteral("whole.xml")), "<DEVICE/>");
        QTimer press;
        connect(&press, &QTimer::timeout, this, [&] {
            const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || box->objectName() != QStringLiteral("messageBox_Preset"))
                return;
            press.stop();
            if (!chosen.isEmpty())
                chooseNext(bench.root.filePath(chosen));
            for (QAbstractButton* button : box->buttons()) {
                if (button->text().remove(QLatin1Char('&')) == verb)
                    QTest::keyClick(button, Qt::Key_Space);
            }
        });
        press.start(5);
        bench.window.openFile(preset);
        QCOMPARE(told.join(QStringLiteral(", ")), passed);
        QCOMPARE(bench.settings.recentFiles().value(0).path, passed.isEmpty() ? QString() : preset);
        QCOMPARE(bench.text("label_Status").contains(QStringLiteral("is a preset too")),
                 chosen == "preset.xml");
        messageDuring([] {});
        link.send(vlk::Message::CloseWindows);
    }

    // A recent file opens in the window that it was last shown in.
    void reopensWhereItWasShown()
    {
        Bench bench;
        const QString path = writeFile(bench.root.filePath(QStringLiteral("period.xml")), kTelemetry);
        QVERIFY(bench.start());
        QVector<int> windows;
        connect(&bench.window.session().link(), &workbench::PluginLink::passed, this,
                [&](vlk::Direction, quint32 id, const void*, const void* p2) {
                    if (id == quint32(vlk::Message::ShowStoredFile))
                        windows.append(*static_cast<const std::int32_t*>(p2));
                });
        auto* list = bench.window.findChild<QListWidget*>(QStringLiteral("listWidget_Recent"));
        for (const workbench::TelemetryWindow window :
             {workbench::TelemetryWindow::Browser, workbench::TelemetryWindow::Table}) {
            bench.window.openFile(path, window);
            Q_EMIT list->itemActivated(list->item(0));
        }
        // The menu makes its entries anew while one of them is under way.
        bench.window.findChild<workbench::RecentFiles*>()->menu()->actions().constFirst()->trigger();
        QCOMPARE(windows, QVector<int>({0, 0, 1, 1, 1}));
        QCOMPARE(list->count(), 1);
    }

    void remembersTheModeAndTheWindow()
    {
        Bench bench;
        QVERIFY(bench.start());
        bench.window.setMode(1);
        auto* choice = bench.window.findChild<QComboBox*>(QStringLiteral("comboBox_Window"));
        choice->setCurrentIndex(1);
        Q_EMIT choice->activated(1);
        QCOMPARE(bench.settings.mode(), 1);
        QVERIFY(!bench.settings.fullWindow());
    }

    // A file that cannot be shown opens nothing, is told with its reason and stays out of the recent files.
    void namesABadFile_data()
    {
        DataTable<QByteArray, QStringList>({"content", "said"})
            .row("cut configuration", "<DEVICE>\n<TRANS page=", {"cut short after 21", "line 2, column 12"})
            .row("damaged configuration", "<DEVICE>\n<A></B>\n", {"damaged", "line 2, column 7"})
            .row("another model", "<DEVICE model=\"X\"/>", {"another model: X"})
            .row("another document", "<html/>", {"line 1", "<html>"})
            .row("no document", "\x89PNG", {"no configuration", "line 1"})
            .row("empty", "", {"holds nothing"})
            .row("no record", "<TMI>\n</TMI>\n", {"no record"})
            .row("half a record", kTelemetry.left(60), {"within its first record, after 60"});
    }
    void namesABadFile()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, said);
        int opened = 0;
        Bench bench;
        QVERIFY(bench.start());
        connect(&bench.window.session().link(), &workbench::PluginLink::passed, this,
                [&opened](vlk::Direction, quint32 id) { opened += id == 2101 || id == 2103; });
        const QString path = writeFile(bench.root.filePath(QStringLiteral("bad.xml")), content);
        const QString text = messageDuring([&] { bench.window.openFile(path); });
        for (const QString& part : said + QStringList(path))
            QVERIFY2(text.contains(part), qPrintable(text));
        QCOMPARE(bench.text("label_Status"), text);
        QCOMPARE(opened, 0);
        QVERIFY(bench.settings.recentFiles().isEmpty());
        // The line clears with its cause.
        bench.window.openFile(writeFile(path, kTelemetry));
        QCOMPARE(bench.text("label_Status"), QStringLiteral("Ready"));
        QCOMPARE(opened, 1);
    }

    void browsesTelemetryAlone()
    {
        Bench bench;
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(bench.start());
        for (const auto& [content, said] : {std::pair("<DEVICE/>", "it is a configuration"),
                                            {"<FUEL/>", "There is a calibration table in"},
                                            {"nonsense", "neither a configuration nor a telemetry file"}}) {
            const QString path = writeFile(bench.root.filePath(QStringLiteral("chosen.xml")), content);
            chooseNext(path);
            const QString text = messageDuring([&] { bench.action("action_Browse")->trigger(); });
            QVERIFY2(text.contains(QLatin1String(said)) && text.contains(path), qPrintable(text));
        }
        QVERIFY(bench.settings.recentFiles().isEmpty());
    }

    // Nothing is written of a file that could not be saved, and the reason is told.
    void tellsOfAFailedSave()
    {
        Bench bench;
        QVERIFY(bench.start());
        QVERIFY(QDir(bench.folder.path()).mkpath(QStringLiteral("vlk_echo.xml")));
        bench.action("action_Read")->trigger();
        QTRY_VERIFY(bench.text("label_Report").contains(QLatin1String("nothing was sent")));
        QVERIFY(bench.text("label_Report").contains(QLatin1String("/vlk_echo.xml: ")));
        QVERIFY(bench.text("label_Status").contains(QLatin1String("not written")));
        // As the plug-in tells the log.
        const QLoggingCategory category("vlk.save");
        // Room on the disk is spoken of where it is the disk.
        const std::pair<const char*, const char*> failures[] = {
            {"No space left on device", "there is no room on the disk. Make room on the disk"},
            {"Permission denied", "you have no right to do this. Choose another folder"},
            {"Something else", "Something else. Choose another folder"}};
        for (const auto& [reason, told] : failures) {
            const QString text =
                messageDuring([&, cause = reason] { qCWarning(category, "/a/period.csv: %s", cause); });
            QVERIFY2(text.contains(QLatin1String("/a/period.csv was not saved: ") + QLatin1String(told)),
                     qPrintable(text));
        }
        QVERIFY(bench.settings.recentFiles().isEmpty());
    }

    // What the plug-in finds out about a file comes together, in the language in use.
    void tellsOfFiles()
    {
        Bench bench;
        QVERIFY(bench.start());
        const QLoggingCategory missing("vlk.files.missing");
        const QString text = messageDuring([&] {
            for (int i = 0; i < 7; ++i)
                qCWarning(missing, "/a/%d.tmi: there is no such file", i);
        });
        QVERIFY2(text.startsWith(QLatin1String("There is nothing to show: there is no file /a/0.tmi.\n")),
                 qPrintable(text));
        QVERIFY(text.endsWith(QLatin1String("Further findings: 2. The message log has all of them.")));
        QCOMPARE(bench.text("label_Status"), QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
        bench.window.setLanguage(QStringLiteral("ru"));
        QCoreApplication::processEvents();
        QVERIFY(
            bench.text("label_Status").startsWith(QStringLiteral("Показать нечего: файла /a/0.tmi нет.")));
    }

    // The plug-in's file dialog and what comes of it, at once or later.
    void tellsOfASavedFile_data()
    {
        const QByteArray configuration = "<DEVICE model=\"R-7106\"/>";
        DataTable<QByteArray, bool, QString, QString>({"content", "modal", "said", "typed"})
            .row("configuration", configuration, true, "Saved: ", "")
            .row("configuration with another number than was typed", configuration, true,
                 "Saved: ", "Speed: 300 is beyond 1 to 180, 180 was written")
            .row("period, later", kTelemetry, false, "Saved: ", "")
            .row("nothing on the disk", "", true, "was not saved", "");
    }
    void tellsOfASavedFile()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, modal);
        QFETCH(QString, said);
        QFETCH(QString, typed);
        Bench bench;
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(bench.start());
        QDialog window;
        window.setModal(modal);
        window.show();
        const QString name = bench.root.filePath(QStringLiteral("name"));
        chooseNext(name);
        const QString filter = QStringLiteral("Files (*.xml)");
        QCOMPARE(QFileDialog::getSaveFileName(&window, {}, bench.root.path(), filter), name);
        if (!modal)
            QTest::qWait(50);
        const QString saved = name + QStringLiteral(".xml");
        const QString box = messageDuring([&] {
            if (!typed.isEmpty())
                qCWarning(typing).noquote() << typed;
            if (!content.isEmpty())
                writeFile(saved, content);
        });
        QTRY_VERIFY(bench.text("label_Status").contains(said));
        QVERIFY(bench.text("label_Status").contains(typed));
        QVERIFY2(box.contains(typed), qPrintable(box));
        const bool isGood = !content.isEmpty() && typed.isEmpty();
        QCOMPARE(box.isEmpty(), isGood);
        const auto* notice = window.findChild<QLabel*>(QStringLiteral("label_WindowNotice"));
        QCOMPARE(notice ? notice->text() : QString(), isGood ? bench.text("label_Status") : QString());
        QCOMPARE(bench.settings.recentFiles().value(0).path, content.isEmpty() ? QString() : saved);
    }

    // What the plug-in took instead of a typed number is told with the file that holds it, and not before.
    void tellsOfOtherNumbersThanTyped()
    {
        Bench bench;
        QVERIFY(bench.start());
        workbench::HostSession& session = bench.window.session();
        const auto* log = bench.window.findChild<QTableView*>(QStringLiteral("tableView_Log"))->model();
        const auto logged = [log] {
            return log->match(log->index(0, workbench::MessageLogModel::Name), Qt::DisplayRole,
                              QStringLiteral("vlk.settings.typing"), -1, Qt::MatchExactly);
        };
        session.tracker().setFaults({.silence = true});
        // Whoever listens to the log too still hears of it.
        QTest::ignoreMessage(QtWarningMsg, "Speed: 300 is beyond 1 to 180, 180 was written");
        bench.window.openFile(writeFile(bench.root.filePath(QStringLiteral("typed.xml")),
                                        "<DEVICE model=\"R-7106\"><TYPED/></DEVICE>"));
        QTRY_VERIFY_WITH_TIMEOUT(bench.text("label_Report").contains(QLatin1String("not written")), 15'000);
        QVERIFY(!bench.text("label_Report").contains(QLatin1String("Speed")));
        QCOMPARE(logged().size(), 1);
        // The same field once more and another one; other kinds of message are of no concern, other threads
        // are.
        std::thread([] {
            qCWarning(typing, "Speed: 200 is beyond 1 to 180, 180 was written");
            qCInfo(typing, "Angle: looked at");
            qCWarning(typing, "Angle: 2,5 is no whole number, 2 was written");
        }).join();
        QTRY_COMPARE(logged().size(), 3);
        session.tracker().setFaults({});
        QString path = QStringLiteral("vlk_echo.xml");
        const auto write = [&] {
            Q_EMIT session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
        };
        write();
        const QString told = QStringLiteral("look at again:\nSpeed: 200 is beyond 1 to 180, 180 was written"
                                            "\nAngle: 2,5 is no whole number, 2 was written");
        QTRY_VERIFY2(bench.text("label_Report").contains(told), qPrintable(bench.text("label_Report")));
        QVERIFY(bench.text("label_Status").contains(QLatin1String("Angle: 2,5")));
        // Once.
        writeFile(path, "<DEVICE model=\"R-7106\"/>");
        write();
        QTRY_VERIFY(!bench.text("label_Report").contains(QLatin1String("Speed")));
    }

    // A change of language would start the lists of an open configuration anew.
    void offersNoLanguageBesideAConfiguration()
    {
        Bench bench;
        QVERIFY(bench.start());
        QDialog configuration;
        configuration.setModal(true);
        for (const auto& [code, why] : {std::pair("en", "The language can be changed when the configuration"),
                                        {"ru", "Язык можно сменить, когда конфигурация"}}) {
            bench.window.setLanguage(QLatin1String(code));
            bench.window.session().newConfiguration(true);
            configuration.show();
            for (const char* name : {"action_Language_ru", "action_Language_en"}) {
                QVERIFY(!bench.action(name)->isEnabled());
                QVERIFY(bench.action(name)->toolTip().startsWith(QString::fromUtf8(why)));
                QVERIFY(bench.action(name)->statusTip().startsWith(QString::fromUtf8(why)));
            }
            configuration.close();
            QVERIFY(bench.action("action_Language_ru")->isEnabled());
            QVERIFY(bench.action("action_Language_ru")->statusTip().isEmpty());
        }
        QTest::mouseClick(bench.window.findChild<QToolButton*>("toolButton_Language_en"), Qt::LeftButton);
        QCOMPARE(bench.settings.language(), QStringLiteral("en"));
    }

    void appearanceIsChosen()
    {
        const QPalette before = QApplication::palette();
        Bench bench;
        QVERIFY(bench.start());
        const auto contrast = [&] {
            const QPalette& palette = bench.window.palette();
            return qGray(palette.color(QPalette::WindowText).rgb()) -
                   qGray(palette.color(QPalette::Window).rgb());
        };
        bench.action("action_Appearance_2")->trigger();
        QVERIFY(contrast() > 150);
        QCOMPARE(workbench::Settings(bench.folder.settingsFile()).appearance(), workbench::Appearance::Dark);
        bench.action("action_Appearance_1")->trigger();
        QVERIFY(contrast() < -150);
        bench.action("action_Appearance_0")->trigger();
        QCOMPARE(QApplication::palette(), before);
    }

    void mnemonicsAreUnique()
    {
        Bench bench;
        QVERIFY(bench.start());
        auto* tabs = bench.window.findChild<QTabWidget*>(QStringLiteral("tabWidget_Main"));
        for (const QString& language : workbench::Languages::codes()) {
            bench.window.setLanguage(language);
            for (int tab = 0; tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                QCoreApplication::processEvents();
                QStringList letters = mnemonics(bench.window);
                QVERIFY2(letters.size() >= (tab == 2 ? 18 : 9), qPrintable(letters.join(QLatin1Char(' '))));
                const QStringList all = letters;
                QVERIFY2(letters.removeDuplicates() == 0, qPrintable(all.join(QLatin1Char(' '))));
            }
        }
    }

    // Cancel over a table with rows that are not saved means that nothing closes.
    void closesNotOverACalibration()
    {
        Bench bench;
        QVERIFY(bench.OpenedWorkbench::start(VLK_PLUGIN));
        bench.action("action_Telemetry")->trigger();
        const auto find = [](const char* name) {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->isVisible() && window->inherits(name))
                    return window;
            return static_cast<QWidget*>(nullptr);
        };
        find("VLK_Widget_Tmi_View")
            ->findChild<QPushButton*>(QStringLiteral("pushButton_FuelSensor"))
            ->click();
        QWidget* const calibration = find("VLK_Form_TMI_Fuel_Sensors");
        auto* sensor = calibration->findChild<QWidget*>(QStringLiteral("A3"));
        auto* volume = sensor->findChild<QLineEdit*>(QStringLiteral("lineEdit_Volume"));
        const auto* value = sensor->findChild<QLineEdit*>(QStringLiteral("lineEdit_Param"));
        QTRY_VERIFY(!value->text().isEmpty());
        // A reading that failed is asked for again.
        tracker::SimulatedTracker& tracker = bench.window.session().tracker();
        tracker.setFaults({.silence = true});
        QTRY_VERIFY_WITH_TIMEOUT(value->text().isEmpty(), 6000);
        tracker.setFaults({});
        QTRY_VERIFY_WITH_TIMEOUT(!value->text().isEmpty(), 6000);
        QTest::keyClicks(volume, "10");
        QTest::keyClick(volume, Qt::Key_Return);
        const QString asked = messageDuring([&bench] { bench.window.close(); });
        QVERIFY2(asked.contains("not saved"), qPrintable(asked));
        QVERIFY(bench.window.isVisible() && calibration->isVisible() && find("VLK_Widget_Tmi_View"));
        answerBox(QStringLiteral("Yes"));
        bench.window.close();
        QVERIFY(!bench.window.isVisible() && !calibration->isVisible() && !find("VLK_Widget_Tmi_View"));
    }

    // A place that was kept on a larger screen.
    // A window that stays would keep the program without one to work in.
    void takesAllWindowsAlong()
    {
        Bench bench;
        QWidget other;
        other.show();
        QVERIFY(bench.window.close());
        QVERIFY(other.isHidden());
    }

    void comesUpOnTheScreen_data()
    {
        DataTable<QRect>({"kept"})
            .row("right of it", QRect(1000, 60, 780, 500))
            .row("below it", QRect(20, 900, 780, 500))
            .row("partly", QRect(400, 500, 780, 500))
            .row("above it", QRect(-40, -90, 780, 500))
            .row("larger", QRect(100, 100, 1100, 1000));
    }
    void comesUpOnTheScreen()
    {
        QFETCH(QRect, kept);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QByteArray layout;
        QDataStream stream(&layout, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        stream << quint32(0x1D9D0CB) << quint16(3) << quint16(0) << kept << kept << qint32(0) << quint8(0)
               << quint8(0) << qint32(screen.width() + 100) << kept;
        OpenedWorkbench bench;
        bench.settings.setLayout(bench.window.objectName(), layout);
        workbench::WorkbenchWindow window(bench.folder, bench.settings, bench.languages);
        window.show();
        QCOMPARE(window.frameGeometry().intersected(screen), window.frameGeometry());
    }

    // Whatever the size of the letters, the windows fit the screen and scroll; at the size of the
    // configuration window nothing needs more room.
    void fitsTheScreen()
    {
        Bench bench;
        QVERIFY(bench.start());
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const auto fits = [&screen](const QSize& size) { return size.boundedTo(screen) == size; };
        for (const QString& language : workbench::Languages::codes()) {
            bench.window.setLanguage(language);
            QCoreApplication::processEvents();
            QVERIFY(fits(bench.window.minimumSizeHint()));
            QVERIFY(fits(bench.window.size()));
            bench.window.showHelp(QStringLiteral("index.html"));
            const workbench::FoldersDialog folders({}, {}, &bench.window);
            workbench::WriteReportView::showDialog(bench.window.session(), {}, {}, &bench.window);
            for (const auto* window : bench.window.findChildren<QDialog*>())
                QVERIFY2(fits(window->size()), window->objectName().toLatin1().constData());
        }
        for (const QString& language : workbench::Languages::codes()) {
            bench.window.setLanguage(language);
            bench.window.resize(1024, 600);
            QCoreApplication::processEvents();
            QCOMPARE(bench.window.size(), QSize(1024, 600));
            const auto* more = bench.window.findChild<QWidget*>(QStringLiteral("qt_toolbar_ext_button"));
            QVERIFY(more && !more->isVisible());
        }
    }
};

QTEST_MAIN(WorkbenchWindowTest)
#include "tst_workbench_window.moc"
