#include "window/live_readings.h"

#include "window/answer_watch.h"
#include "window/host_session.h"
#include "window/languages.h"
#include "window/message_log_model.h"
#include "window/plugin_windows.h"

namespace vlk {

LiveReadings::LiveReadings(HostSession& session, MessageLogModel& log) : session_(session), log_(log)
{
    patience_.setInterval(AnswerWatch::patienceMs);
    connect(&patience_, &QTimer::timeout, this, &LiveReadings::askAgain);
    connect(&session_.link(), &PluginLink::passed, this,
            [this](vlk::Direction direction, quint32 id, const void* p1) { look(direction, id, p1); });
}

void LiveReadings::look(vlk::Direction direction, quint32 id, const void* p1)
{
    const auto message = static_cast<vlk::Message>(id);
    if (direction == vlk::Direction::ToHost && message == vlk::Message::RequestAnalog)
        patience_.start();
    else if (message == vlk::Message::TrackerDetached || (message == vlk::Message::AnalogRecord && p1))
        patience_.stop();
}

void LiveReadings::askAgain()
{
    if (!PluginWindows::calibration() || !session_.tracker().attached()) {
        patience_.stop();
        return;
    }
    log_.appendWarning(QStringLiteral("vlk.workbench.link"),
                       vlk::text("wb_asked_again").arg(quint32(vlk::Message::RequestAnalog)));
    session_.tracker().handle(vlk::Message::RequestAnalog, nullptr, nullptr);
}

} // namespace vlk
