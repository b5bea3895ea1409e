// A save that is stopped leaves the old document or the new one, whole. Each save runs in a process of its
// own, without rights, on a full or bad disk, or killed in the middle.

#include "fuel/table/fuel_file.h"
#include "support/data_table.h"
#include "support/failing_calls.h"
#include "support/files.h"
#include "telemetry/files/telemetry_file.h"
#include "xml/xml_document.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// How a save ended: by its result and what the log said.
enum Outcome { Saved, Kept, Lost, Untold };
Q_DECLARE_METATYPE(Outcome)

// What fails on it, as failing_calls.h has it.
struct Disk
{
    rlim_t room = 1 << 20;
    const char* writes = "";
    bool syncs = false;
    bool truncations = false;
};
Q_DECLARE_METATYPE(Disk)

using Save = std::function<bool(const QString& path)>;
Q_DECLARE_METATYPE(Save)

namespace {

Outcome told = Untold;

void listen(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
{
    if (qstrcmp(context.category, "vlk.save") == 0 && text.contains("file.xml: "))
        told = text.contains("lost") ? Lost : Kept;
}

constexpr int kNobody = 65534;
constexpr mode_t kOpenFolder = 0777;
constexpr mode_t kClosedFolder = 0555;

QByteArray documentWith(int groups)
{
    if (groups == 0)
        return {};
    QByteArray text = "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<DEVICE>\n";
    for (int i = 0; i < groups; ++i)
        text += "\t<GROUP value=\"" + QByteArray::number(i) + "\"/>\n";
    return text + "</DEVICE>\n";
}

bool saveWith(const QString& path, int groups)
{
    vlk::XmlDocument document(path, "DEVICE");
    document.root()->clear();
    for (int i = 0; i < groups && document.isOpen(); ++i) {
        const auto group = document.root()->child("GROUP", CXmlNode::Empty);
        group->setInt("value", i);
        group->commit();
    }
    return document.save();
}

// Root may write everywhere, so the tests of rights give them up first.
void becomeNobody()
{
    if (geteuid() == 0 &&
        (setresgid(kNobody, kNobody, kNobody) != 0 || setresuid(kNobody, kNobody, kNobody) != 0))
        _exit(2);
    prctl(PR_SET_DUMPABLE, 1);
}

class TestSaving : public QObject
{
    Q_OBJECT

private:
    void prepare(int groups, mode_t folderRights = kOpenFolder, mode_t fileRights = 0666)
    {
        // In memory where the system has such a folder: every save waits for the disk, and there are
        // hundreds.
        const QDir memory("/dev/shm");
        folder_ = std::make_unique<QTemporaryDir>(
            (memory.exists() ? memory : QDir::temp()).filePath("tst_saving_XXXXXX"));
        path_ = folder_->filePath("file.xml");
        writeFile(path_, documentWith(groups));
        if (chmod(qPrintable(path_), fileRights) != 0 ||
            chmod(qPrintable(folder_->path()), folderRights) != 0)
            qFatal("cannot set rights");
    }

    // In a process that has no rights of root.
    static Outcome saveAsNobody(const std::function<bool()>& save, const Disk& disk = {})
    {
        const pid_t child = fork();
        if (child == 0) {
            becomeNobody();
            qInstallMessageHandler(listen);
            failing::writes = disk.writes;
            failing::syncs = disk.syncs;
            failing::truncations = disk.truncations;
            const rlimit limit{disk.room, disk.room};
            std::signal(SIGXFSZ, SIG_IGN);
            if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
                _exit(Untold);
            _exit(save() ? Saved : told);
        }
        int status = 0;
        if (waitpid(child, &status, 0) != child || !WIFEXITED(status))
            return Untold;
        return static_cast<Outcome>(WEXITSTATUS(status));
    }

    QByteArray content(const QString& name = "file.xml") const { return readFile(folder_->filePath(name)); }

    QStringList strays() const
    {
        QStringList names = QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden);
        names.removeOne("file.xml");
        return names;
    }

    std::unique_ptr<QTemporaryDir> folder_;
    QString path_;

private Q_SLOTS:
    void savesWhatItMay_data()
    {
        const int open = kOpenFolder;
        const int closed = kClosedFolder;
        const Disk good;
        const Disk full{.room = 600};
        const Disk unflushed{.syncs = true};
        DataTable<int, int, int, int, Disk, Outcome>(
            {"folderRights", "fileRights", "old", "now", "disk", "outcome"})
            .row("over an old file", open, 0666, 9, 5, good, Saved)
            .row("over an empty file", open, 0666, 0, 5, good, Saved)
            .row("closed folder, longer", closed, 0666, 5, 9, good, Saved)
            .row("closed folder, shorter", closed, 0666, 9, 5, good, Saved)
            .row("closed folder, empty file", closed, 0666, 0, 5, good, Saved)
            .row("closed folder, closed file", closed, 0444, 9, 5, good, Kept)
            .row("closed file", open, 0444, 9, 5, good, Kept)
            .row("closed empty file", open, 0444, 0, 5, good, Kept)
            .row("disk full", open, 0666, 9, 50, full, Kept)
            .row("disk full, both too long", open, 0666, 90, 50, full, Kept)
            .row("disk full, closed folder", closed, 0666, 9, 50, full, Kept)
            .row("disk full, closed folder, empty file", closed, 0666, 0, 50, full, Kept)
            .row("disk full, closed folder, both too long", closed, 0666, 90, 50, full, Kept)
            .row("no flush", open, 0666, 20, 5, unflushed, Kept)
            .row("in place, no flush, nor on the way back", closed, 0666, 20, 5, unflushed, Lost)
            .row("in place, half of the new one", closed, 0666, 20, 5, {.writes = "hx"}, Kept)
            .row("in place, half of the reserve", closed, 0666, 20, 50, {.writes = "hX"}, Kept)
            .row("in place, no way back", closed, 0666, 20, 5, {.writes = "hX"}, Lost)
            .row("in place, the end stays", closed, 0666, 20, 5, {.truncations = true}, Kept)
            .row("in place, the reserve stays", closed, 0666, 20, 50, {.writes = "hX", .truncations = true},
                 Kept);
    }
    void savesWhatItMay()
    {
        QFETCH(int, folderRights);
        QFETCH(int, fileRights);
        QFETCH(int, old);
        QFETCH(int, now);
        QFETCH(Disk, disk);
        QFETCH(Outcome, outcome);
        prepare(old, static_cast<mode_t>(folderRights), static_cast<mode_t>(fileRights));
        QCOMPARE(saveAsNobody([&] { return saveWith(path_, now); }, disk), outcome);
        QByteArray found = content();
        QByteArray whole = documentWith(outcome == Saved ? now : old);
        if (*disk.writes || disk.truncations) { // blanks may be left behind the end
            found = found.trimmed();
            whole = whole.trimmed();
        }
        QVERIFY2(outcome == Lost || found == whole, found.constData());
        QCOMPARE(strays(), QStringList());
    }

    // Every kind of file, over a longer and a shorter one of which nothing is left.
    void savesOtherFilesInPlace_data()
    {
        using vlk::TelemetryForm;
        const auto telemetry = [](TelemetryForm form) {
            return [form](const QString& path) {
                vlk::RecordStore records;
                records.add(30, {}, {});
                return saveTelemetryFile(path, form, records, {});
            };
        };
        DataTable<Save>({"save"})
            .row("calibration", [](const QString& path) { return vlk::saveFuelFile(path, "1;2\r\n"); })
            .row("telemetry", telemetry(TelemetryForm::Xml))
            .row("telemetry for a server", telemetry(TelemetryForm::Binary))
            .row("telemetry as a table", telemetry(TelemetryForm::Csv));
    }
    void savesOtherFilesInPlace()
    {
        QFETCH(Save, save);
        prepare(0);
        QVERIFY(save(path_));
        const QByteArray expected = content();
        QVERIFY(!expected.isEmpty());
        for (const int old : {1, 3000}) {
            prepare(old, kClosedFolder);
            QCOMPARE(saveAsNobody([&] { return save(path_); }), Saved);
            QCOMPARE(content(), expected);
        }
    }

    void survivesAKill_data()
    {
        DataTable<int, int>({"folderRights", "old"})
            .row("over an old file", int(kOpenFolder), 9)
            .row("over an empty file", int(kOpenFolder), 0)
            .row("in place, longer", int(kClosedFolder), 9)
            .row("in place, shorter", int(kClosedFolder), 40)
            .row("in place, empty file", int(kClosedFolder), 0);
    }
    // The process is killed before its first call of the system, after its first, after its second...
    void survivesAKill()
    {
        QFETCH(int, folderRights);
        QFETCH(int, old);
        const int now = 20;
        const auto isWhole = [](const QByteArray& found, int groups) {
            return found.trimmed() == documentWith(groups).trimmed();
        };
        int kills = 0;
        int keptOld = 0;
        bool finished = false;
        for (; !finished; ++kills) {
            prepare(old, static_cast<mode_t>(folderRights));
            const pid_t child = fork();
            if (child == 0) {
                becomeNobody();
                if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
                    _exit(2);
                raise(SIGSTOP);
                saveWith(path_, now);
                _exit(0);
            }
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QVERIFY2(WIFSTOPPED(status), "the system does not let a process be traced");
            for (int step = 0; step < 2 * kills && WIFSTOPPED(status); ++step) {
                QCOMPARE(ptrace(PTRACE_SYSCALL, child, nullptr, nullptr), 0L);
                QCOMPARE(waitpid(child, &status, 0), child);
            }
            finished = WIFEXITED(status);
            if (!finished) {
                kill(child, SIGKILL);
                waitpid(child, &status, 0);
            }
            const QByteArray found = content();
            const bool isOld = isWhole(found, old) || (old == 0 && found == "no file");
            keptOld += isOld ? 1 : 0;
            QVERIFY2(isOld || isWhole(found, now), found.constData());
            // Only between taking its name beside the old file and taking the old file's name can the new one
            // be seen, and then it is whole.
            const QStringList left = strays();
            QVERIFY(left.isEmpty() || (folderRights == kOpenFolder && isOld));
            for (const QString& name : left)
                QCOMPARE(content(name), documentWith(now));
            QVERIFY(saveWith(path_, now));
            QCOMPARE(strays(), QStringList());
        }
        QCOMPARE(content(), documentWith(now));
        QVERIFY(keptOld > 0 && kills > keptOld);
    }

    void keepsLinkAndRights()
    {
        prepare(3, kOpenFolder, 0640);
        const QString link = folder_->filePath("link.xml");
        QVERIFY(QFile::link("file.xml", link));
        saveWith(link, 5);
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(content(), documentWith(5));
        struct stat info;
        QCOMPARE(stat(qPrintable(path_), &info), 0);
        QCOMPARE(info.st_mode & 0777U, 0640U);
    }

    void leavesFoldersAlone()
    {
        prepare(3);
        QVERIFY(!saveWith(folder_->path(), 5));
        QVERIFY(!saveWith(folder_->filePath("missing/file.xml"), 5));
        QCOMPARE(content(), documentWith(3));
        QCOMPARE(QDir(folder_->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList("file.xml"));
    }
};

} // namespace

QTEST_APPLESS_MAIN(TestSaving)
#include "tst_saving.moc"
