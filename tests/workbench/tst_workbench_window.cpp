// The main window: what it says and allows, how it looks, how it closes.

#include "echo_bench.h"
#include "support/data_table.h"
#include "support/files.h"
#include "window/folders_dialog.h"
#include "window/write_report_view.h"

namespace {

QStringList textsOf(const QWidget& window)
{
    QStringList texts{window.windowTitle()};
    for (const QObject* object : window.findChildren<QObject*>()) {
        for (const char* property :
             {"text", "title", "toolTip", "placeholderText", "accessibleName", "currentText"})
            texts.append(object->property(property).toString());
    }
    texts.removeAll(QString());
    return texts;
}

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
            QVERIFY(bench.text("label_StatusLasting").startsWith(QString::fromUtf8(why)));
            configuration.close();
            QVERIFY(!bench.text("label_StatusLasting").contains(QString::fromUtf8(why)));
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

    // A window that stays would keep the program without one to work in.
    void takesAllWindowsAlong()
    {
        Bench bench;
        QWidget other;
        other.show();
        QVERIFY(bench.window.close());
        QVERIFY(other.isHidden());
    }

    // In a place that was kept on a larger one.
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
        stream << quint32{0x1D9D0CB} << quint16{3} << quint16{0} << kept << kept << qint32{0} << quint8{0}
               << quint8{0} << static_cast<qint32>(screen.width() + 100) << kept;
        OpenedWorkbench bench;
        bench.settings.setLayout(bench.window.objectName(), layout);
        workbench::WorkbenchWindow window(bench.folder, bench.settings, bench.languages);
        window.show();
        QCOMPARE(window.frameGeometry().intersected(screen), window.frameGeometry());
    }

    // Whatever the size of the letters, the windows fit the screen and scroll; at the size of the
    // configuration window nothing needs more room.
    // A folder that cannot be used is refused where it is chosen, and told where it was chosen before: files
    // go to the workbench's own until it is there again.
    void refusesUnusableFolders()
    {
        Bench bench;
        QFile file(bench.root.filePath("a file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString unusable = file.fileName() + "/folder";
        const QString usable = bench.root.filePath("new/folder");
        bench.settings.setFolders({}, unusable);
        QVERIFY(bench.start());
        QVERIFY2(bench.text("label_Status").contains(unusable), qPrintable(bench.text("label_Status")));
        QCOMPARE(bench.settings.configurationFolder(), unusable);
        const auto* bar = bench.window.findChild<QFrame*>("noticeBar");
        QVERIFY(bar->isVisible() && bar->findChild<QLabel*>("label_Notice")->text().contains(unusable));
        workbench::FoldersDialog dialog({}, unusable, &bench.window);
        dialog.show();
        dialog.accept();
        auto* folder = dialog.findChild<QLineEdit*>("lineEdit_FolderConfigurations");
        const auto* told = dialog.findChild<QLabel*>("label_Notice");
        QVERIFY(dialog.isVisible() && told->text().contains("a file where a folder should be"));
        folder->setText(usable);
        dialog.accept();
        QVERIFY(!dialog.isVisible() && QFileInfo(usable).isDir());
        QVERIFY(QDir(usable).isEmpty());
        // Once they are chosen well nothing is told any more.
        QTimer::singleShot(0, [&usable] {
            auto* folders = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            folders->findChild<QLineEdit*>("lineEdit_FolderConfigurations")->setText(usable);
            folders->accept();
        });
        bench.action("action_Folders")->trigger();
        QVERIFY(!bar->isVisible() && !bench.text("label_Status").contains(unusable));
    }

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
            workbench::WriteReportView::showDialog(bench.window.session(), {}, &bench.window);
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
