// Files that are opened and saved: what is told of them.

#include "echo_bench.h"
#include "support/data_table.h"
#include "support/files.h"
#include "window/recent_files.h"

#include <thread>

namespace {

Q_LOGGING_CATEGORY(typing, "vlk.settings.typing")
Q_LOGGING_CATEGORY(retyped, "vlk.settings.retyped")

const QByteArray kTelemetry = "<TMI model=\"R-7106\" >\n<Page type=\"176\" ver=\"30\" format=\"1\">\n"
                              "<NumPage>1</NumPage>\n</Page>\n</TMI>\n";

} // namespace

class OpenedFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void beginsWhereItOpenedLast_data()
    {
        DataTable<QString, QString>({"action", "folder"})
            .row("telemetry", "action_Table", "telemetry files")
            .row("any file", "action_Open", "configuration files");
    }
    void beginsWhereItOpenedLast()
    {
        QFETCH(QString, action);
        QFETCH(QString, folder);
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        OpenedWorkbench bench;
        QDir root(bench.root.path());
        for (const char* each : {"telemetry files", "configuration files", "others", "stick"})
            root.mkpath(each);
        const QString file = writeFile(root.filePath(QStringLiteral("stick/a.xml")), kTelemetry);
        const auto choose = [&](const QString& path) {
            bench.settings.setFolders(root.filePath(QStringLiteral("telemetry files")),
                                      root.filePath(QStringLiteral("configuration files")));
            QString begins;
            chooseNext(path, &begins);
            bench.action(qPrintable(action))->trigger();
            return begins;
        };
        QVERIFY(bench.start(VLK_ECHO_PLUGIN));
        QCOMPARE(choose(file), folder);
        QCOMPARE(choose({}), QStringLiteral("stick"));
        // In the next run too, until it is gone or the user wants others.
        const auto next = [&] {
            const workbench::Settings settings(bench.folder.settingsFile());
            return QDir(settings.openingFolder(action == "action_Open" ? workbench::DataKind::Configuration
                                                                       : workbench::DataKind::Telemetry))
                .dirName();
        };
        QCOMPARE(next(), QStringLiteral("stick"));
        QVERIFY(root.rename(QStringLiteral("stick"), QStringLiteral("away")));
        QCOMPARE(choose({}), folder);
        QVERIFY(root.rename(QStringLiteral("away"), QStringLiteral("stick")));
        bench.settings.setFolders(root.filePath(QStringLiteral("others")),
                                  root.filePath(QStringLiteral("others")));
        QCOMPARE(next(), QStringLiteral("others"));
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
                    if (id == static_cast<quint32>(vlk::Message::ShowStoredFile))
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

    // They are offered by opening their configuration: until then the window says so.
    void tellsOfEditsThatWait()
    {
        Bench bench;
        QVERIFY(bench.start());
        const QLoggingCategory found("vlk.unsaved.found");
        qCWarning(found, "changes of 18:44: truck.xml");
        const auto* bar = bench.window.findChild<QLabel*>(QStringLiteral("label_Notice"));
        QTRY_VERIFY(bar->isVisible());
        // Where the tracker has them by now, nothing waits any more.
        const QLoggingCategory written("vlk.unsaved.written");
        for (const char* name : {"van.xml", "truck.xml"}) {
            qCWarning(written, "changes are written: %s", name);
            QCOMPARE(bar->isVisible(), qstrcmp(name, "van.xml") == 0);
        }
        qCWarning(found, "changes of 18:44: truck.xml");
        QTRY_VERIFY(bar->isVisible());
        QCOMPARE(bar->text(), QStringLiteral("Unsaved changes of 18:44: truck.xml. Open it again to bring "
                                             "them back."));
        // Once is enough.
        QVERIFY(!bench.text("label_Status").contains(QStringLiteral("truck.xml")));
        bench.window.setLanguage(QStringLiteral("ru"));
        QTRY_VERIFY(bar->text().startsWith(QStringLiteral("Несохранённые изменения")));
        QDialog telemetry;
        telemetry.show();
        QVERIFY(bar->isVisible());
        QDialog configuration;
        configuration.setModal(true);
        configuration.show();
        QVERIFY(!bar->isVisible());
        // What still waits is told again, until the user has closed the notice.
        configuration.close();
        qCWarning(found, "changes of 18:44: truck.xml");
        QTRY_VERIFY(bar->isVisible());
        bench.window.findChild<QToolButton*>(QStringLiteral("label_Notice_Close"))->click();
        qCWarning(found, "changes of 18:44: truck.xml");
        qCWarning(found, "changes of 18:44: bus.xml");
        QTRY_VERIFY(bar->isVisible());
        QVERIFY(bar->text().contains(QStringLiteral("bus.xml")));
        QVERIFY(!bar->text().contains(QStringLiteral("truck.xml")));
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
        // The same field once more, one that gets another value and another one; other kinds of message are
        // of no concern, other threads are.
        std::thread([] {
            qCWarning(typing, "Mileage: 3 is beyond 5 to 9, 5 was written");
            qCWarning(typing, "Speed: 200 is beyond 1 to 180, 180 was written");
            qCWarning(retyped, "Mileage");
            qCInfo(typing, "Angle: looked at");
            qCWarning(typing, "Angle: 2,5 is no whole number, 2 was written");
        }).join();
        QTRY_COMPARE(logged().size(), 4);
        session.tracker().setFaults({});
        QString path = QStringLiteral("vlk_echo.xml");
        const auto write = [&] {
            writeFile(path, "<DEVICE model=\"R-7106\"/>");
            Q_EMIT session.link().received(vlk::Message::WriteConfiguration, &path, nullptr);
        };
        write();
        const QString told = QStringLiteral("look at again:\nSpeed: 200 is beyond 1 to 180, 180 was written"
                                            "\nAngle: 2,5 is no whole number, 2 was written");
        QTRY_VERIFY2(bench.text("label_Report").contains(told), qPrintable(bench.text("label_Report")));
        QVERIFY(bench.text("label_Status").contains(QLatin1String("Angle: 2,5")));
        // Once.
        write();
        QTRY_VERIFY(!bench.text("label_Report").contains(QLatin1String("Speed")));
    }
};

QTEST_MAIN(OpenedFilesTest)
#include "tst_opened_files.moc"
