#include "tracker/settings_history.h"

#include <QDir>

#include <algorithm>
#include <limits>

namespace tracker {

namespace {

constexpr qint64 kAlways = std::numeric_limits<qint64>::min();
const QString kArrayKey = QStringLiteral("settings");
const QString kTimeKey = QStringLiteral("since");

} // namespace

SettingsHistory::SettingsHistory(const QString& folder, const WorkingSettings& present)
    : file_(QDir(folder).filePath(QStringLiteral("settings.ini")))
{
    load();
    if (entries_.empty() || !(*latest() == present)) {
        const qint64 since = entries_.empty() ? kAlways : entries_.back().time;
        if (!entries_.empty())
            entries_.pop_back();
        entries_.push_back({since, std::make_shared<WorkingSettings>(present)});
        save();
    }
    entries_.front().time = kAlways;
}

bool SettingsHistory::change(qint64 time, const WorkingSettings& settings)
{
    if (*latest() == settings)
        return false;
    // A clock that went back takes what came later with it, and of two changes in a second the last holds.
    while (entries_.back().time >= time && entries_.size() > 1)
        entries_.pop_back();
    if (!(*latest() == settings))
        entries_.push_back({time, std::make_shared<WorkingSettings>(settings)});
    save();
    return true;
}

SettingsHistory::Period SettingsHistory::at(qint64 time) const
{
    const auto after = std::ranges::find_if(entries_.begin() + 1, entries_.end(),
                                            [time](const Entry& entry) { return entry.time >= time; });
    return {(after - 1)->settings,
            after == entries_.end() ? std::numeric_limits<qint64>::max() : after->time};
}

void SettingsHistory::load()
{
    QSettings file(file_, QSettings::IniFormat);
    const int count = file.beginReadArray(kArrayKey);
    for (int i = 0; i < count; ++i) {
        file.setArrayIndex(i);
        entries_.push_back({file.value(kTimeKey).toLongLong(),
                            std::make_shared<WorkingSettings>(WorkingSettings::load(file))});
    }
    std::ranges::stable_sort(entries_, {}, &Entry::time);
}

void SettingsHistory::save() const
{
    QSettings file(file_, QSettings::IniFormat);
    file.clear();
    file.beginWriteArray(kArrayKey);
    int index = 0;
    for (const Entry& entry : entries_) {
        file.setArrayIndex(index++);
        file.setValue(kTimeKey, entry.time);
        entry.settings->save(file);
    }
    file.endArray();
}

} // namespace tracker
