#include "window/file_notices.h"

#include "window/languages.h"
#include "window/message_box.h"
#include "window/status_line.h"
#include "window/trouble_text.h"

#include <QStringList>

#include <utility>

namespace workbench {

namespace {

// What a file with damage everywhere has more of is counted.
constexpr int kMostLines = 5;

} // namespace

FileNotices::FileNotices(const PluginLog& log, StatusLine& status, QWidget* mainWindow)
    : status_(status), mainWindow_(mainWindow)
{
    connect(&log, &PluginLog::warned, this,
            [this](PluginLog::Topic topic, const QString& category, const QString& text) {
                if (topic == PluginLog::Topic::File || topic == PluginLog::Topic::Damage)
                    note(topic, category, text);
            });
}

void FileNotices::note(PluginLog::Topic topic, const QString& category, const QString& message)
{
    // The plug-in is in the middle of its work here.
    if (noted_.isEmpty())
        QMetaObject::invokeMethod(this, &FileNotices::tell, Qt::QueuedConnection);
    noted_.append({category, message});
    needsBox_ |= topic == PluginLog::Topic::File;
}

void FileNotices::tell()
{
    const auto sentence = [noted = std::exchange(noted_, {})] {
        QStringList lines;
        for (const auto& [category, message] : noted.mid(0, kMostLines))
            lines.append(PluginLog::words(category, message));
        if (noted.size() > kMostLines)
            lines.append(text("wb_told_more").arg(number(noted.size() - kMostLines)));
        return lines.join(QLatin1Char('\n'));
    };
    status_.tell(StatusLine::Command, sentence);
    if (std::exchange(needsBox_, false))
        showWarning(sentence(), mainWindow_);
}

} // namespace workbench
