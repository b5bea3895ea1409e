#include "window/link_notices.h"

#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_box.h"
#include "window/message_log_model.h"
#include "window/plugin_windows.h"
#include "window/status_line.h"
#include "window/trouble_text.h"

namespace vlk {

LinkNotices::LinkNotices(HostSession& session, PluginWindows& windows, MessageLogModel& log,
                         StatusLine& status, QWidget* mainWindow)
    : session_(session), windows_(windows), log_(log), status_(status), mainWindow_(mainWindow),
      watch_(session.link())
{
    using tracker::SimulatedTracker;
    connect(&session_.link(), &PluginLink::passed, this,
            [this](vlk::Direction direction, quint32 id, const void* p1) { look(direction, id, p1); });
    connect(&session_, &HostSession::writeBegan, &watch_, &AnswerWatch::begin);
    connect(&session_, &HostSession::configurationWritten, &watch_, &AnswerWatch::forget);
    connect(&watch_, &AnswerWatch::silent, this, [this](const QDateTime& since) {
        setTrouble([since] { return vlk::text("wb_silence").arg(vlk::timeOfDay(since)); });
    });
    connect(&watch_, &AnswerWatch::over, this, [this] { setTrouble({}); });
    connect(&session_.tracker(), &SimulatedTracker::pulled, this, [this] { isPulled_ = true; });
    connect(&session_.tracker(), &SimulatedTracker::attachedChanged, this, [this] {
        check_.forget();
        watch_.forget();
        setTrouble({});
    });
    connect(&windows_, &PluginWindows::opened, this, [this](QWidget* window) {
        if (std::exchange(isOpeningTelemetry_, false))
            telemetry_ = window;
    });
    // With the window goes what it was waiting for and what it showed.
    connect(&windows_, &PluginWindows::closed, this, [this] {
        watch_.forget();
        setTrouble({});
    });
}

LinkNotices::~LinkNotices()
{
    // The windows of the plug-in live on.
    delete notice_;
}

void LinkNotices::look(vlk::Direction direction, quint32 id, const void* p1)
{
    const auto answer = static_cast<vlk::Message>(id);
    if (answer == vlk::Message::RequestRecordOfPeriod)
        damagedOfPeriod_ = 0;
    if (direction == vlk::Direction::ToPlugin && answer == vlk::Message::OpenTelemetry)
        noteTelemetry();
    if (direction == vlk::Direction::ToPlugin && answer == vlk::Message::TrackerDetached)
        tellDetached(std::exchange(isPulled_, false));
    if (direction != vlk::Direction::ToPlugin || !vlk::RecordCheck::carriesRecord(answer) || p1 == nullptr)
        return;
    const QByteArray& bytes = *static_cast<const QByteArray*>(p1);
    const auto problem = check_.look(answer, bytes);
    if (!problem) {
        // The window of telemetry stays empty for these, as if nothing had come.
        const int version = vlk::RecordCheck::versionOf(answer, bytes);
        if (version == 10 || version == 20)
            setTrouble([version] {
                return vlk::text("wb_record_version").arg(QStringLiteral("ZETA %1.0").arg(version / 10));
            });
        else
            setTrouble({});
        return;
    }
    if (damagedOfPeriod_)
        ++*damagedOfPeriod_;
    log_.markNewest(vlk::noteOn(*problem));
    setTrouble([problem, id] { return vlk::text("wb_answer_bad").arg(id).arg(vlk::noteOn(*problem)); });
}

void LinkNotices::setTrouble(const std::function<QString()>& trouble)
{
    trouble_ = trouble;
    if (trouble_)
        status_.tell(StatusLine::Link, trouble_);
    else
        status_.clear(StatusLine::Link);
    showOnWindow();
    Q_EMIT troubleChanged();
}

// On the window that is looked at: a configuration's is in front of all others.
void LinkNotices::showOnWindow()
{
    QWidget* owner = windows_.modal() ? windows_.modal() : telemetry_.data();
    if (notice_ && (!trouble_ || notice_->parentWidget() != owner))
        notice_->say({});
    if (!trouble_ || !owner || !owner->isVisible())
        return;
    if (!notice_ || notice_->parentWidget() != owner) {
        delete notice_;
        notice_ = new WindowNotice(owner);
    }
    notice_->say(trouble_);
}

// The plug-in opens its window within the message, unless it is open.
void LinkNotices::noteTelemetry()
{
    isOpeningTelemetry_ = true;
    QMetaObject::invokeMethod(
        this, [this] { isOpeningTelemetry_ = false; }, Qt::QueuedConnection);
}

void LinkNotices::tellDetached(bool isPulled)
{
    // The plug-in has not heard of it yet and closes its window within the message.
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
            if (!key)
                return;
            if (isPulled)
                vlk::showWarning(vlk::text(key), mainWindow_);
            status_.tell(StatusLine::Command, [key] { return vlk::text(key); });
        },
        Qt::QueuedConnection);
}

} // namespace vlk
