// What was edited and neither saved nor written when the window closed or the process died: kept on disk, and
// offered when the same configuration is opened again.

#include "host/unsaved_window.h"
#include "support/data_table.h"
#include "support/full_disk.h"

#include <cstdio>
#include <random>

namespace {

constexpr char kFolder[] = "VLK_EDITED_FOLDER"; // in the environment of a process that is to be killed
constexpr char kKills[] = "VLK_KILLS";

// Edits for ever, and says after each edit which one it was, and when.
int editUntilKilled(const QString& folder)
{
    ScriptedHost host;
    host.start();
    useFolder(host, folder);
    host.open({});
    // One key an edit: what is kept in the middle of typing a number would be taken for another one.
    auto* port = ScriptedHost::child<QSpinBox>(ScriptedHost::window("VLK_Widget_Config_Full"),
                                               "GPRSSrv_spinBox_Port_Main");
    port->setFocus();
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        QTest::keyClick(port, Qt::Key_Up);
        std::printf("%d %lld\n", port->value(), clock.elapsed());
        std::fflush(stdout);
        QTest::qWait(5);
    }
}

void startEditing(QProcess& process, const QString& folder, const QString& litter)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kFolder, folder);
    environment.insert("TMPDIR", litter); // what it leaves behind goes with the test
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
}

// A sentence of as many words as people read.
class LongSentence : public QTranslator
{
public:
    LongSentence() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* key, const char* /*comment*/,
                      int /*n*/) const override
    {
        return qstrcmp(key, "rev_350") == 0 ? QString("damaged ").repeated(18) + "%1" : QString();
    }
};

} // namespace

class UnsavedTest : public QObject, private UnsavedWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QDir::setCurrent(folder_.path());
        toldInTheFirstWindow();
    }
    void init() { begin(); }

    void broughtBack_data()
    {
        DataTable<QString, bool> table({"source", "full"});
        for (const char* source : {"file", "tracker", "new"}) {
            table.row(source, source, true);
            table.row(qPrintable(source + QString(", quick")), source, false);
        }
    }
    void broughtBack()
    {
        QFETCH(QString, source);
        QFETCH(bool, full);
        open(source, full);
        edit(full);
        const QByteArray expected = written(full);
        open(source, full);
        QVERIFY(offer().isEmpty());
        const QByteArray untouched = written(full);

        open(source, full);
        edit(full);
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^2 changes are kept: ")); // for the host to tell
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(!window->isVisible());
        // They still wait when another one has been closed, or the same one without a decision.
        for (const QString& other : {QString(source == "new" ? "file" : "new"), source}) {
            open(other, full);
            QCOMPARE(offer(), other == source ? QString("rev_345: 2") : QString());
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^changes of [\\d:]+: "));
            QTest::keyClick(window, Qt::Key_Escape);
        }
        open(source, full);
        QCOMPARE(tellsRemoval(), !full && source != "new");
        QCOMPARE(offer(), QString("rev_345: 2"));
        const auto* backup = window->findChild<QLineEdit*>("GPRSSrv_lineEdit_IP_DNS_Reserv_1");
        const QString address = full ? backup->text() : QString();
        press("label_Unsaved_Action2");
        QVERIFY(offer().isEmpty());
        QVERIFY(!full || backup->text() == address);
        press("toolButton_Undo");
        QCOMPARE(offer(), QString("rev_345: 2"));
        // They wait on whatever else is typed where they were.
        auto* page = child<QWidget>(full ? "page_Full" : "page_Light");
        type(page->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"), "<All>77<Tab>");
        QCoreApplication::processEvents();
        QCOMPARE(offer(), QString("rev_345: 2"));
        press("toolButton_Undo");
        press("toolButton_Redo");
        press("toolButton_Undo");
        press("label_Unsaved_Action2");
        press("toolButton_Undo");
        press("toolButton_Redo");
        QVERIFY(offer().isEmpty());
        QCOMPARE(written(full), expected);
        open(source, full);
        QVERIFY(offer().isEmpty());
        QCOMPARE(written(full), untouched);
    }

    // What was new, or of another file, is of the file that it was saved to; a tracker's stays a tracker's.
    void editedBehindASave_data()
    {
        DataTable<QString, bool>({"source", "full"})
            .row("new", "new", true)
            .row("new, quick", "new", false)
            .row("file", "file", true)
            .row("tracker", "tracker", true);
    }
    void editedBehindASave()
    {
        QFETCH(QString, source);
        QFETCH(bool, full);
        open(source, full);
        edit(full);
        const QString path = folder_.filePath("Рейс 7.xml");
        QFile::remove(path);
        ScriptedHost::whenModal([&](QWidget* dialog) {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
            qobject_cast<QDialog*>(dialog)->accept();
        });
        QTest::keyClick(window->focusWidget(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(QFile::exists(path));
        QCOMPARE(files().size(), 0);
        const QByteArray saved = readFile(path);
        auto* page = child<QWidget>(full ? "page_Full" : "page_Light");
        type(page->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"), "<All>77");
        const bool isOfTracker = source == "tracker";
        const QString kept = QString("^1 changes are kept: %1$").arg(isOfTracker ? "R-7106 1" : "Рейс 7.xml");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(kept));
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(readFile(path), saved);
        open(source, full);
        QCOMPARE(offer(), isOfTracker ? QString("rev_345: 1") : QString());
        // Of what is offered nowhere the file is named.
        if (isOfTracker) {
            const auto kept = vlk::review::unsavedIn(files().value(0));
            QVERIFY(kept && kept->file == path && kept->inFile == 2);
            QVERIFY(child<QLabel>("label_Unsaved")->text().endsWith(". rev_434"));
        }
        host_.open(path, full, true);
        QCOMPARE(offer(), isOfTracker ? QString() : QString("rev_345: 1"));
    }

    // What is taken back, saved to a file or there already is not offered, nor another tracker's.
    void notOffered()
    {
        edit();
        QTRY_COMPARE(files().size(), 1);
        press("toolButton_Undo");
        press("toolButton_Undo");
        QTRY_COMPARE(files().size(), 0);
        press("toolButton_Redo");
        ScriptedHost::whenModal([this](QWidget* dialog) {
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder_.filePath("saved.xml"));
            qobject_cast<QDialog*>(dialog)->accept();
        });
        press("pushButton_SaveToFile");
        QCOMPARE(files().size(), 0);
        window->close();
        QCOMPARE(files().size(), 0);

        open("tracker");
        edit();
        window->close();
        attach("2");
        open("tracker");
        QVERIFY(offer().isEmpty());
        attach("1");
        open("tracker", false);
        open("tracker");
        QCOMPARE(offer(), QString("rev_345: 2"));
        for (const QString& file : files()) {
            writeFile(file, readFile(file).left(100));
            QFile::copy(file, QString(file).replace('-', "-0"));
        }
        const int count = files().size();
        // Until the user closes it, one after the other.
        for (int closed = 0; closed < count; ++closed) {
            for (const bool isOfTracker : {true, false, true}) {
                open(isOfTracker ? "tracker" : "file");
                QCOMPARE(offer(), isOfTracker ? QString("rev_350") : QString());
            }
            press("label_Unsaved_Close");
            QCOMPARE(offer().isEmpty(), closed + 1 == count);
        }
        open("tracker");
        QVERIFY(offer().isEmpty());
    }

    // In the button, at the end and in the offer. Whoever shows what is logged tells of it at the next start.
    void countedAlike()
    {
        open("new");
        child<QComboBox>("comboBox_RS485_Owner_1")->setCurrentIndex(1);
        edit();
        QCOMPARE(child<QToolButton>("toolButton_Differences")->text(), QString("3"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^3 changes are kept: "));
        window->close();
        for (const QString& folder : {QString(), kept_->path()}) {
            if (!folder.isEmpty())
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^changes of \\d\\d:\\d\\d: $"));
            useFolder(host_, folder);
        }
        open("new");
        QCOMPARE(offer(), QString("rev_345: 3"));
    }

    // The cross leaves it for the next time; once it has been shown it can be discarded. New edits beside it
    // are kept beside it.
    void shownAndLeft()
    {
        edit();
        open("file");
        press("label_Unsaved_Close");
        QVERIFY(offer().isEmpty());
        auto* timer = child<QSpinBox>("spinBox_RegTimer");
        type(timer, "<All>60"); // and is not left
        open("file");
        QCOMPARE(files().size(), 2);
        QCOMPARE(offer(), QString("rev_345: 1"));
        // Where "Show" was "Discard" comes, which a second click does not reach.
        const auto* show = child<QPushButton>("label_Unsaved_Action1");
        QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                           show->mapTo(window, show->rect().center()));
        auto* table = child<QTableView>("tableView_Differences");
        QVERIFY(table->isVisible());
        QCOMPARE(table->model()->rowCount(), 1);
        QCOMPARE(child<QComboBox>("comboBox_Against")->currentText(), QString("rev_140"));
        for (const char* button :
             {"label_Unsaved_Action1", "label_Unsaved_Action1", "label_Unsaved_Action1"}) {
            press(button); // discard, keep, discard
            QCOMPARE(files().size(), 2);
        }
        QCOMPARE(offer(), QString("rev_146"));
        QCOMPARE(child<QComboBox>("comboBox_Against")->currentIndex(), 0);
        window->close();
        open("file");
        QCOMPARE(files().size(), 1);
        QCOMPARE(offer(), QString("rev_345: 2"));
        press("label_Unsaved_Action2");
        type(timer, "<All>60<Tab>");
        type(child<QSpinBox>("GPRSSrv_spinBox_Port_Main"), "<All>5556<Tab>"); // of what was brought back
        QVERIFY(offer().isEmpty());
        window->close();
        // A second file of these edits, as a death behind "Bring back" leaves it.
        QFile::copy(files()[0], QString(files()[0]).replace('-', "-0"));
        open("file");
        QCOMPARE(files().size(), 1);
        QCOMPARE(offer(), QString("rev_345: 3"));
    }

    // The host counts both; the older one says what it would replace.
    void olderAndNewer()
    {
        edit();
        open("file");
        press("label_Unsaved_Close");
        type(child<QWidget>("page_Full")->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"), "<All>77<Tab>");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^2 changes are kept: "));
        window->close();
        open("file");
        for (const char* offered : {"rev_345: 1", "rev_345: 2"}) {
            QCOMPARE(offer(), QString(offered));
            QCOMPARE(child<QLabel>("label_Unsaved")->text().endsWith(". rev_721"), offered[9] == '2');
            press("label_Unsaved_Action2");
        }
        QVERIFY(offer().isEmpty());
    }

    // Lists begin anew with it; behind the closed window that is nobody's edit.
    void languageBehindTheClosedWindow()
    {
        const auto changeLanguage = [this] {
            window->close();
            host_.send(Message::LanguageChanged);
            QTest::qWait(2 * 300);
        };
        changeLanguage();
        QCOMPARE(files().size(), 0);
        open("file");
        QVERIFY(offer().isEmpty());
        edit();
        changeLanguage();
        open("file");
        QCOMPARE(offer(), QString("rev_345: 2"));
    }

    void fullDisk()
    {
        struct WithReason : QTranslator
        {
            QString translate(const char*, const char* key, const char*, int) const override
            {
                return qstrcmp(key, "rev_145") == 0 ? QStringLiteral("rev_145 %1") : QString();
            }
        } texts;
        qApp->installTranslator(&texts);
        {
            const FullDisk disk(100);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^(/[^/]+)+\\.unsaved: File too large$"));
            edit();
            QTRY_COMPARE(offer(), QString("rev_145 tmiw_275"));
            // One key loses nothing.
            QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
            QVERIFY(window->isVisible());
            QCOMPARE(window->focusWidget(), child<QPushButton>("label_Unsaved_Action1"));
        }
        qApp->removeTranslator(&texts);
        QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
        QVERIFY(!window->isVisible());
        open("file");
        QCOMPARE(offer(), QString("rev_345: 2"));
    }

    // It is told of every opening and of every edit behind its cross, and what goes with the window is lost.
    void lostOnAFullDisk()
    {
        const auto port = [this](const QString& keys) {
            type(child<QWidget>("page_Full")->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main"), keys);
        };
        edit();
        QTRY_COMPARE(files().size(), 1);
        {
            const FullDisk disk(100);
            const auto change = [&](const QString& keys) {
                port(keys);
                QTRY_COMPARE(offer(), QString("rev_145"));
                press("label_Unsaved_Close");
                QVERIFY(offer() != "rev_145");
            };
            for (const QString older : {"", "rev_345: 2"}) {
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\\.unsaved: File too large$"));
                QTest::ignoreMessage(QtWarningMsg, "1 changes are lost: factory.xml: File too large");
                QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^changes of .+: factory.xml$"));
                QCOMPARE(offer(), older);
                change("<All>6001<Tab>");
                if (!older.isEmpty())
                    press("label_Unsaved_Action2"); // of which the address is kept
                change("<All>6002<Tab>");
                window->close();
                open("file");
            }
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\\.unsaved: File too large$"));
            change("<All>6003<Tab>");
        }
        port("<All>6004<Tab>");
        QTRY_COMPARE(offer(), QString("rev_502"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^2 changes are kept: factory.xml$"));
        window->close();
    }

    void killed()
    {
        const int count = std::max(16, qEnvironmentVariableIntValue(kKills));
        std::mt19937 random(7106);
        struct Edited
        {
            QProcess process;
            QTemporaryDir folder;
            qint64 end = -1;
        };
        int lost = 0;
        for (int round = 0; round < count; round += 8) {
            std::array<Edited, 8> all;
            for (Edited& edited : all)
                startEditing(edited.process, edited.folder.path(), folder_.path());
            QElapsedTimer clock;
            clock.start();
            const auto kill = [&](Edited& edited) {
                if (edited.end < 0 && edited.process.bytesAvailable() > 0)
                    edited.end = clock.elapsed() + random() % 2500;
                if (edited.end >= 0 && clock.elapsed() > edited.end)
                    edited.process.kill();
                return edited.process.state() == QProcess::NotRunning;
            };
            QTRY_VERIFY_WITH_TIMEOUT(static_cast<int>(std::ranges::count_if(all, kill)) == 8, 60000);
            for (Edited& edited : all) {
                QVERIFY(edited.process.exitStatus() == QProcess::CrashExit);
                // The last sign of life is the moment of its death.
                QList<QByteArray> lines = edited.process.readAllStandardOutput().split('\n');
                lines.removeLast();
                const qint64 death = lines.last().split(' ').last().toLongLong();
                int safe = 0;
                for (const QByteArray& line : lines) {
                    if (line.split(' ').last().toLongLong() <= death - 1000)
                        safe = line.split(' ').first().toInt();
                }
                const auto kept = vlk::review::keptUnsaved(edited.folder.path(), "new");
                const QRegularExpression port("<SRV1 [^>]*port=\"(\\d+)\"");
                const int found = kept.empty() ? 0 : port.match(kept[0].unsaved.after).captured(1).toInt();
                lost += found < safe;
                QVERIFY(kept.size() <= 1);
            }
        }
        QCOMPARE(lost, 0);
    }

private:
    // The first window of a process is told of what an earlier one left while it has no size yet.
    void toldInTheFirstWindow()
    {
        kept_ = std::make_unique<QTemporaryDir>();
        QProcess process;
        startEditing(process, kept_->path(), folder_.path());
        QTRY_COMPARE_WITH_TIMEOUT(files().size(), 1, 60000);
        process.kill();
        QVERIFY(process.waitForFinished());
        writeFile(files()[0], readFile(files()[0]).left(100));

        const LongSentence sentence;
        host_.start();
        useFolder(host_, kept_->path());
        host_.open({});
        window = ScriptedHost::window("VLK_Widget_Config");
        QCoreApplication::processEvents();
        const auto* bar = child<QWidget>("noticeBar");
        const auto* label = child<QLabel>("label_Unsaved");
        QVERIFY(label->isVisible());
        QVERIFY(label->height() >= label->heightForWidth(label->width()));
        for (const QWidget* part : {child<QWidget>("label_Unsaved"), child<QWidget>("label_Unsaved_Close")})
            QVERIFY2(bar->rect().contains(part->geometry()), qPrintable(part->objectName()));
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(kFolder))
        return editUntilKilled(qEnvironmentVariable(kFolder));
    const auto test = std::make_unique<UnsavedTest>();
    return QTest::qExec(test.get(), argc, argv);
}

#include "tst_unsaved.moc"
