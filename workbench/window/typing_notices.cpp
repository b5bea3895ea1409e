#include "window/typing_notices.h"

#include <algorithm>

namespace workbench {

TypingNotices::TypingNotices(const PluginLog& log)
{
    connect(&log, &PluginLog::warned, this,
            [this](PluginLog::Topic topic, const QString& /*category*/, const QString& text) {
                if (topic == PluginLog::Topic::Retyped)
                    forget(text);
                if (topic == PluginLog::Topic::Typing)
                    note(text);
            });
}

void TypingNotices::forget(const QString& field)
{
    lines_.erase(std::remove_if(lines_.begin(), lines_.end(),
                                [&field](const QString& earlier) {
                                    return earlier.startsWith(field + QStringLiteral(": "));
                                }),
                 lines_.end());
}

void TypingNotices::note(const QString& line)
{
    forget(line.section(QStringLiteral(": "), 0, 0));
    lines_.append(line);
}

} // namespace workbench
