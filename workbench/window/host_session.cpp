#include "window/host_session.h"

#include "base/whole_file.h"
#include "tracker/bluetooth_search.h"
#include "window/languages.h"
#include "window/trouble_text.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTimer>

#include <algorithm>

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
    return file.open(QIODevice::ReadOnly) ? file.read(largestConfiguration + 1) : QByteArray();
}

} // namespace

HostSession::HostSession(const QString& trackerFolder, QObject* parent)
    : QObject(parent), tracker_(trackerFolder)
{
    tracker_.setSender([this](vlk::Message id, void* p1, void* p2) { deliver(id, p1, p2); });
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, &HostSession::tellAttached);
    connect(&link_, &PluginLink::received, this, &HostSession::receive);
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
    char stopped = tracker::searchStopped;
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
    QSaveFile file(readFiles_.filePath(QStringLiteral("tracker.xml")));
    QString reason;
    if (!vlk::saveWhole(file, reading.document, &reason))
        return {[reason] {
                    return sentences({text("wb_why_disk").arg(reason), text("wb_do_disk")});
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
    edited_.readFromTracker(fetched.document);
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
    if (const Sentence failure = readFile(path, &document))
        return failure;
    ++opened_;
    edited_.openFile(path, document);
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
        // The plug-in is in the middle of its own work here; the tracker takes the file when that is done.
        if (p1)
            QMetaObject::invokeMethod(
                this,
                [this, write = Write{*static_cast<const QString*>(p1), opened_, edited_.replacesUnseen(),
                                     edited_.file()}] { handOver(write); },
                Qt::QueuedConnection);
    } else if (!commands_.take(id, p1) && !requests_.send(id, p1, p2)) {
        qCInfo(lcSession) << "message without a receiver" << quint32(id);
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
    else if (id == vlk::Message::BtSearchEvent && p1 != nullptr)
        isSearching_ = *static_cast<const char*>(p1) == tracker::searchRuns;
}

void HostSession::handOver(const Write& write)
{
    if (write.isUnseen && mayReplace_ && !mayReplace_(write.file)) {
        QFile::remove(write.path);
        Q_EMIT writeCancelled();
        return;
    }
    // The plug-in names its files by the minute: a second one may have taken the place of the first.
    std::erase_if(writes_, [&write](const Write& other) { return other.path == write.path; });
    writes_.push_back(write);
    Q_EMIT writeBegan();
    // The answer to a write is as late as any other.
    QTimer::singleShot(qMax(0, tracker_.faults().delayMs), this, [this, path = write.path] { finish(path); });
}

bool HostSession::finishWrites()
{
    bool areAccepted = true;
    while (!writes_.empty())
        areAccepted &= finish(QString(writes_.front().path));
    return areAccepted;
}

bool HostSession::finish(const QString& path)
{
    const auto write = std::find_if(writes_.cbegin(), writes_.cend(),
                                    [&path](const Write& other) { return other.path == path; });
    if (write == writes_.cend())
        return true;
    const bool isOpen = write->opened == opened_;
    writes_.erase(write);
    const tracker::WriteReport report = tracker_.writeConfiguration(path);
    if (report.accepted) {
        isOpen ? edited_.written(report.document) : edited_.trackerHolds(report.document);
        if (!QFile::remove(path))
            qCWarning(lcSession) << "cannot remove" << path;
    }
    Q_EMIT writeEnded(report);
    Q_EMIT editedChanged();
    return report.accepted;
}

void HostSession::writeNotSaved(const QString& path, const QString& reason)
{
    tracker::WriteReport report;
    report.reasonKey = QStringLiteral("wb_refused_unsaved");
    report.detail = QStringLiteral("%1: %2").arg(path, reason);
    Q_EMIT writeEnded(report);
}

} // namespace workbench
