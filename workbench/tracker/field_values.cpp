#include "tracker/field_values.h"
#include "tracker/vehicle_climate.h"
#include "tracker/vehicle_fuel.h"
#include "tracker/vehicle_motion.h"
#include "tracker/vehicle_power.h"
#include "tracker/vehicle_radio.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tracker {

namespace {

using vlk::element;

// One row fills a family of like elements: `count` of them, each `stride` elements behind the one before.
struct FieldRow
{
    vlk::ElementIndex first;
    double (*value)(const Vehicle& v, int index);
    std::int16_t count = 1;
    std::int16_t stride = 1;
    // The device on the serial line that tells it, and what stands there while another one owns the line.
    LineOwner device = LineOwner::Other;
    double absent = 0;
};

// What a fuel sensor says, 0 where no sensor is.
template <class Say>
double ofSensor(const Vehicle& v, int row, Say say)
{
    const FuelSource source = fuelSource(v, row);
    return source.sensor < 0 ? 0 : say(source);
}
double fuelOf(const Vehicle& v, int row)
{
    return ofSensor(v, row, [&](const FuelSource& source) {
        return recordedFuel(v, source.sensor) + (source.filtered ? 0 : slosh(v, source.sensor));
    });
}
double fuelTemperatureOf(const Vehicle& v, int row)
{
    return ofSensor(v, row, [&](const FuelSource&) { return v.m.outside + 4; });
}
double fuelFrequencyOf(const Vehicle& v, int row)
{
    return ofSensor(v, row,
                    [&](const FuelSource& source) { return 800 + recordedFuel(v, source.sensor) / 4; });
}

// What the vehicle has nothing to say about.
template <int value>
double constant(const Vehicle& /*v*/, int /*index*/)
{
    return value;
}
constexpr auto kZero = constant<0>;

constexpr double kNoValue16 = 0xFFFF;
constexpr double kNoValue32 = 0xFFFF'FFFF;
constexpr double kCoordinate = 600000;
constexpr double kFineCoordinate = 600000000;
constexpr double kHour = 3600;
constexpr double kGravity = 9.81;
constexpr double kMilliG = 1000 / kGravity;
// Fuel flow state: a nibble each for the chambers and the engine, then the power.
constexpr double kFlowRuns = 0x1211;
constexpr double kFlowStands = 0x1000;

// clang-format off
constexpr FieldRow kFieldRows[] = {
    {element("NumPage"), [](const Vehicle& v, int) { return static_cast<double>(v.m.number); }},
    {element("Code"), [](const Vehicle& v, int) { return static_cast<double>(v.m.code); }},
    {element("Time"), [](const Vehicle& v, int) { return static_cast<double>(v.m.time); }},
    {element("State"), [](const Vehicle& v, int) { return state(v); }},
    {element("Module1"), [](const Vehicle& v, int) { return module1(v); }},
    {element("Module2"), [](const Vehicle& v, int) { return module2(v); }},
    {element("GSM"), [](const Vehicle& v, int) { return gsmLevel(v); }},
    {element("StateNGauge"), [](const Vehicle& v, int) { return navigationState(v); }},
    {element("LastTime"), [](const Vehicle& v, int) { return static_cast<double>(v.m.fixTime); }},
    {element("Latitude"), [](const Vehicle& v, int) { return v.m.road.latitude * kCoordinate; }},
    {element("Longitude"), [](const Vehicle& v, int) { return v.m.road.longitude * kCoordinate; }},
    {element("Altitude"), [](const Vehicle& v, int) { return v.m.road.altitude * 10; }},
    {element("Speed"), [](const Vehicle& v, int) { return v.m.speed; }},
    {element("Course"), [](const Vehicle& v, int) { return std::fmod(std::round(v.m.road.course), 360); }},
    {element("Run"), [](const Vehicle& v, int) { return v.mileage(); }},
    {element("Way"), [](const Vehicle& v, int) { return v.m.segmentKm; }},
    {element("AllSeconds"), [](const Vehicle& v, int) { return static_cast<double>(v.m.segmentSeconds); }},
    {element("SecondsLast"), [](const Vehicle& v, int) { return static_cast<double>(v.m.movingSeconds); }},

    {element("Power"), [](const Vehicle& v, int) { return supplyVoltage(v); }},
    {element("Reserv"), [](const Vehicle& v, int) { return backupSupply(v); }},
    {element("StateU_Ain1"), [](const Vehicle& v, int i) { return i < 3 ? lineVoltage(v, i) : 0; }, 8},
    {element("StateIn1"), [](const Vehicle& v, int i) { return i == 0 ? inputs(v) : 0; }, 2},
    {element("StateOut1"), [](const Vehicle& v, int i) { return outputs(v, i); }, 2},
    {element("StateIn_Imp1"), [](const Vehicle& v, int i) { return i == 0 ? v.m.at.km * 10 : 0; }, 2},
    {element("Frequency1"), [](const Vehicle& v, int i) { return frequency(v, i); }, 2},
    {element("Motochas"), [](const Vehicle& v, int) { return std::floor(v.m.at.engineSeconds / kHour); }},
    {element("LevelRS485_1"), fuelOf, 6},
    {element("LevelRS232"), kZero},
    {element("Temp1"), [](const Vehicle& v, int i) { return temperature(v, i); }, 8},

    {element("CAN_FuelLevel"), [](const Vehicle& v, int) { return fuelPercent(v); }},
    {element("CAN_FuelConsumption"), [](const Vehicle& v, int) { return v.m.at.fuelUsed; }},
    {element("CAN_EngineTurns"), [](const Vehicle& v, int) { return engineTurns(v); }},
    {element("CAN_Temp"), [](const Vehicle& v, int) { return coolant(v); }},
    {element("CAN_FullRun"), [](const Vehicle& v, int) { return 68000 + v.m.at.km; }},
    {element("CAN_AxleLoad_1"), [](const Vehicle& v, int i) { return axleLoad(v, i); }, 5},
    {element("CAN_PedalAccel"), [](const Vehicle& v, int) { return gasPedal(v); }},
    {element("CAN_PedalStop"), [](const Vehicle& v, int) { return brakePedal(v); }},
    {element("CAN_EngineLoad"), [](const Vehicle& v, int) { return engineLoad(v); }},
    {element("CAN_LevelFiltr"), [](const Vehicle& v, int) { return fuelPercent(v); }},
    {element("CAN_EngineTime"), [](const Vehicle& v, int) { return v.m.at.engineSeconds; }},
    {element("CAN_TimeTO"), [](const Vehicle& v, int) { return 15000 - std::fmod(v.m.at.km, 15000); }},
    {element("CAN_Speed"), [](const Vehicle& v, int) { return v.m.speed; }},

    {element("NaviInfoGlonass"), [](const Vehicle& v, int i) { return satellites(v, i); }, 8},
    {element("NaviHDop"), [](const Vehicle& v, int i) { return dilution(v, i); }, 2},
    {element("NaviState"), [](const Vehicle& v, int) { return navigationState(v); }},
    {element("NaviLatitude"), [](const Vehicle& v, int) { return v.m.road.latitude * kFineCoordinate; }},
    {element("NaviLongitude"), [](const Vehicle& v, int) { return v.m.road.longitude * kFineCoordinate; }},
    {element("NaviAltitude"), [](const Vehicle& v, int) { return v.m.road.altitude * 1000; }},
    {element("NaviCourse"), [](const Vehicle& v, int) { return v.m.road.course * 100; }},
    {element("NaviSpeed"), [](const Vehicle& v, int) { return v.m.speed; }},

    {element("LbsCellID"), [](const Vehicle& v, int i) { return cell(v, i); }, 3, 5},
    {element("LbsLac"), [](const Vehicle& v, int) { return areaCode(v); }, 3, 5},
    {element("LbsMcc"), constant<250>, 3, 5},
    {element("LbsMnc"), constant<1>, 3, 5},
    {element("LbsLevel"), [](const Vehicle& v, int i) { return stationLevel(v, i); }, 3, 5},
    {element("LbsTime"), [](const Vehicle& v, int) { return static_cast<double>(v.m.time); }},

    {element("TempRS485_1"), fuelTemperatureOf, 6},
    {element("LevelRS485_7"), [](const Vehicle& v, int i) { return fuelOf(v, 6 + i); }, 10, 2},
    {element("TempRS485_7"), [](const Vehicle& v, int i) { return fuelTemperatureOf(v, 6 + i); }, 10, 2},
    {element("TiresNum1"), [](const Vehicle&, int i) { return static_cast<double>(i + 1); }, 30, 3, LineOwner::Tyres},
    {element("TiresPres1"), [](const Vehicle& v, int i) { return tyrePressure(v, i); }, 30, 3, LineOwner::Tyres},
    {element("TiresTemp1"), [](const Vehicle& v, int i) { return tyreTemperature(v, i); }, 30, 3, LineOwner::Tyres, -127},

    {element("TahoState"), [](const Vehicle& v, int) { return tachographState(v); }, 1, 1, LineOwner::Tachograph},
    {element("TahoMode"), constant<1>, 1, 1, LineOwner::Tachograph},
    {element("TahoFlags"), [](const Vehicle& v, int) { return v.driving() ? 3.0 : 1.0; }, 1, 1, LineOwner::Tachograph},
    {element("TahoSpeed"), [](const Vehicle& v, int) { return v.m.speed; }, 1, 1, LineOwner::Tachograph},
    {element("TahoOdometer"), [](const Vehicle& v, int) { return (68000 + v.m.at.km) * 10; }, 1, 1, LineOwner::Tachograph, kNoValue32},
    {element("TahoTime"), [](const Vehicle& v, int) { return static_cast<double>(v.m.time); }, 1, 1, LineOwner::Tachograph},
    {element("DispCur"), [](const Vehicle& v, int) { return v.driving() ? 2.0 : 1.0; }},
    {element("DispLastIndex"), constant<41>},

    {element("AccelDelta"), [](const Vehicle& v, int) { return v.m.segmentSeconds * 100.0; }},
    {element("AccelLinearX"), [](const Vehicle& v, int) { return v.m.acceleration * kMilliG; }},
    {element("AccelLinearY"), [](const Vehicle& v, int) { return lateral(v) * 1000; }},
    {element("AccelLinearZ"), [](const Vehicle& v, int) { return 1000 + shock(v) * 4; }},
    {element("AccelModule"), [](const Vehicle& v, int) { return shock(v) > 20 ? shock(v) : 0; }},
    {element("AccelAngularPlus"), [](const Vehicle& v, int) { return std::max(0.0, v.m.acceleration) * kMilliG; }},
    {element("AccelAngularMinus"), [](const Vehicle& v, int) { return std::min(0.0, v.m.acceleration) * kMilliG; }},
    {element("AccelAngularCorner"), [](const Vehicle& v, int) { return lateral(v) * 1000; }},
    {element("Passager_1"), [](const Vehicle& v, int i) { return passengers(v, i); }, 16},
    {element("AinfState"), kZero},
    {element("AinfGeozoneID"), kZero, 3},
    {element("CameraState"), kZero},

    {element("State2"), kZero},
    {element("Module3"), constant<1>},
    {element("StateCnct"), [](const Vehicle& v, int) { return connection(v); }},
    {element("StateIn3"), kZero},
    {element("StateIn_Imp3"), kZero, 6},
    {element("Frequency3"), kZero, 6},
    {element("VAccelState"), [](const Vehicle& v, int) { return shockState(v); }},
    {element("VAccelVertical"), [](const Vehicle& v, int) { return tilt(v) * 4; }},
    {element("VAccelLineTang"), [](const Vehicle& v, int) { return tilt(v) / 2; }},
    {element("VAccelLineRoll"), [](const Vehicle& v, int) { return lateral(v) * 20; }},
    {element("VAccelAxelsX"), kZero, 3},
    {element("EcoDrvAccelMax"), [](const Vehicle& v, int) { return 1000 + shock(v) * 6; }},
    {element("EcoDrvSpeedMax"), [](const Vehicle& v, int) { return v.m.speed; }},
    {element("EcoDrvSpeedState"), [](const Vehicle& v, int) { return speedThresholds(v); }},
    {element("EcoDrvAccel1"), [](const Vehicle& v, int) { return thresholds(v.m.acceleration / kGravity) + 16 * thresholds(-v.m.acceleration / kGravity); }},
    {element("EcoDrvAccel2"), [](const Vehicle& v, int) { return thresholds(-lateral(v)) + 16 * thresholds(lateral(v)); }},
    {element("EcoDrvAccel3"), [](const Vehicle& v, int) { return thresholds(shock(v) / 200); }},
    {element("RS485Freq1"), fuelFrequencyOf, 16},
    {element("HPrecisionTemp1"), [](const Vehicle& v, int i) { return fineTemperature(v, i); }, 4},
    {element("HPrecisionHumidity1"), [](const Vehicle& v, int i) { return humidity(v, i); }, 4},

    {element("FfsState"), [](const Vehicle& v, int) { return v.running() ? kFlowRuns : kFlowStands; }},
    {element("FfsError"), kZero},
    {element("FfsFuel"), [](const Vehicle& v, int) { return v.m.at.fuelUsed * 100; }},
    {element("FfsFuelTrip"), [](const Vehicle& v, int) { return std::fmod(v.m.at.fuelUsed, 1000) * 100; }},
    {element("FfsSpeed"), [](const Vehicle& v, int) { return flow(v); }},
    {element("FfsSubmisVolume"), [](const Vehicle& v, int) { return v.m.at.fuelUsed * 260; }},
    {element("FfsSubmisSpeed"), [](const Vehicle& v, int) { return flow(v) * 2.6; }},
    {element("FfsSubmisTemp"), [](const Vehicle& v, int) { return v.m.outside * 10 + 60; }},
    {element("FfsReversVolume"), [](const Vehicle& v, int) { return v.m.at.fuelUsed * 160; }},
    {element("FfsReversSpeed"), [](const Vehicle& v, int) { return flow(v) * 1.6; }},
    {element("FfsReversTemp"), [](const Vehicle& v, int) { return coolant(v) * 6; }},

    {element("RefrState1"), [](const Vehicle& v, int) { return refrigeratorRuns(v); }, 1, 1, LineOwner::Refrigerator},
    {element("RefrState2"), [](const Vehicle& v, int) { return refrigeratorRuns(v) + 1; }, 1, 1, LineOwner::Refrigerator},
    {element("RefrTemp1"), [](const Vehicle& v, int i) { return refrigeratorTemperature(v, i); }, 3, 1, LineOwner::Refrigerator},
    {element("RefrSetTemp1"), constant<300>, 3, 1, LineOwner::Refrigerator},
    {element("RefrTempAir"), [](const Vehicle& v, int) { return v.m.outside * 100; }, 1, 1, LineOwner::Refrigerator},
    {element("RefrTempWater"), [](const Vehicle& v, int) { return coolant(v) * 80; }, 1, 1, LineOwner::Refrigerator},
    {element("RefrTension"), [](const Vehicle& v, int) { return supplyVoltage(v); }, 1, 1, LineOwner::Refrigerator, kNoValue16},
    {element("RefrIntensity"), [](const Vehicle& v, int) { return refrigeratorRuns(v) * 18; }, 1, 1, LineOwner::Refrigerator, kNoValue16},
    {element("RefrPowerEngine"), [](const Vehicle& v, int) { return v.m.at.loadSeconds / 36; }, 1, 1, LineOwner::Refrigerator, kNoValue32},
    {element("RefrPowerNetwork"), kZero, 1, 1, LineOwner::Refrigerator, kNoValue32},
    {element("RefrErrorCount"), kZero, 7, 1, LineOwner::Refrigerator},
    {element("RefrEngineMode"), [](const Vehicle& v, int) { return refrigeratorRuns(v); }, 1, 1, LineOwner::Refrigerator},
    {element("RefrEngineTurns"), [](const Vehicle& v, int) { return refrigeratorRuns(v) * 1450; }, 1, 1, LineOwner::Refrigerator, kNoValue16},
    {element("RefrCompressor"), [](const Vehicle& v, int) { return refrigeratorRuns(v) + 1; }, 1, 1, LineOwner::Refrigerator},

    {element("GeozoneInfo"), [](const Vehicle& v, int) { return v.m.activity == Activity::Parked ? 1.0 : 0.0; }},
    {element("CAN3State"), [](const Vehicle& v, int) { return v.running() ? 3.0 : 0.0; }},
    {element("CAN3Event"), kZero},
    {element("CAN3Crash"), kZero},
    {element("CAN3FailureLamp"), kZero, 2},
    {element("MotochasLoadOn"), [](const Vehicle& v, int) { return std::floor(v.m.at.loadSeconds / kHour); }},
    {element("MotochasLoadOff"), [](const Vehicle& v, int) { return std::floor((v.m.at.engineSeconds - v.m.at.loadSeconds) / kHour); }},
    {element("User1Byte_1"), [](const Vehicle& v, int i) { return v.drift(200 + i, 0, 255, 600); }, 16},
    {element("User2Byte_1"), [](const Vehicle& v, int i) { return v.drift(220 + i, 0, 65535, 600); }, 15},
    {element("User4Byte_1"), [](const Vehicle& v, int i) { return v.drift(240 + i, 0, 1e6, 600); }, 15},
    {element("User8Byte_1"), [](const Vehicle& v, int i) { return v.drift(260 + i, 0, 1e12, 600); }, 3},
};
// clang-format on

constexpr bool everyElementHasOneRow()
{
    std::array<int, vlk::kElementCount> uses{};
    for (const FieldRow& row : kFieldRows) {
        for (int i = 0; i < row.count; ++i)
            ++uses[row.first + i * row.stride];
    }
    return std::ranges::all_of(uses, [](int count) { return count == 1; });
}
static_assert(everyElementHasOneRow());

template <typename Integer>
std::uint64_t limited(double value)
{
    using Limits = std::numeric_limits<Integer>;
    const double whole = std::round(value);
    // Beyond 2^53 the limits of 64 bits are not exact in a double; no value comes near them.
    if (whole <= static_cast<double>(Limits::min()))
        return static_cast<std::uint64_t>(Limits::min());
    if (whole >= static_cast<double>(Limits::max()))
        return static_cast<std::uint64_t>(Limits::max());
    return static_cast<std::uint64_t>(static_cast<Integer>(whole));
}

std::uint64_t bitsOf(vlk::ValueType type, double value)
{
    using enum vlk::ValueType;
    switch (type) {
    case U8:
        return limited<std::uint8_t>(value);
    case U16:
        return limited<std::uint16_t>(value);
    case U32:
        return limited<std::uint32_t>(value);
    case U64:
        return limited<std::uint64_t>(value);
    case I8:
        return limited<std::int8_t>(value);
    case I16:
        return limited<std::int16_t>(value);
    case I32:
        return limited<std::int32_t>(value);
    case I64:
        return limited<std::int64_t>(value);
    case F32:
        return std::bit_cast<std::uint32_t>(static_cast<float>(value));
    }
    return 0;
}

} // namespace

ValueBlock valueBlock(const Vehicle& vehicle)
{
    ValueBlock block{};
    for (const FieldRow& row : kFieldRows) {
        const bool told = row.device == LineOwner::Other || vehicle.isOnLine(row.device);
        for (int i = 0; i < row.count; ++i) {
            const vlk::Element& element = vlk::kElements[row.first + i * row.stride];
            std::uint64_t bits = bitsOf(element.type, told ? row.value(vehicle, i) : row.absent);
            for (int byte = 0; byte < element.width; ++byte, bits >>= 8)
                block[element.offset + byte] = static_cast<std::uint8_t>(bits);
        }
    }
    return block;
}

} // namespace tracker
