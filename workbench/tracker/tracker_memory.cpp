#include "tracker/tracker_memory.h"

#include <QDir>
#include <QSettings>

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

// The vehicle has been on the road for two months when the tracker is seen first.
constexpr qint64 kDaysBefore = 60;
// The oldest are forgotten.
constexpr std::size_t kMostChanges = 200;

const QString kFirstDayKey = QStringLiteral("firstDay");
const QString kProgramKey = QStringLiteral("canLogProgram");
const QString kChangesKey = QStringLiteral("changes");

} // namespace

TrackerMemory::TrackerMemory(const QString& folder, qint64 now)
    : file_(QDir(folder).filePath(QStringLiteral("memory.ini"))), pours_(folder)
{
    load();
    if (firstMidnight_ <= 0 || firstMidnight_ > now) {
        firstMidnight_ = std::max<qint64>(0, now / kDaySeconds - kDaysBefore) * kDaySeconds;
        save();
    }
}

Controls TrackerMemory::controlsAt(qint64 time) const
{
    Controls controls;
    for (const Change& change : changes_) {
        if (change.time <= time)
            controls = change.controls;
    }
    controls.fuelHeights = pours_.heightsAt(time);
    return controls;
}

std::optional<EventCode> TrackerMemory::changeWithin(qint64 after, qint64 until) const
{
    const auto found = std::ranges::find_if(changes_.rbegin(), changes_.rend(), [&](const Change& change) {
        return change.time > after && change.time <= until;
    });
    return found == changes_.rend() ? std::nullopt : std::optional(found->code);
}

void TrackerMemory::change(qint64 time, EventCode code, const std::function<void(Controls& controls)>& set)
{
    Change change{time, code, controlsAt(time)};
    if (set)
        set(change.controls);
    // A clock that went back takes what was set later with it.
    while (!changes_.empty() && changes_.back().time > time)
        changes_.pop_back();
    changes_.push_back(change);
    if (changes_.size() > kMostChanges)
        changes_.erase(changes_.begin());
    save();
}

void TrackerMemory::setCanLogProgram(int program)
{
    canLogProgram_ = program;
    save();
}

void TrackerMemory::load()
{
    QSettings file(file_, QSettings::IniFormat);
    firstMidnight_ = file.value(kFirstDayKey).toInt() * static_cast<qint64>(kDaySeconds);
    canLogProgram_ = file.value(kProgramKey).toInt();
    const int count = file.beginReadArray(kChangesKey);
    for (int i = 0; i < count; ++i) {
        file.setArrayIndex(i);
        Change change{};
        change.time = file.value(QStringLiteral("time")).toLongLong();
        change.code = static_cast<EventCode>(file.value(QStringLiteral("code")).toUInt());
        change.controls.guard = file.value(QStringLiteral("guard")).toBool();
        change.controls.outputs = static_cast<quint16>(file.value(QStringLiteral("outputs")).toUInt());
        const double shift = file.value(QStringLiteral("mileageShift")).toDouble();
        change.controls.mileageShift = std::isfinite(shift) ? shift : 0;
        changes_.push_back(change);
    }
    std::ranges::stable_sort(changes_, {}, &Change::time);
}

void TrackerMemory::save() const
{
    QSettings file(file_, QSettings::IniFormat);
    file.clear();
    file.setValue(kFirstDayKey, static_cast<int>(firstMidnight_ / kDaySeconds));
    file.setValue(kProgramKey, canLogProgram_);
    file.beginWriteArray(kChangesKey);
    int index = 0;
    for (const Change& change : changes_) {
        file.setArrayIndex(index++);
        file.setValue(QStringLiteral("time"), change.time);
        file.setValue(QStringLiteral("code"), static_cast<uint>(change.code));
        file.setValue(QStringLiteral("guard"), change.controls.guard);
        file.setValue(QStringLiteral("outputs"), change.controls.outputs);
        file.setValue(QStringLiteral("mileageShift"), change.controls.mileageShift);
    }
    file.endArray();
}

} // namespace tracker
