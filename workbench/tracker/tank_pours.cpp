#include "tracker/tank_pours.h"

#include "tracker/random.h"

#include <QDir>
#include <QSettings>

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

// The oldest are forgotten.
constexpr std::size_t kMostPours = 500;
constexpr double kSettlingSeconds = 1.2;
constexpr double kSwingSeconds = 2;
constexpr qint64 kRestAfterSeconds = 60;
// Shares of the height.
constexpr double kNoise = 0.0005;
constexpr double kSwing = 0.02;

const QString kPoursKey = QStringLiteral("pours");

} // namespace

TankPours::TankPours(const QString& folder) : file_(QDir(folder).filePath(QStringLiteral("tanks.ini")))
{
    load();
}

void TankPours::set(std::size_t tank, qint64 time, double before, double after)
{
    // A clock that went back takes what was poured later with it.
    while (!pours_.empty() && pours_.back().time > time)
        pours_.pop_back();
    pours_.push_back({time, tank, before, after});
    if (pours_.size() > kMostPours)
        pours_.erase(pours_.begin());
    save();
}

TankValues TankPours::litresAt(qint64 time) const
{
    TankValues litres;
    for (const Pour& pour : pours_) {
        if (pour.time <= time)
            litres[pour.tank] = pour.after;
    }
    return litres;
}

TankValues TankPours::heightsAt(qint64 time) const
{
    TankValues heights = litresAt(time);
    std::array<double, kTanks.size()> unrest{};
    for (std::size_t i = 0; i < kTanks.size(); ++i) {
        if (heights[i])
            heights[i] = fuelHeight(kTanks[i], *heights[i]);
    }
    // Every pour is followed by an approach of its own; the fuel swings meanwhile.
    for (const Pour& pour : pours_) {
        if (pour.time > time || time - pour.time > kRestAfterSeconds)
            continue;
        const Tank& tank = kTanks[pour.tank];
        const double rise = fuelHeight(tank, pour.after) - fuelHeight(tank, pour.before);
        const auto seconds = static_cast<double>(time - pour.time);
        *heights[pour.tank] -= rise * std::exp(-seconds / kSettlingSeconds);
        unrest[pour.tank] = kSwing * std::abs(rise) * std::exp(-seconds / kSwingSeconds);
    }
    for (std::size_t i = 0; i < kTanks.size(); ++i) {
        const double chance = fraction(mix(i, static_cast<std::uint64_t>(time))) * 2 - 1;
        if (heights[i])
            heights[i] = std::clamp(*heights[i] + chance * (kNoise + unrest[i]), 0.0, 1.0);
    }
    return heights;
}

void TankPours::load()
{
    QSettings file(file_, QSettings::IniFormat);
    const int count = file.beginReadArray(kPoursKey);
    for (int i = 0; i < count; ++i) {
        file.setArrayIndex(i);
        const auto litres = [&file](const char* key, const Tank& tank) {
            const double value = file.value(QLatin1String(key)).toDouble();
            return std::isfinite(value) ? std::clamp(value, 0.0, tank.litres) : 0;
        };
        const std::size_t tank = file.value(QStringLiteral("tank")).toUInt();
        if (tank < kTanks.size())
            pours_.push_back({file.value(QStringLiteral("time")).toLongLong(), tank,
                              litres("before", kTanks[tank]), litres("after", kTanks[tank])});
    }
    std::ranges::stable_sort(pours_, {}, &Pour::time);
}

void TankPours::save() const
{
    QSettings file(file_, QSettings::IniFormat);
    file.clear();
    file.beginWriteArray(kPoursKey);
    int index = 0;
    for (const Pour& pour : pours_) {
        file.setArrayIndex(index++);
        file.setValue(QStringLiteral("time"), pour.time);
        file.setValue(QStringLiteral("tank"), static_cast<uint>(pour.tank));
        file.setValue(QStringLiteral("before"), pour.before);
        file.setValue(QStringLiteral("after"), pour.after);
    }
    file.endArray();
}

} // namespace tracker
