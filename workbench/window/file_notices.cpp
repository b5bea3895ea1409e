#include "window/file_notices.h"

#include "typing/notice_bar.h"
#include "window/languages.h"
#include "window/message_box.h"
#include "window/status_line.h"
#include "window/trouble_text.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace workbench {

namespace {

// What a file with damage everywhere has more of is counted.
constexpr int kMostLines = 5;
constexpr int kMostInBar = 2;

const QString kUnsaved = QStringLiteral("vlk.unsaved.");
const QString kFound = QStringLiteral("vlk.unsaved.found");
const QString kLost = QStringLiteral("vlk.unsaved.lost");
constexpr int kWaiting = 1; // number of the notice

QString told(const QVector<QPair<QString, QString>>& noted, int most)
{
    QStringList lines;
    for (const auto& [category, message] : noted.mid(0, most))
        lines.append(PluginLog::words(category, message));
    if (noted.size() > most)
        lines.append(text("wb_told_more").arg(number(noted.size() - most)));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

FileNotices::FileNotices(const PluginLog& log, StatusLine& status, vlk::NoticeBar& bar, QWidget* mainWindow)
    : status_(status), bar_(bar), mainWindow_(mainWindow)
{
    connect(&log, &PluginLog::warned, this,
            [this](PluginLog::Topic topic, const QString& category, const QString& text) {
                if (topic == PluginLog::Topic::File || topic == PluginLog::Topic::Damage)
                    note(topic, category, text);
                else if (topic == PluginLog::Topic::Written)
                    forget(category, text);
            });
    connect(&bar_, &vlk::NoticeBar::closed, this, [this](int number) {
        if (number != kWaiting)
            return;
        for (const auto& [category, message] : std::as_const(waiting_))
            known_.insert(message);
        waiting_.clear();
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
    Noted noted = std::exchange(noted_, {});
    const bool needsBox = std::exchange(needsBox_, false);
    const auto waits = [](const auto& entry) { return entry.first.startsWith(kUnsaved); };
    const auto edits = std::stable_partition(noted.begin(), noted.end(), std::not_fn(waits));
    if (edits != noted.end()) {
        waiting_.clear();
        std::copy_if(edits, noted.end(), std::back_inserter(waiting_), [&](const auto& entry) {
            return entry.first != kFound || !known_.contains(entry.second);
        });
        noted.erase(edits, noted.end());
        tellWaiting();
    }
    if (noted.isEmpty())
        return;
    const auto sentence = [noted] { return told(noted, kMostLines); };
    status_.tell(StatusLine::Command, sentence);
    if (needsBox)
        showWarning(sentence(), mainWindow_);
}

void FileNotices::forget(const QString& category, const QString& message)
{
    const QString name = PluginLog::parts(category, message).value(0);
    const auto isNamed = [&name](const auto& entry) {
        constexpr int behindTheCount = 1; // or behind the time
        return PluginLog::parts(entry.first, entry.second).value(behindTheCount) == name;
    };
    const auto last = std::remove_if(waiting_.begin(), waiting_.end(), isNamed);
    if (last == waiting_.end())
        return;
    waiting_.erase(last, waiting_.end());
    tellWaiting();
    status_.tell(StatusLine::Command, [category, message] { return PluginLog::words(category, message); });
}

void FileNotices::tellWaiting()
{
    if (waiting_.isEmpty())
        return bar_.end(kWaiting);
    const bool isLost = std::any_of(waiting_.cbegin(), waiting_.cend(),
                                    [](const auto& entry) { return entry.first == kLost; });
    bar_.tell(kWaiting, [waiting = waiting_, mark = isLost ? vlk::Mark::Invalid : vlk::Mark::Advice] {
        return vlk::Notice{mark, told(waiting, kMostInBar), {}};
    });
}

void FileNotices::configurationOpened()
{
    waiting_.clear();
    bar_.end(kWaiting);
}

} // namespace workbench
