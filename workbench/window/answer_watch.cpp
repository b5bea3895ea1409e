#include "window/answer_watch.h"

#include "window/request_table.h"

#include <algorithm>

namespace workbench {

namespace {

// What destroys is asked of the user first, who may take long, and who may not agree.
bool asksForAnswer(quint32 id)
{
    if (hasEffect(static_cast<Message>(id), Effect::Destroys))
        return false;
    return std::ranges::any_of(vlk::kMessages, [id](const vlk::MessageInfo& row) {
        return static_cast<quint32>(row.number) == id && row.answer != 0;
    });
}

bool isAnswer(quint32 id)
{
    return std::ranges::any_of(vlk::kMessages,
                               [id](const vlk::MessageInfo& row) { return row.answer == id; });
}

} // namespace

AnswerWatch::AnswerWatch(const PluginLink& link)
{
    patience_.setSingleShot(true);
    notice_.setSingleShot(true);
    notice_.setInterval(kNoticeMs);
    connect(&link, &PluginLink::passed, this, &AnswerWatch::look);
    connect(&notice_, &QTimer::timeout, this, &AnswerWatch::late);
    connect(&patience_, &QTimer::timeout, this, [this] {
        told_ = true;
        Q_EMIT silent(since_, request_);
    });
}

void AnswerWatch::look(vlk::Direction direction, quint32 id)
{
    if (direction == vlk::Direction::ToPlugin) {
        if (isAnswer(id))
            forget();
    } else if (asksForAnswer(id)) {
        begin(static_cast<Message>(id));
    }
}

void AnswerWatch::begin(Message request, const QDateTime& since)
{
    request_ = request;
    if (!since_.isValid()) {
        since_ = since;
        patience_.start(kPatienceMs);
    } else if (told_ && !patience_.isActive()) {
        patience_.start(kReminderMs);
    }
    notice_.start();
    Q_EMIT asked();
}

void AnswerWatch::forget()
{
    since_ = {};
    patience_.stop();
    notice_.stop();
    if (std::exchange(told_, false))
        Q_EMIT over();
}

} // namespace workbench
