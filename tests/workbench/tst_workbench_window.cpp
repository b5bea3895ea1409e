#include "window/data_folder.h"
#include "window/recent_files.h"
#include "window/settings.h"
#include "window/workbench_window.h"
#include "window/write_report_view.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QtTest>

namespace {

struct Bench
{
    QTemporaryDir root;
    DataFolder folder{root.path()};
    Settings settings{folder.settingsFile()};
    Languages languages;
    bool english = languages.set(QStringLiteral("en"));
    WorkbenchWindow window{folder, settings, languages};

    bool start()
    {
        window.show();
        return window.start(QStringLiteral(VLK_ECHO_PLUGIN));
    }
    QAction* action(const char* name) { return window.findChild<QAction*>(QLatin1String(name)); }
    QString text(const char* name) { return window.findChild<QLabel*>(QLatin1String(name))->text(); }
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

// Closes the message box that comes up next and gives its text.
QString messageDuring(const std::function<void()>& act)
{
    QString text;
    QTimer::singleShot(0, [&text] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    });
    act();
    return text;
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
        QCOMPARE(english.filter(cyrillic),
                 QStringList({QStringLiteral("Русский"), QStringLiteral("Русский")}));
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
        const QString path = bench.window.session().tracker().readConfiguration(bench.root.path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray content = file.readAll();
        content.replace("port=\"4000\"", "port=\"4001\"");
        const QString edited = bench.root.filePath(QStringLiteral("edited.xml"));
        QFile copy(edited);
        QVERIFY(copy.open(QIODevice::WriteOnly) && copy.write(content) == content.size());
        copy.close();

        QMimeData dropped;
        dropped.setUrls({QUrl::fromLocalFile(edited)});
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        // Without a drag under way the application would not deliver it.
        static_cast<QObject&>(bench.window).event(&drop);
        QTRY_VERIFY2(bench.text("label_Report").contains(QStringLiteral("Keys changed: ")),
                     qPrintable(bench.text("label_Report")));
        QCOMPARE(bench.settings.recentFiles().value(0).path, edited);

        QFile::remove(edited);
        QVERIFY(messageDuring([&] { bench.window.openFile(edited); }).contains(edited));
        QVERIFY(bench.settings.recentFiles().isEmpty());
    }

    // A recent file opens in the window that it was last shown in.
    void reopensWhereItWasShown()
    {
        Bench bench;
        const QString path = bench.root.filePath(QStringLiteral("period.xml"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<TMI model=\"R-7106\" >\n</TMI>\n");
        file.close();
        QVERIFY(bench.start());
        QVector<int> windows;
        connect(&bench.window.session().link(), &PluginLink::passed, this,
                [&](vlk::Direction, quint32 id, const void*, const void* p2) {
                    if (id == quint32(vlk::Message::ShowStoredFile))
                        windows.append(*static_cast<const std::int32_t*>(p2));
                });
        auto* list = bench.window.findChild<QListWidget*>(QStringLiteral("listWidget_Recent"));
        for (const TelemetryWindow window : {TelemetryWindow::Browser, TelemetryWindow::Table}) {
            bench.window.openFile(path, window);
            Q_EMIT list->itemActivated(list->item(0));
        }
        // The menu makes its entries anew while one of them is under way.
        bench.window.findChild<RecentFiles*>()->menu()->actions().constFirst()->trigger();
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

    // At the size of the configuration window nothing may need more room.
    void fitsASmallScreen()
    {
        Bench bench;
        QVERIFY(bench.start());
        for (const QString& language : Languages::codes()) {
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
