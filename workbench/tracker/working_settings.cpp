#include "tracker/working_settings.h"

#include "tracker/bluetooth_devices.h"
#include "tracker/configuration_values.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <type_traits>

namespace tracker {

namespace {

struct UseCode
{
    const char* code;
    const char* element; // with the settings of the use, behind the line's name
};

constexpr UseCode kLineUses[] = {{"NU", ""},      {"NS-", "DIN"},  {"NB-", "DIN"},
                                 {"NS+", "ADIN"}, {"NB+", "ADIN"}, {"AIN", "AIN"}};

constexpr const char* kLineOwners[] = {"", "FLDS", "TPMS", "REFR", "TACH", "PCNT"};

enum class Kind {
    Number,
    Hundredths, // of a number with a point
    Digits,     // one position of a text of digits each
    Use,        // of an input line
    Owner,      // of the serial line
    Device,     // around the tracker, by its address
    General     // 1 for the output's code "GP"
};

using S = WorkingSettings;

struct SettingRow
{
    // `field` gives the place of the value in the settings, for a number of the repetition.
    template <class Field>
    constexpr SettingRow(const char* path, int absent, Field /*field*/, Kind kind = Kind::Number,
                         int count = 1)
        : path(path), absent(absent), kind(kind), count(count),
          get([](const S& settings, int i) { return static_cast<int>(Field()(settings, i)); }),
          put([](S& settings, int i, int value) {
              auto& place = Field()(settings, i);
              place = static_cast<std::remove_reference_t<decltype(place)>>(value);
          })
    {
    }

    const char* path; // %1 is the number of the repetition, %2 the element of the line's use
    int absent;
    Kind kind;
    int count; // of repetitions, or of digits
    int (*get)(const S& settings, int index);
    void (*put)(S& settings, int index, int value);
};

// A use has to be read before the keys of its element.
// clang-format off
constexpr SettingRow kSettingRows[] = {
    {"TRACK/POINTS/useMoveSens",            1, [](auto& s, int) -> auto& { return s.track.startAndStop; }},
    {"TRACK/POINTS/useMaxSpeed",            0, [](auto& s, int) -> auto& { return s.track.speeding; }},
    {"TRACK/POINTS/maxSpeed",             100, [](auto& s, int) -> auto& { return s.track.maxSpeed; }},
    {"TRACK/POINTS/angleMode",              2, [](auto& s, int) -> auto& { return s.track.turns; }},
    {"TRACK/POINTS/angle",                  5, [](auto& s, int) -> auto& { return s.track.angle; }},
    {"TRACK/POINTS/useDist",                1, [](auto& s, int) -> auto& { return s.track.byDistance; }},
    {"TRACK/POINTS/dist",                 500, [](auto& s, int) -> auto& { return s.track.distance; }},
    {"TRACK/POINTS/useTimer",               1, [](auto& s, int) -> auto& { return s.track.byTime; }},
    {"TRACK/POINTS/moveTimer",             60, [](auto& s, int) -> auto& { return s.track.moveTime; }},
    {"TRACK/POINTS/moveTimerSens",          0, [](auto& s, int i) -> auto& { return i == 0 ? s.track.ignitionIsMoving : s.track.engineIsMoving; }, Kind::Digits, 2},
    {"TRACK/POINTS/stopTimer",            600, [](auto& s, int) -> auto& { return s.track.stopTime; }},
    {"TRACK/LIMPOINT/blockDist",            1, [](auto& s, int) -> auto& { return s.track.leastDistanceOn; }},
    {"TRACK/LIMPOINT/dist",                10, [](auto& s, int) -> auto& { return s.track.leastDistance; }},
    {"TRACK/LIMPOINT/blockTimer",           0, [](auto& s, int) -> auto& { return s.track.leastTimeOn; }},
    {"TRACK/LIMPOINT/timer",                5, [](auto& s, int) -> auto& { return s.track.leastTime; }},
    {"TRACK/MOVESENS/stopTimer",           30, [](auto& s, int) -> auto& { return s.track.stopAfter; }},

    {"TRACK/COORDFLT/use",                  1, [](auto& s, int) -> auto& { return s.navigation.filtered; }},
    {"TRACK/COORDFLT/minSats",              4, [](auto& s, int) -> auto& { return s.navigation.leastSatellites; }},
    {"TRACK/COORDFLT/maxHDOP",            250, [](auto& s, int) -> auto& { return s.navigation.mostHdop; }, Kind::Hundredths},
    {"TRACK/COORDFLT/maxSpeed",           200, [](auto& s, int) -> auto& { return s.navigation.mostSpeed; }},
    {"TRACK/COORDFLT/maxAccel",            25, [](auto& s, int) -> auto& { return s.navigation.mostGain; }},
    {"TRACK/COORDFLT/maxDist",            100, [](auto& s, int) -> auto& { return s.navigation.mostShift; }},
    {"TRACK/COORDFLT/maxFilterCnt",         5, [](auto& s, int) -> auto& { return s.navigation.rejectedAfterJump; }},
    {"TRACK/COORDAVER/mode",                1, [](auto& s, int) -> auto& { return s.navigation.atStops; }},
    {"TRACK/COORDAVER/sensors",             1, [](auto& s, int i) -> auto& { return i == 0 ? s.navigation.standsWithoutIgnition : s.navigation.standsWithoutMovement; }, Kind::Digits, 2},
    {"TRACK/GNSS/mode",                     1, [](auto& s, int i) -> auto& { return s.navigation.systems[i]; }, Kind::Digits, 5},
    {"TRACK/GNSS/angle",                    5, [](auto& s, int) -> auto& { return s.navigation.elevation; }},

    {"SENSORS/IN%1/normState",              0, [](auto& s, int i) -> auto& { return s.lines[i].use; }, Kind::Use, 3},
    {"SENSORS/IN%1/IN%1%2/ign",             1, [](auto& s, int i) -> auto& { return s.lines[i].ignition; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/cntlRestore",     1, [](auto& s, int i) -> auto& { return s.lines[i].restores; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/lowLvl",       5000, [](auto& s, int i) -> auto& { return s.lines[i].low; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/highLvl",      6000, [](auto& s, int i) -> auto& { return s.lines[i].high; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/thld",         2000, [](auto& s, int i) -> auto& { return s.lines[i].change; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/trhldOff",        1, [](auto& s, int i) -> auto& { return s.lines[i].stillOnly; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/filterMode",      1, [](auto& s, int i) -> auto& { return s.lines[i].filtered; }, Kind::Number, 3},
    {"SENSORS/IN%1/IN%1%2/filterLen",      30, [](auto& s, int i) -> auto& { return s.lines[i].window; }, Kind::Number, 3},

    {"SYSTEM/PWRSENS/line",                 0, [](auto& s, int) -> auto& { return s.supply.line; }},
    {"SYSTEM/PWRSENS/alarmLvl",         10500, [](auto& s, int) -> auto& { return s.supply.alarm; }},
    {"SYSTEM/PWRSENS/restoreLvl",       11000, [](auto& s, int) -> auto& { return s.supply.restore; }},
    {"SYSTEM/PWRSENS/delay",                0, [](auto& s, int) -> auto& { return s.supply.delay; }},
    {"SYSTEM/ENGSENS/useCustom",            0, [](auto& s, int) -> auto& { return s.supply.ownEngineLevel; }},
    {"SYSTEM/ENGSENS/voltageLvl",       13200, [](auto& s, int) -> auto& { return s.supply.engineLevel; }},
    {"SYSTEM/ENGSENS/noEvent",              0, [](auto& s, int) -> auto& { return s.supply.engineSilent; }},
    {"SYSTEM/ENGSENS/delay",                0, [](auto& s, int) -> auto& { return s.supply.engineDelay; }},

    {"SYSTEM/FUEL/sensors",                 0, [](auto& s, int i) -> auto& { return i == 0 ? s.fuel.withIgnition : i == 1 ? s.fuel.withEngine : s.fuel.withSupply; }, Kind::Digits, 3},
    {"SYSTEM/FUEL/blockVolt",            8000, [](auto& s, int) -> auto& { return s.fuel.low; }},
    {"SYSTEM/FUEL/unblockVolt",         11000, [](auto& s, int) -> auto& { return s.fuel.high; }},
    {"SYSTEM/FUEL/unblockDelay",            5, [](auto& s, int) -> auto& { return s.fuel.delay; }},

    {"RS485/OPTIONS/owner1",                0, [](auto& s, int) -> auto& { return s.serial.owner; }, Kind::Owner},
    {"RS485/FS%1/use",                      0, [](auto& s, int i) -> auto& { return s.serial.sensorUsed[i]; }, Kind::Number, 16},
    {"RS485/FS%1/address",                  0, [](auto& s, int i) -> auto& { return s.serial.sensorAddress[i]; }, Kind::Number, 16},
    {"RS485/FS%1/filterMode",               1, [](auto& s, int i) -> auto& { return s.serial.sensorFiltered[i]; }, Kind::Number, 16},
    {"RS485/PCNT/id%1",                     0, [](auto& s, int i) -> auto& { return s.serial.counterAddress[i]; }, Kind::Number, 7},

    {"BLUETOOTH/GLOBAL/use",                1, [](auto& s, int) -> auto& { return s.bluetooth.used; }},
    {"BLUETOOTH/SENS%1/type",               0, [](auto& s, int i) -> auto& { return s.bluetooth.type[i]; }, Kind::Number, 4},
    {"BLUETOOTH/SENS%1/macaddr",           -1, [](auto& s, int i) -> auto& { return s.bluetooth.device[i]; }, Kind::Device, 4},
    {"BLUETOOTH/FS%1/idx",                  1, [](auto& s, int i) -> auto& { return s.bluetooth.fuel[i]; }, Kind::Number, 4},
    {"BLUETOOTH/TS%1/idx",                  1, [](auto& s, int i) -> auto& { return s.bluetooth.temperature[i]; }, Kind::Number, 4},

    {"TEMPSENS/SENS%1/min",             -5000, [](auto& s, int i) -> auto& { return s.zones[i].low; }, Kind::Hundredths, 4},
    {"TEMPSENS/SENS%1/max",             12000, [](auto& s, int i) -> auto& { return s.zones[i].high; }, Kind::Hundredths, 4},
    {"TEMPSENS/SENS%1/hyst",              500, [](auto& s, int i) -> auto& { return s.zones[i].hysteresis; }, Kind::Hundredths, 4},
    {"TEMPSENS/SENS%1/filterMode",          1, [](auto& s, int i) -> auto& { return s.zones[i].filtered; }, Kind::Number, 4},

    {"ACCEL/SENSORS/sh1",                5000, [](auto& s, int) -> auto& { return s.shockLevels[0]; }, Kind::Hundredths},
    {"ACCEL/SENSORS/sh2",               10000, [](auto& s, int) -> auto& { return s.shockLevels[1]; }, Kind::Hundredths},
    {"ACCEL/SENSORS/sh3",                 200, [](auto& s, int) -> auto& { return s.shockLevels[2]; }, Kind::Hundredths},
    {"ACCEL/SENSORS/sh4",                2500, [](auto& s, int) -> auto& { return s.shockLevels[3]; }, Kind::Hundredths},

    {"OUTPUTS/LINE1/mode",                  0, [](auto& s, int) -> auto& { return s.output.switched; }, Kind::General},
    {"OUTPUTS/LINE1/actions",               0, [](auto& s, int i) -> auto& { return s.output.actions[i]; }, Kind::Digits, 20},
    {"OUTPUTS/LINE1/signalForm",            0, [](auto& s, int) -> auto& { return s.output.form; }},
    {"OUTPUTS/LINE1/onPeriod",              0, [](auto& s, int) -> auto& { return s.output.onPeriod; }},
    {"OUTPUTS/LINE1/offPeriod",             0, [](auto& s, int) -> auto& { return s.output.offPeriod; }},
    {"OUTPUTS/LINE1/autoOff",               0, [](auto& s, int) -> auto& { return s.output.stops; }},
    {"OUTPUTS/LINE1/autoOffDelay",          0, [](auto& s, int) -> auto& { return s.output.stopsAfter; }},
    {"OUTPUTS/LINE1/onDelay",              60, [](auto& s, int) -> auto& { return s.output.delay; }},
    {"OUTPUTS/LINE1/safeBlock",             0, [](auto& s, int) -> auto& { return s.output.whenSafe; }},
};
// clang-format on

// A number that an int of the tracker's holds, whatever stands there.
int hundredths(const QString& text, int absent)
{
    bool good = false;
    const double number = text.toDouble(&good);
    return good && std::abs(number) < 1e6 ? static_cast<int>(std::lround(number * 100)) : absent;
}

const char* elementOf(LineUse use)
{
    return kLineUses[static_cast<std::size_t>(use)].element;
}

int useOf(const QString& code)
{
    const auto found =
        std::ranges::find_if(kLineUses, [&](const UseCode& use) { return code == QLatin1String(use.code); });
    return found == std::end(kLineUses) ? 0 : static_cast<int>(found - kLineUses);
}

int deviceOf(const QString& address)
{
    const auto found = std::ranges::find_if(kBluetoothDevices, [&](const BluetoothDevice& device) {
        return address.compare(QLatin1String(device.mac), Qt::CaseInsensitive) == 0;
    });
    return found == kBluetoothDevices.end() ? -1 : static_cast<int>(found - kBluetoothDevices.begin());
}

int ownerOf(const QString& code)
{
    const auto* found =
        std::ranges::find_if(kLineOwners, [&](const char* owner) { return code == QLatin1String(owner); });
    return found == std::end(kLineOwners) ? 0 : static_cast<int>(found - kLineOwners);
}

int valueOf(const SettingRow& row, const QString& path, int index, const ConfigurationValues& values)
{
    const QString text = values.text(path);
    switch (row.kind) {
    case Kind::Hundredths:
        return hundredths(text, row.absent);
    case Kind::Digits:
        return index < text.size() ? std::max(0, text.at(index).digitValue()) : row.absent;
    case Kind::Use:
        return useOf(text);
    case Kind::Owner:
        return ownerOf(text);
    case Kind::Device:
        return deviceOf(text);
    case Kind::General:
        return text == QLatin1String("GP");
    case Kind::Number:
        break;
    }
    return values.number(path, row.absent);
}

template <typename Do>
void walk(const Do& each)
{
    for (const SettingRow& row : kSettingRows) {
        for (int i = 0; i < row.count; ++i)
            each(row, i);
    }
}

// Under which a value is kept; digits need their place behind it.
QString keptName(const SettingRow& row, int index)
{
    QString name = QLatin1String(row.path);
    name.remove(QStringLiteral("/IN%1%2")).replace(QStringLiteral("%1"), QString::number(index + 1));
    return row.kind == Kind::Digits ? name + QString::number(index) : name;
}

} // namespace

double TrackRules::turn(double speed) const
{
    // The way to the side within a second is the same at any speed.
    constexpr double least = 5;
    constexpr double most = 30;
    constexpr double degreesTimesSpeed = 300;
    if (turns == Turns::ByAngle)
        return angle;
    return turns == Turns::BySpeed ? std::clamp(degreesTimesSpeed / std::max(speed, 1.0), least, most) : 0;
}

bool LineRules::triggered(double millivolts, bool before) const
{
    const bool high = use == LineUse::OpenPlus || use == LineUse::ClosedMinus;
    const bool low = use == LineUse::ClosedPlus || use == LineUse::OpenMinus;
    if (millivolts >= this->high)
        return high;
    if (millivolts <= this->low)
        return low;
    return before && (high || low);
}

int BluetoothRules::deviceFor(Type wanted, int place) const
{
    const std::array<int, 4>& places = wanted == Fuel ? fuel : temperature;
    for (std::size_t i = 0; used && i < type.size(); ++i) {
        if (type[i] == wanted && places[i] == place + 1)
            return device[i];
    }
    return -1;
}

bool WorkingSettings::hasIgnition(int triggered) const
{
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (triggered >> i & 1 && lines[i].ignition)
            return true;
    }
    return false;
}

WorkingSettings WorkingSettings::of(const ConfigurationValues& values)
{
    WorkingSettings result;
    walk([&](const SettingRow& row, int i) {
        QString path = QLatin1String(row.path);
        if (row.kind != Kind::Digits)
            path.replace(QLatin1String("%1"), QString::number(i + 1));
        if (path.contains(QLatin1String("%2")))
            path.replace(QLatin1String("%2"), QLatin1String(elementOf(result.lines[i].use)));
        row.put(result, i, valueOf(row, path, i, values));
    });
    return result;
}

WorkingSettings WorkingSettings::load(const QSettings& file)
{
    WorkingSettings result;
    walk([&](const SettingRow& row, int i) {
        int value = file.value(keptName(row, i), row.absent).toInt();
        if (row.kind == Kind::Device)
            value = std::clamp(value, -1, static_cast<int>(kBluetoothDevices.size()) - 1);
        if (row.kind == Kind::Use)
            value = std::clamp(value, 0, static_cast<int>(std::size(kLineUses)) - 1);
        row.put(result, i, value);
    });
    return result;
}

void WorkingSettings::save(QSettings& file) const
{
    walk([&](const SettingRow& row, int i) { file.setValue(keptName(row, i), row.get(*this, i)); });
}

} // namespace tracker
