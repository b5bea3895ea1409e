#include "window/link_notices.h"

#include "tracker/bluetooth_search.h"
#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_box.h"
#include "window/message_log_model.h"
#include "window/plugin_log.h"
#include "window/plugin_windows.h"
#include "window/request_table.h"
#include "window/trouble_text.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

constexpr int kReasonMs = 300;

// What comes because the user has pressed something since, and not by the save or the requests that run.
constexpr vlk::Message kAnswersToAPress[] = {vlk::Message::LiveKey, vlk::Message::RfidNumber,
                                             vlk::Message::TachographAnswer};

} // namespace

LinkNotices::LinkNotices(const PluginLog& pluginLog, HostSession& session, PluginWindows& windows,
                         MessageLogModel& log, StatusLine& status, QWidget* mainWindow)
    : session_(session), windows_(windows), log_(log), status_(status), mainWindow_(mainWindow),
      watch_(session.link()), front_(session.link(), windows)
{
    using tracker::SimulatedTracker;
    connect(&session_.link(), &PluginLink::passed, this,
            [this](vlk::Direction direction, quint32 id, const void* p1) { look(direction, id, p1); });
    // Since when it waits is told by the road's own windows too.
    connect(&session_.road(), &WriteRoad::waits, &watch_, [this](const QDateTime& since) {
        watch_.forget();
        watch_.begin(vlk::Message::WriteConfiguration, since);
    });
    connect(&session_.road(), &WriteRoad::reviewReady, &watch_, &AnswerWatch::forget);
    connect(&session_.road(), &WriteRoad::ended, &watch_, &AnswerWatch::forget);
    connect(&watch_, &AnswerWatch::silent, this, [this](const QDateTime& since, vlk::Message request) {
        front_.recall(FrontNotice::Trouble);
        setTrouble([this, since, request] { return silence(since, request); });
    });
    connect(&watch_, &AnswerWatch::over, this, [this] { setTrouble({}); });
    connect(&pluginLog, &PluginLog::warned, this,
            [this](PluginLog::Topic topic) { isPartSaved_ |= topic == PluginLog::Topic::SavedInPart; });
    connect(&session_.tracker(), &SimulatedTracker::pulled, this, [this] { isPulled_ = true; });
    connect(&session_.tracker(), &SimulatedTracker::attachedChanged, this, [this] {
        watch_.forget();
        setTrouble({});
    });
    // With the last window goes what was waited for, with each one what it showed.
    connect(&windows_, &PluginWindows::closed, this, [this] {
        if (windows_.open().isEmpty() && !PluginWindows::calibration()) {
            watch_.forget();
            session_.requests().forget();
        }
        if (!watch_.isSilent())
            setTrouble({});
    });
    reason_.setInterval(kReasonMs);
    connect(&reason_, &QTimer::timeout, this, [this] {
        if (reasonHolds_())
            return;
        endReason();
        front_.tell(FrontNotice::Result, {});
    });
    connectRequests();
    QCoreApplication::instance()->installEventFilter(this);
}

// No message tells that a save was cancelled, so it is looked for where the user has pressed something.
bool LinkNotices::eventFilter(QObject* object, QEvent* event)
{
    const bool isPressed = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease;
    const auto* widget = qobject_cast<QWidget*>(object);
    if (isPressed && isSaving_ && !isCancelled_ && widget && widget->window() == front_.telemetry())
        QMetaObject::invokeMethod(this, &LinkNotices::lookForCancel, Qt::QueuedConnection);
    return false;
}

void LinkNotices::lookForCancel()
{
    if (isSaving_ && !isCancelled_ && session_.link().runningWork().cancelled != 0)
        setTrouble(trouble_);
}

void LinkNotices::connectRequests()
{
    const auto log = [this](const char* key, vlk::Message message) {
        log_.appendWarning(QStringLiteral("vlk.workbench.link"),
                           text(key).arg(static_cast<quint32>(message)));
    };
    const RepeatedRequests* requests = &session_.requests();
    connect(requests, &RepeatedRequests::sentAgain, this, [this, log](vlk::Message request) {
        log("wb_asked_again", request);
        // Meanwhile it may have been cancelled.
        if (isSaving_)
            setTrouble(trouble_);
    });
    connect(requests, &RepeatedRequests::dropped, this,
            [log](vlk::Message answer) { log("wb_answer_dropped", answer); });
    connect(requests, &RepeatedRequests::refused, this,
            [this](vlk::Message answer, const AnswerProblem& problem, std::optional<vlk::Message> request) {
                log_.appendWarning(
                    QStringLiteral("vlk.workbench.link"),
                    text("wb_answer_refused").arg(static_cast<quint32>(answer)).arg(noteOn(problem)));
                if (request)
                    tellRefused(answer, problem, *request);
            });
    const TrackerCommands* commands = &session_.commands();
    connect(commands, &TrackerCommands::sent, &watch_,
            [this](vlk::Message request) { watch_.begin(request); });
    connect(commands, &TrackerCommands::done, this,
            [this](const Sentence& sentence) { tellOfCommand(sentence, true); });
    connect(commands, &TrackerCommands::failed, this,
            [this](const Sentence& sentence) { tellOfCommand(sentence, false); });
    connect(commands, &TrackerCommands::refused, this, &LinkNotices::tellNotSent);
}

void LinkNotices::tellNotSent(const Sentence& sentence, const std::function<bool()>& holds)
{
    tellResult(StatusLine::Refused, sentence, false, front_.telemetry());
    if (trouble_)
        front_.letResultGo();
    reasonHolds_ = holds;
    reason_.start();
}

void LinkNotices::endReason()
{
    reason_.stop();
    status_.clear(StatusLine::Refused);
}

void LinkNotices::tellResult(StatusLine::Topic topic, const Sentence& sentence, bool isNews, QWidget* window)
{
    endReason();
    status_.tell(topic, sentence);
    const auto notice = [sentence, mark = isNews ? vlk::Mark::Changed : vlk::Mark::Advice] {
        return vlk::Notice{mark, sentence(), {}};
    };
    if (isNews)
        front_.tellNews(notice, window);
    else
        front_.tell(FrontNotice::Result, notice, window);
}

void LinkNotices::look(vlk::Direction direction, quint32 id, const void* p1)
{
    const auto answer = static_cast<vlk::Message>(id);
    if (direction == vlk::Direction::ToPlugin && answer == vlk::Message::TrackerDetached)
        tellDetached(std::exchange(isPulled_, false));
    const bool isOfSearch = answer == vlk::Message::BtSearchEvent || answer == vlk::Message::BtSearchStopped;
    if (isOfSearch && p1 && tracker::isSearchState(*static_cast<const char*>(p1)))
        setTrouble({});
    else if (isOfSearch)
        setTrouble([id] { return text("wb_search_bad").arg(id); });
    if (direction != vlk::Direction::ToPlugin)
        return;
    if (answer == refused_) {
        refused_ = {};
        setTrouble({});
    }
    // Why an earlier command was not sent would look as if it were said of this one.
    if (reason_.isActive() && std::ranges::find(kAnswersToAPress, answer) != std::end(kAnswersToAPress)) {
        endReason();
        front_.tell(FrontNotice::Result, {});
    }
    if (!RecordCheck::carriesRecord(answer) || !p1)
        return;
    const QByteArray& bytes = *static_cast<const QByteArray*>(p1);
    const auto problem = session_.requests().problem();
    if (!problem) {
        // The window of telemetry stays empty for these, as if nothing had come.
        const int version = RecordCheck::versionOf(answer, bytes);
        if (version == 10 || version == 20)
            setTrouble([version] {
                return text("wb_record_version").arg(QStringLiteral("ZETA %1.0").arg(version / 10));
            });
        else
            setTrouble({});
        return;
    }
    log_.markNewest(noteOn(*problem));
    setTrouble([problem, id] { return text("wb_answer_bad").arg(id).arg(noteOn(*problem)); });
}

// It shows that the tracker is there, and the wait for the next one begins.
void LinkNotices::tellRefused(vlk::Message answer, const AnswerProblem& problem, vlk::Message request)
{
    watch_.forget();
    watch_.begin(request);
    refused_ = answer;
    setTrouble([this, problem, id = static_cast<quint32>(answer)] {
        const char* key = isSaving_ ? "wb_answer_again_save" : "wb_answer_again";
        return text(isCancelled_ ? "wb_answer_again_cancelled" : key).arg(id).arg(noteOn(problem));
    });
}

void LinkNotices::setTrouble(const Sentence& trouble)
{
    trouble_ = trouble;
    const vlk::RunningWork running = trouble_ ? session_.link().runningWork() : vlk::RunningWork();
    isSaving_ = running.saving != 0;
    isCancelled_ = running.cancelled != 0;
    if (trouble_)
        status_.tell(StatusLine::Link, trouble_);
    else
        status_.clear(StatusLine::Link);
    if (trouble_)
        front_.tell(FrontNotice::Trouble, [this] { return troubleNotice(); });
    else
        front_.tell(FrontNotice::Trouble, {});
    Q_EMIT troubleChanged();
}

QString LinkNotices::silence(const QDateTime& since, vlk::Message request)
{
    if (request == vlk::Message::WriteConfiguration)
        return text("wb_silence_write").arg(timeOfDay(since));
    if (!hasEffect(request, Effect::Reads))
        return text(hasEffect(request, Effect::MayBeMute) ? "wb_silence_mute" : "wb_silence_command")
            .arg(timeOfDay(since));
    const char* key = isCancelled_ ? "wb_silence_cancelled"
                      : isSaving_  ? "wb_silence_save"
                                   : "wb_silence_again";
    const qint64 seconds = AnswerWatch::kPatienceMs / 1000;
    return text(key).arg(timeOfDay(since), number(seconds));
}

vlk::Notice LinkNotices::troubleNotice()
{
    vlk::Notice notice{vlk::Mark::Advice, trouble_(), {}};
    if (isSaving_) {
        notice.actions.push_back({text("wb_end_save"), [this] { endSave(); }});
        notice.mayClose = false;
    }
    return notice;
}

void LinkNotices::endSave()
{
    const vlk::EndedSave save = session_.link().endSave();
    if (!save.ended) {
        setTrouble(trouble_); // without the offer
        return;
    }
    endWait();
    // The plug-in tells of a file with a part of the period.
    if (save.records == 0)
        tellOfCommand([] { return text("wb_save_ended"); }, false);
}

void LinkNotices::endWait()
{
    session_.requests().forget();
    watch_.forget();
    setTrouble({});
}

void LinkNotices::saveEnded()
{
    if (!std::exchange(isSaving_, false))
        return;
    // What ended without an answer waits for none.
    if (isCancelled_ || watch_.isSilent())
        endWait();
    else
        setTrouble(trouble_);
}

void LinkNotices::tellDetached(bool isPulled)
{
    // The plug-in has not heard of it yet; it closes its window and ends a save within the message.
    isPartSaved_ = false;
    const QVector<QWidget*> before = windows_.open();
    QMetaObject::invokeMethod(
        this,
        [this, before, isPulled] {
            const QVector<QWidget*> after = windows_.open();
            const bool isClosed = before.size() != after.size();
            const char* key = nullptr;
            if (isPulled)
                key = isClosed          ? "wb_unplugged_telemetry"
                      : after.isEmpty() ? "wb_unplugged"
                                        : "wb_unplugged_open";
            else if (isClosed)
                key = "wb_detached_telemetry";
            if (!key || isPartSaved_)
                return;
            if (isPulled)
                showWarning(text(key), mainWindow_);
            status_.tell(StatusLine::Command, [key] { return text(key); });
        },
        Qt::QueuedConnection);
}

} // namespace workbench
