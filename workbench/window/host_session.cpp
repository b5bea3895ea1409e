#include "window/host_session.h"

#include "base/whole_file.h"
#include "road/chosen_settings.h"
#include "tracker/bluetooth_search.h"
#include "typing/file_error.h"
#include "window/languages.h"
#include "window/trouble_text.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

namespace workbench {

Q_LOGGING_CATEGORY(lcSession, "vlk.workbench.session")

namespace {

using tracker::Reading;

// Nothing came, and why; empty when something did.
QString whyNothingCame(Reading::Outcome outcome)
{
    switch (outcome) {
    case Reading::Outcome::Came:
        return {};
    case Reading::Outcome::Detached:
        return sentences({text("wb_why_detached"), text("wb_do_attach")});
    case Reading::Outcome::Unplugged:
        return sentences({text("wb_why_unplugged"), text("wb_do_attach")});
    case Reading::Outcome::Silent:
        return sentences({text("wb_why_silent"), text("wb_do_cable")});
    }
    return {};
}

// One byte more than there may be, by which a file that is too large is known.
QByteArray contentOf(QFile& file)
{
    return file.open(QIODevice::ReadOnly) ? file.read(kLargestConfiguration + 1) : QByteArray();
}

void removeKept(const QString& path)
{
    if (!path.isEmpty() && QFile::exists(path) && !QFile::remove(path))
        qCWarning(lcSession) << "cannot remove" << path;
}

} // namespace

HostSession::HostSession(const QString& trackerFolder, const QString& backupsFolder, QObject* parent)
    : QObject(parent), tracker_(trackerFolder),
      unwritten_(QFileInfo(backupsFolder).dir().filePath(QStringLiteral("unwritten"))),
      backups_(backupsFolder), road_(
                                   port_, backups_,
                                   [this](const QByteArray& before, const QByteArray& after) {
                                       return comparer_.compareWritten(before, after);
                                   },
                                   [this](const QByteArray& document) { return comparer_.advise(document); })
{
    unwritten_.dropOld(QDateTime::currentDateTimeUtc());
    tracker_.setSender([this](vlk::Message id, void* p1, void* p2) { deliver(id, p1, p2); });
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, &HostSession::tellAttached);
    connect(&link_, &PluginLink::received, this, &HostSession::receive);
    connect(&road_, &WriteRoad::ended, this, &HostSession::finish);
    connect(&road_, &WriteRoad::settled, this, &HostSession::followSettled);
}

HostSession::~HostSession() = default;

bool HostSession::start(const QString& pluginPath)
{
    if (!link_.load(pluginPath))
        return false;
    if (tracker_.attached())
        tellAttached(true);
    return true;
}

void HostSession::tellAttached(bool attached)
{
    if (attached) {
        link_.attachTracker(tracker_.model(), tracker_.text1(), tracker_.text2(), tracker_.capabilityMask());
        return;
    }
    edited_.forgetTracker();
    // A search has no end without an answer.
    char stopped = tracker::kSearchStopped;
    if (std::exchange(isSearching_, false))
        link_.send(vlk::Message::BtSearchStopped, &stopped);
    link_.send(vlk::Message::TrackerDetached);
    Q_EMIT editedChanged();
}

HostSession::Fetched HostSession::fetchConfiguration()
{
    const Reading reading = tracker_.readConfiguration();
    if (reading.outcome != Reading::Outcome::Came)
        return {[outcome = reading.outcome] { return whyNothingCame(outcome); }, {}, {}};
    if (const auto problem = checkConfiguration(reading.document, tracker_.model()))
        return {[problem] {
                    return sentences({text("wb_why_answer"), reasonOf(*problem), text("wb_do_cable")});
                },
                {},
                {}};
    road_.tellRead(reading.document);
    QSaveFile file(readFiles_.filePath(QStringLiteral("tracker.xml")));
    QString reason;
    if (!vlk::saveWhole(file, reading.document, &reason))
        return {
            [reason] {
                return sentences({text("wb_why_disk").arg(vlk::fileErrorText(reason)), adviceOnDisk(reason)});
            },
            {},
            {}};
    return {{}, reading.document, file.fileName()};
}

Sentence HostSession::readConfiguration(bool full)
{
    const Fetched fetched = fetchConfiguration();
    if (fetched.failure)
        return [why = fetched.failure] { return sentences({text("wb_read_failed"), why()}); };
    ++opened_;
    edited_.readFromTracker(fetched.document, tracker_.text2());
    link_.openConfiguration(fetched.path, full, false);
    QFile::remove(fetched.path);
    Q_EMIT editedChanged();
    return {};
}

Sentence HostSession::liveTelemetry()
{
    const Fetched fetched = fetchConfiguration();
    if (fetched.failure)
        return [why = fetched.failure] { return sentences({text("wb_live_failed"), why()}); };
    link_.openTelemetry(fetched.path);
    QFile::remove(fetched.path);
    return {};
}

Sentence HostSession::readFile(const QString& path, QByteArray* document) const
{
    QFile file(path);
    *document = contentOf(file);
    const auto problem = checkConfiguration(*document, tracker_.model());
    if (!problem)
        return {};
    return [path, problem, error = file.isOpen() ? QString() : file.errorString()] {
        return sentences({text("wb_open_failed").arg(path),
                          error.isEmpty() ? reasonOf(*problem) : text("wb_problem_unreadable").arg(error),
                          text("wb_do_file")});
    };
}

Sentence HostSession::whyNotOpened(const QString& path) const
{
    QByteArray document;
    return readFile(path, &document);
}

Sentence HostSession::openConfiguration(const QString& path, bool full)
{
    QByteArray document;
    if (Sentence failure = readFile(path, &document))
        return failure;
    ++opened_;
    edited_.openFile(path, document, comparer_.unknownKeys(document));
    link_.openConfiguration(path, full, true);
    Q_EMIT editedChanged();
    return {};
}

void HostSession::newConfiguration(bool full)
{
    ++opened_;
    edited_.beginNew();
    link_.openConfiguration({}, full, false);
    Q_EMIT editedChanged();
}

void HostSession::configurationClosed()
{
    edited_.close();
    Q_EMIT editedChanged();
}

void HostSession::receive(vlk::Message id, void* p1, void* p2)
{
    if (id == vlk::Message::ShowHelp) {
        if (p2)
            Q_EMIT helpRequested(*static_cast<const QString*>(p2));
    } else if (id == vlk::Message::WriteConfiguration) {
        if (p1)
            takeWritten(*static_cast<const QString*>(p1));
    } else if (!commands_.take(id, p1) && !requests_.send(id, p1, p2)) {
        qCInfo(lcSession) << "message without a receiver" << static_cast<quint32>(id);
    }
    followSearch(id, nullptr);
}

void HostSession::deliver(vlk::Message id, void* p1, void* p2)
{
    if (!requests_.takesAnswer(id, p1))
        return;
    followSearch(id, p1);
    commands_.handOver(id, p1, p2);
}

void HostSession::followSearch(vlk::Message id, const void* p1)
{
    if (id == vlk::Message::StartBtSearch)
        isSearching_ = true;
    else if (id == vlk::Message::BtSearchStopped)
        isSearching_ = false;
    else if (id == vlk::Message::BtSearchEvent && p1)
        isSearching_ = *static_cast<const char*>(p1) == tracker::kSearchRuns;
}

// It is taken now: the next one may have its name.
void HostSession::takeWritten(const QString& path)
{
    using Origin = WriteRequest::Origin;
    QFile file(path);
    WriteRequest request;
    request.origin = edited_.isNew()            ? Origin::Fresh
                     : edited_.file().isEmpty() ? Origin::Tracker
                                                : Origin::File;
    request.document = contentOf(file);
    request.name = edited_.file();
    request.readFrom = edited_.seenIn();
    if (edited_.isOffered() && link_.hasTakenOver())
        edited_.tookOver();
    request.known = edited_.known();
    request.broughtBack = edited_.broughtBack();
    const QString error = file.isOpen() ? QString() : file.errorString();
    file.close();
    const UnwrittenFiles::Taken taken =
        error.isEmpty() ? unwritten_.take(path, request.document, QDateTime::currentDateTime())
                        : UnwrittenFiles::Taken{path};
    request.file = taken.file;
    request.lost = edited_.unknown();
    request.typed = typed_ ? typed_() : QStringList();
    // The plug-in is in the middle of its own work here; what is to be done with it comes after that.
    QMetaObject::invokeMethod(
        this,
        [this, request, opened = opened_, error, wasThere = taken.wasThere] {
            if (error.isEmpty())
                begin(request, opened, wasThere);
            else
                road_.reject(request, RoadReport::Fault::Unsaved,
                             request.file + QStringLiteral(": ") + error);
        },
        Qt::QueuedConnection);
}

void HostSession::begin(const WriteRequest& request, int opened, bool isAgain)
{
    if (road_.begin(request)) {
        openedThen_ = opened;
        isAgain_ = isAgain;
        return;
    }
    if (!isAgain)
        removeKept(request.file);
    Q_EMIT writeRefused();
}

void HostSession::finish(const RoadReport& report)
{
    using Outcome = RoadReport::Outcome;
    const WriteRequest& request = report.request;
    const bool isConfirmed = report.outcome == Outcome::Confirmed;
    // What is given up at its first try is in the window still; later the file may be all that is left.
    const bool isGivenUp = report.outcome == Outcome::Cancelled && !isAgain_;
    const bool isOfOpen = !request.file.isEmpty() && openedThen_ == opened_;
    if (isConfirmed) {
        if (isOfOpen)
            edited_.written(request.document, report.tracker.number, report.readBack);
        else
            edited_.trackerHolds(request.document);
        dropWritten(request);
    } else if (isOfOpen && !report.readBack.isEmpty()) {
        edited_.writtenInPart(report.tracker.number, report.readBack);
    }
    if (!report.readBack.isEmpty() && !(isConfirmed && isOfOpen) &&
        edited_.seenIn() == report.tracker.number) {
        link_.tellHeld(report.readBack);
        edited_.offered(report.readBack, request.isBringBack());
    }
    if (isGivenUp)
        removeKept(request.file);
    Q_EMIT editedChanged();
}

void HostSession::followSettled(const RoadReport& report)
{
    if (report.outcome != RoadReport::Outcome::Confirmed)
        return;
    edited_.trackerHolds(report.request.document);
    dropWritten(report.request);
    Q_EMIT editedChanged();
}

void HostSession::dropWritten(const WriteRequest& request)
{
    // The plug-in keeps the edits of a window, be it open no longer, until it is told.
    if (!request.file.isEmpty())
        link_.confirmWrite(request.document);
    removeKept(request.file);
    unwritten_.drop(request.document);
}

std::optional<QByteArray> HostSession::present(Sentence& why)
{
    const Fetched fetched = fetchConfiguration();
    QFile::remove(fetched.path);
    why = fetched.failure;
    return fetched.failure ? std::nullopt : std::optional(fetched.document);
}

Sentence HostSession::writeAgain(const WriteRequest& request)
{
    if (road_.isBusy())
        return [] { return text("wb_write_busy"); };
    begin(request, openedThen_, true);
    return {};
}

Sentence HostSession::bringBack(int backup, const QStringList& paths)
{
    if (!damageOf(backups_, backup, tracker_.model()).isEmpty())
        return [this, backup] {
            return sentences({damageOf(backups_, backup, tracker_.model()), text("wb_back_choose")});
        };
    const auto kept = backups_.find(backup);
    WriteRequest request;
    request.origin = WriteRequest::Origin::Backup;
    request.document = backups_.document(backup);
    request.name = QString::number(backup);
    request.readFrom = kept ? kept->tracker : QString();
    if (!paths.isEmpty()) {
        const Fetched fetched = fetchConfiguration();
        if (fetched.failure)
            return [why = fetched.failure] { return sentences({text("wb_back_failed"), why()}); };
        QFile::remove(fetched.path);
        request.readFrom = tracker_.text2();
        request.chosen = paths;
        // Keys that the plug-in does not know are brought as they stand.
        const QByteArray brought = comparer_.bring(fetched.document, request.document, paths);
        request.document = withChosen(brought, request.document, paths);
    }
    return writeAgain(request);
}

Sentence HostSession::bringBackPrevious()
{
    WriteRequest request;
    request.origin = WriteRequest::Origin::Previous;
    return writeAgain(request);
}

void HostSession::keepFor(int days)
{
    backups_.keepFor(days, QDateTime::currentDateTimeUtc());
}

void HostSession::writeNotSaved(const QString& path, const QString& reason)
{
    road_.reject({}, RoadReport::Fault::Unsaved, QStringLiteral("%1: %2").arg(path, reason));
}

} // namespace workbench
