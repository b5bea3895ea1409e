#include "support/data_table.h"
#include "support/files.h"
#include "window/command_line.h"
#include "window/data_folder.h"
#include "window/help_viewer.h"
#include "window/languages.h"
#include "window/settings.h"
#include "window/short_file_name.h"
#include "window/stored_file.h"

#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QTextBlock>
#include <QtTest>

#include <csignal>

Q_DECLARE_METATYPE(StoredFile)

namespace {

constexpr char kHelp[] = VLK_SOURCE "/help";

// Exit code and all that it said; -1 when it crashed or did not end.
std::pair<int, QString> run(const QStringList& arguments,
                            const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess workbench;
    workbench.setProcessChannelMode(QProcess::MergedChannels);
    workbench.setProcessEnvironment(environment);
    workbench.start(QStringLiteral(VLK_WORKBENCH), arguments);
    const bool ended = workbench.waitForFinished(60'000) && workbench.exitStatus() == QProcess::NormalExit;
    return {ended ? workbench.exitCode() : -1, QString::fromUtf8(workbench.readAll())};
}

} // namespace

class WorkbenchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The compiled texts, asked the way the plug-in asks: from any class, by key.
    void translatesByKey()
    {
        workbench::Languages languages;
        QVERIFY(languages.set(QStringLiteral("ru")));
        QCOMPARE(QCoreApplication::translate("SomeClass", "wb_help_back"), QStringLiteral("Назад"));
        QCOMPARE(workbench::text("wb_help_back"), QStringLiteral("Назад"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Отмена"));
        QVERIFY(languages.set(QStringLiteral("en")));
        QCOMPARE(workbench::text("wb_help_back"), QStringLiteral("Back"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
        QCOMPARE(workbench::text("no_such_key"), QStringLiteral("no_such_key"));
        QCOMPARE(languages.textIn("ru", "wb_help_back"), QStringLiteral("Назад"));
        QVERIFY(languages.textIn("ru", "no_such_key").isNull() &&
                languages.textIn("xx", "wb_help_back").isNull());
        QVERIFY(!languages.set(QStringLiteral("xx")));
        QCOMPARE(languages.current(), QStringLiteral("en"));
    }

    void helpPagesExistAndTheirLinksResolve_data()
    {
        const DataTable<QString, QString> table({"language", "page"});
        QSet<QString> pages;
        for (const QString& language : workbench::Languages::codes()) {
            for (const QString& page : QDir(QDir(kHelp).filePath(language)).entryList(QDir::Files))
                pages << page;
        }
        // A page of one language stands in the others too.
        for (const QString& language : workbench::Languages::codes()) {
            for (const QString& page : std::as_const(pages))
                table.row(qPrintable(language + '/' + page), language, page);
        }
    }
    void helpPagesExistAndTheirLinksResolve()
    {
        QFETCH(QString, language);
        QFETCH(QString, page);
        const workbench::HelpPages pages(kHelp);
        QVERIFY(pages.exists(language, page));
        static const QRegularExpression link(QStringLiteral("href=\"([^\"#]*)(?:#([^\"]*))?\""));
        for (auto found = link.globalMatch(pages.html(language, page)); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            const QString target = match.captured(1).isEmpty() ? page : match.captured(1);
            QVERIFY2(pages.exists(language, target), qPrintable(match.captured()));
            const QString anchor = match.captured(2);
            QVERIFY2(anchor.isEmpty() ||
                         pages.html(language, target).contains(QStringLiteral("id=\"%1\"").arg(anchor)),
                     qPrintable(match.captured()));
        }
    }

    void namesAMissingHelpPage()
    {
        workbench::Languages languages;
        QVERIFY(languages.set(QStringLiteral("en")));
        const workbench::HelpPages pages(kHelp);
        QVERIFY(pages.html(QStringLiteral("en"), QStringLiteral("r-7106p99.html"))
                    .contains(QStringLiteral("r-7106p99.html")));
        // Only the file name counts, so that no page leads out of the help.
        QVERIFY(pages.html(QStringLiteral("en"), QStringLiteral("../../CMakeLists.txt"))
                    .contains(QStringLiteral("href=\"index.html\"")));
    }

    void remembersSettings()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("w.ini"));
        {
            workbench::Settings settings(file);
            settings.setLanguage(QStringLiteral("ru"));
            settings.setMode(2);
            settings.setFullWindow(false);
            settings.setFolders(QStringLiteral("/а/"), QStringLiteral("/b/"));
            for (int n = 0; n < 15; ++n)
                settings.addRecentFile(QStringLiteral("/f%1").arg(n));
            settings.addRecentFile(QStringLiteral("/f9"), workbench::TelemetryWindow::Table);
            settings.removeRecentFile(QStringLiteral("/f14"));
        }
        const workbench::Settings settings(file);
        QCOMPARE(settings.language(), QStringLiteral("ru"));
        QCOMPARE(settings.mode(), 2);
        QVERIFY(!settings.fullWindow());
        QCOMPARE(settings.telemetryFolder(), QStringLiteral("/а/"));
        QCOMPARE(settings.recentFiles().size(), workbench::Settings::kRecentLimit - 1);
        const workbench::RecentFile first = settings.recentFiles().value(0);
        QVERIFY(first.path == QLatin1String("/f9") && first.window == workbench::TelemetryWindow::Table);
        const workbench::RecentFile second = settings.recentFiles().value(1);
        QVERIFY(second.path == QLatin1String("/f13") && second.window == workbench::TelemetryWindow::Browser);
    }

    // The command line's wishes hold for the run alone, until the user chooses otherwise.
    void forgetsWhatHoldsForOneRun()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("w.ini"));
        const auto stored = [&file] { return workbench::Settings(file); };
        {
            workbench::Settings settings(file);
            settings.setLanguage(QStringLiteral("en"));
            settings.setForThisRun(QStringLiteral("ru"), 2);
            QCOMPARE(settings.language(), QStringLiteral("ru"));
            QCOMPARE(settings.mode(), 2);
            settings.setMode(1);
            QCOMPARE(settings.mode(), 1);
        }
        QCOMPARE(stored().language(), QStringLiteral("en"));
        QCOMPARE(stored().mode(), 1);
    }

    void survivesDamagedSettings_data()
    {
        DataTable<QByteArray, bool>({"content", "damaged"})
            .row("zero bytes", QByteArray(64, '\0'), true)
            .row("no ini", "this is not a settings file\n", true)
            .row("wrong values", "[General]\nlanguage=xx\nmode=99\n", false)
            .row("empty", {}, false);
    }
    void survivesDamagedSettings()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, damaged);
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath("w.ini"), content);
        workbench::Settings settings(file);
        QCOMPARE(settings.wasDamaged(), damaged);
        QVERIFY(workbench::Languages::isKnown(settings.language()));
        QCOMPARE(settings.mode(), 0);
        QCOMPARE(QFile::exists(file + QStringLiteral(".damaged")), damaged);
        if (damaged)
            QCOMPARE(readFile(file + QStringLiteral(".damaged")), content);
    }

    void shortensFileNames_data()
    {
        const QString day("KAMAZ 5490 2026-11-20 08-02 - 2026-11-20 17-30.xml");
        const QString night("KAMAZ 5490 2026-11-20 08-02 - 2026-11-21 08-02.xml");
        DataTable<QString, QString, QString>({"name", "room", "shown"})
            .row("room enough", day, day, day)
            .row("one day", day, "KAMAZ 5490 2026-11-20 08-02 - 17-30.xml+",
                 "KAMAZ 5490 2026-11-20 08-02 - 17-30.xml")
            .row("two days", night, "KAMAZ 5490 11-20 08-02 - 11-21 08-02.xml",
                 "KAMAZ 5490 11-20 08-02 - 11-21 08-02.xml")
            .row("less", night, "2026-11-20 08-02 - 2026-11-21 08-02.x",
                 "KA…90 11-20 08-02 - 11-21 08-02.xml")
            .row("no vehicle", night, "11-20 08-02 - 11-21 08-02.xml+", "11-20 08-02 - 11-21 08-02.xml")
            .row("another name", "configuration of KAMAZ.xml", "configur…AMAZ.xml", "configur…AMAZ.xml");
    }
    void shortensFileNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, room);
        const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        QTEST(workbench::shortFileName(name, metrics, metrics.horizontalAdvance(room)), "shown");
    }

    void knowsFilesByTheirContent_data()
    {
        const QByteArray declaration("<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n");
        DataTable<QString, QByteArray, StoredFile>({"name", "content", "kind"})
            .row("configuration", "a.xml", declaration + "<DEVICE model=\"\xcf\">", StoredFile::Configuration)
            .row("telemetry", "a.xml", declaration + "<TMI model=\"R\"> \r\n", StoredFile::Telemetry)
            .row("binary telemetry", "A.TMI", QByteArray(200, '\0'), StoredFile::Telemetry)
            .row("calibration", "a.xml", "<FUEL model=\"R-7106\"/>", StoredFile::Calibration)
            .row("another document", "a.xml", "<html/>", StoredFile::Unknown)
            .row("no document", "a.xml", QByteArray(5000, '\xff'), StoredFile::Unknown)
            .row("empty", "a.xml", {}, StoredFile::Unknown);
    }
    void knowsFilesByTheirContent()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        QTEST(workbench::storedFileKind(writeFile(folder.filePath(name), content)), "kind");
        QCOMPARE(workbench::storedFileKind(folder.path()), StoredFile::Unknown);
    }

    void makesItsDataFolder()
    {
        const QTemporaryDir root;
        const workbench::DataFolder folder(root.filePath(QStringLiteral("new/папка")));
        QVERIFY(folder.isUsable());
        QCOMPARE(QDir::currentPath(), QFileInfo(folder.path()).canonicalFilePath());
        QVERIFY(QFileInfo(folder.configurationFolder()).isDir());
        // A file stands in the way.
        const workbench::DataFolder refused(writeFile(root.filePath("file"), "x") + "/data");
        QVERIFY(!refused.isUsable() && !refused.isInUse());
        QVERIFY(!refused.error().isEmpty());
    }

    // A second one on the same folder says so, touches nothing and ends; behind the first one the folder is
    // free.
    void leavesAnotherWorkbenchAlone()
    {
        const QTemporaryDir root;
        const QStringList arguments{"--language", "en",     "--data",
                                    root.path(),  "--tour", root.filePath(QStringLiteral("tour"))};
        auto first = std::make_unique<workbench::DataFolder>(root.path());
        QVERIFY(first->isUsable());
        QVERIFY(workbench::DataFolder(root.path()).isInUse());
        // A tour comes that far without a display.
        QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            bare.remove(QString::fromLatin1(name));
        const auto [code, output] = run(arguments, bare);
        QCOMPARE(code, 1);
        QVERIFY2(
            output.contains(QLatin1String("Another workbench is open on the data folder ") + root.path()),
            qPrintable(output));
        QVERIFY(QDir(first->trackerFolder()).isEmpty());
        first.reset();
        QVERIFY(workbench::DataFolder(root.path()).isUsable());
    }

    // One sentence in place of an abort.
    void saysThatThereIsNoDisplay()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":77777"));
        const auto [code, output] = run({"--language", "en"}, environment);
        QCOMPARE(code, 1);
        QVERIFY2(output.startsWith(QLatin1String("The workbench found no display")), qPrintable(output));
        QVERIFY2(output.contains(QLatin1String(VLK_WORKBENCH) + " --tour DIR"), qPrintable(output));
        QCOMPARE(output.count(QLatin1Char('\n')), 1);
    }

    void helpLinksCanBeRead_data()
    {
        DataTable<QColor, QColor>({"base", "link"})
            .row("light", Qt::white, Qt::blue)
            .row("dark", QColor(0x23, 0x26, 0x29), Qt::blue)
            .row("dark with a link colour of its own", Qt::black, QColor(0x8a, 0xb4, 0xf8));
    }
    void helpLinksCanBeRead()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, link);
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Link, link);
        workbench::HelpViewer viewer(workbench::HelpPages(kHelp), QStringLiteral("en"), nullptr);
        viewer.showPage(workbench::HelpPages::indexPage());
        // The theme may change while the page is on show.
        viewer.setPalette(palette);
        const auto* browser = viewer.findChild<QTextBrowser*>(QStringLiteral("textBrowser_Help"));
        int links = 0;
        for (QTextBlock block = browser->document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (format.anchorHref().isEmpty())
                    continue;
                ++links;
                const int contrast = qGray(format.foreground().color().rgb()) - qGray(base.rgb());
                QVERIFY2(std::abs(contrast) > 90, qPrintable(format.foreground().color().name()));
            }
        }
        QVERIFY(links > 2);
    }

    void helpCanBeSearched()
    {
        workbench::Languages languages;
        QVERIFY(languages.set(QStringLiteral("en")));
        workbench::HelpViewer viewer(workbench::HelpPages(kHelp), QStringLiteral("en"), nullptr);
        viewer.showPage("r-7106p5.html");
        QVERIFY(QTest::qWaitForWindowActive(&viewer));
        const auto* browser = viewer.findChild<QTextBrowser*>("textBrowser_Help");
        auto* words = viewer.findChild<QLineEdit*>("lineEdit_HelpFind");
        const auto place = [browser] {
            return browser->source().path() + '@' + QString::number(browser->textCursor().position());
        };
        QTest::keyClick(viewer.focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(words->hasFocus());
        // Goes through all pages and comes back to where it was.
        QTest::keyClicks(words, "TACHOGRAPH");
        QStringList places;
        do {
            QTest::keyClick(words, Qt::Key_Return);
            QCOMPARE(browser->textCursor().selectedText().toLower(), QString("tachograph"));
            places << place();
        } while (places.size() < 500 && places.indexOf(place()) == places.size() - 1);
        QCOMPARE(places.last(), places.first());
        QVERIFY(!places.filter("r-7106p5.html").isEmpty() && !places.filter("r-7106taho.html").isEmpty());
        const auto* result = viewer.findChild<QLabel*>("label_HelpFound");
        QTest::keyClicks(words, "zzz");
        QTest::keyClick(words, Qt::Key_Return);
        QCOMPARE(result->text(), QString("Nothing found"));
        QCOMPARE(place(), places.last());
        QTest::keyClick(words, Qt::Key_Escape);
        QVERIFY(viewer.isVisible() && words->text().isEmpty() && result->text().isEmpty());
    }

    // Asked by the system to end it ends by itself, in order.
    void endsWhenItIsTold()
    {
        const QTemporaryDir folder;
        QProcess workbench;
        workbench.start(QStringLiteral(VLK_WORKBENCH), {QStringLiteral("--data"), folder.path()});
        QVERIFY(workbench.waitForStarted());
        const auto catches = [&workbench] {
            QFile status(QStringLiteral("/proc/%1/status").arg(workbench.processId()));
            if (!status.open(QIODevice::ReadOnly))
                return false;
            static const QRegularExpression caught(QStringLiteral("SigCgt:\\s*([0-9a-f]+)"));
            const QString mask = caught.match(QString::fromLatin1(status.readAll())).captured(1);
            return (mask.toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
        };
        QTRY_VERIFY_WITH_TIMEOUT(catches(), 60'000);
        workbench.terminate();
        QVERIFY(workbench.waitForFinished(60'000));
        QCOMPARE(workbench.exitStatus(), QProcess::NormalExit);
        QCOMPARE(workbench.exitCode(), 0);
    }

    void obeysTheCommandLine_data()
    {
        const auto row = [table = DataTable<QString, int, QString>({"arguments", "code", "said"})](
                             const char* arguments, int code, const char* said) {
            table.row(arguments, arguments, code, said);
        };
        row("--help --language en", 0, "--tour");
        row("--help --language ru", 0, "Параметры");
        row("--version", 0, "vlk-workbench 3.");
        row("--nonsense --language en", 2, "nonsense");
        row("--language de", 2, "de");
        row("--mode 3", 2, "3");
        row("--mode two", 2, "two");
        row("--open /no/such/file.xml", 2, "/no/such/file.xml");
        row("--open", 2, "open");
        row("file.xml", 2, "file.xml");
        row("--tour " VLK_SOURCE "/build/x --data /dev/null/data", 1, "/dev/null/data");
    }
    void obeysTheCommandLine()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, said);
        const auto [code, output] = run(arguments.split(' '));
        QTEST(code, "code");
        QVERIFY2(output.contains(said), qPrintable(output));
    }
};

QTEST_MAIN(WorkbenchTest)
#include "tst_workbench.moc"
