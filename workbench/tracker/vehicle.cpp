#include "tracker/vehicle.h"

#include "tracker/random.h"

#include <algorithm>

namespace tracker {

namespace {

constexpr double noI8 = -128;
constexpr double noI16 = -32768;
constexpr double noU8 = 255;
constexpr double noU16 = 0xFFFF;

constexpr double halfHour = 1800;
constexpr int wheels = 10;

constexpr double bit(int n, bool on)
{
    return on ? 1 << n : 0;
}

} // namespace

double Vehicle::drift(int what, double low, double high, double seconds) const
{
    return low + (high - low) * wave(mix(m.seed, 1000 + what), static_cast<double>(m.time) / seconds);
}

double Vehicle::parkedSeconds() const
{
    return m.at.ignitionOffSince ? static_cast<double>(m.time - m.at.ignitionOffSince) : 0;
}

// Device and connection

double Vehicle::state() const
{
    return bit(3, c.guard) + bit(6, parkedSeconds() > halfHour);
}

double Vehicle::module1() const
{
    return bit(0, true) + bit(1, m.time >= links.usbSince) + bit(2, true) + bit(5, true) + bit(6, true) +
           bit(7, m.sensed.engine);
}

double Vehicle::module2() const
{
    return bit(3, m.speed <= 0) + bit(5, true);
}

double Vehicle::connection() const
{
    constexpr int gprs = 2;
    constexpr int lte = 4;
    constexpr int firstServer = 3;
    constexpr int talk = 60; // seconds
    const bool connected = links.connectsEvery <= 0 || m.time % links.connectsEvery < talk;
    double servers = 0;
    for (std::size_t i = 0; i < links.servers.size(); ++i)
        servers += bit(firstServer + static_cast<int>(i), links.servers[i] && connected);
    return (drift(1, 0, 1, halfHour) < 0.25 ? gprs : lte) + servers + bit(6, links.service) +
           bit(7, links.bluetooth);
}

double Vehicle::gsmLevel() const
{
    return drift(2, 11, 31, 240);
}

// Navigation

double Vehicle::navigationState() const
{
    return bit(0, true) + bit(1, m.fix) + m.satellites.all() * 4;
}

double Vehicle::satellites(int system) const
{
    constexpr int glonass = 0;
    constexpr int gps = 1;
    constexpr int beidou = 4;
    return system == glonass  ? m.satellites.glonass
           : system == gps    ? m.satellites.gps
           : system == beidou ? m.satellites.beidou
                              : 0;
}

double Vehicle::dilution(int kind) const
{
    constexpr double ofPosition = 1.7; // times the horizontal one
    return 10 * m.satellites.hdop() * (kind == 0 ? 1 : ofPosition);
}

// Cells are some two kilometres wide, and three stations are in sight.
double Vehicle::cell(int station) const
{
    const auto row = static_cast<std::uint64_t>(m.road.latitude * 50);
    const auto column = static_cast<std::uint64_t>(m.road.longitude * 28);
    return static_cast<double>(mix(row * 1000 + column, static_cast<std::uint64_t>(station)) % 200000000);
}

double Vehicle::areaCode() const
{
    return 7600 + std::floor((m.road.latitude - 57.5) * 20);
}

double Vehicle::stationLevel(int station) const
{
    return drift(10 + station, -90, -58, 90) - station * 9;
}

// Supply and lines

double Vehicle::supply() const
{
    return running() ? drift(20, 13650, 13950, 20) : drift(21, 12250, 12550, 7200);
}

double Vehicle::backupSupply() const
{
    return drift(22, 4150, 4250, 3600);
}

double Vehicle::line(int index) const
{
    switch (index) {
    case 0:
        return running() ? supply() - 120 : drift(23, 0, 60, 5);
    case 1:
        return doorOpen() ? drift(24, 0, 80, 5) : supply() - 300;
    default:
        if (m.settings && m.settings->supply.used())
            return supply();
        return tankAtLine();
    }
}

// Full until somebody drains it; on the move it sloshes, the more so the less is averaged.
double Vehicle::tankAtLine() const
{
    if (c.fuelHeights[0])
        return sensorValue(tanks[0], *c.fuelHeights[0]);
    constexpr int longest = 30;
    constexpr double full = 5000;
    constexpr double averaged = 150;
    constexpr double raw = 700;
    int window = longest;
    if (m.settings && driving()) {
        const LineRules& rules = m.settings->lines[2];
        window = rules.filtered ? std::clamp(rules.window, 1, longest) : 1;
    }
    const double swing = raw + (averaged - raw) * (window - 1) / (longest - 1);
    return drift(25, full - swing, full + swing, 40);
}

int Vehicle::triggeredLines(const WorkingSettings& settings) const
{
    int bits = 0;
    for (int i = 0; i < static_cast<int>(settings.lines.size()); ++i)
        bits |= settings.lines[i].triggered(line(i), m.sensed.lines >> i & 1) << i;
    return bits;
}

double Vehicle::inputs() const
{
    return m.settings ? triggeredLines(*m.settings) : 0;
}

double Vehicle::outputs(int group) const
{
    const bool switched = m.settings && m.sensed.outputNow(m.settings->output, m.time);
    return (c.outputs >> (8 * group) & 0xFF) | (group == 0 && switched);
}

bool Vehicle::engineRuns(const WorkingSettings& settings) const
{
    constexpr int usualLevel = 13200;
    if (settings.supply.used())
        return supply() >= (settings.supply.ownEngineLevel ? settings.supply.engineLevel : usualLevel);
    return settings.hasIgnition(triggeredLines(settings));
}

bool Vehicle::doorOpen() const
{
    return parkedSeconds() > 60 && parkedSeconds() < 600;
}

double Vehicle::frequency(int index) const
{
    return index < 2 && running() ? drift(26 + index, 180, 240, 60) : 0;
}

// Fuel: the second tank empties first; what is in the third one, of the body, stays there.

double Vehicle::fuelLeft(std::size_t tank) const
{
    constexpr double half = tankLitres / 2;
    switch (tank) {
    case 0:
        return tanks[0].litres;
    case 1:
        return std::min(m.at.fuel, half);
    case 2:
        return std::max(0.0, m.at.fuel - half);
    case 3:
        return 150;
    default:
        return 0;
    }
}

double Vehicle::fuelSensor(int sensor) const
{
    const std::size_t index = 1 + static_cast<std::size_t>(sensor);
    const Tank& tank = tanks[index];
    if (c.fuelHeights[index])
        return sensorValue(tank, *c.fuelHeights[index]);
    const double litres = fuelLeft(index);
    const double swing = driving() && litres > 0 ? drift(30 + sensor, -25, 25, 4) : 0;
    return std::clamp(sensorValue(tank, fuelHeight(tank, litres)) + swing, 0.0, sensorValue(tank, 1));
}

double Vehicle::recordedFuel(int sensor) const
{
    if (m.sensed.fuelCounts)
        return fuelSensor(sensor);
    Moment before = m;
    before.at.fuel = m.sensed.fuelRead;
    before.activity = Activity::Parked;
    return Vehicle(before, c, links).fuelSensor(sensor);
}

double Vehicle::slosh(int sensor) const
{
    constexpr double wave = 200;
    return driving() && m.sensed.fuelCounts ? drift(420 + sensor, -wave, wave, 3) : 0;
}

bool Vehicle::isOnLine(LineOwner device) const
{
    return m.settings && m.settings->serial.is(device);
}

Vehicle::FuelSource Vehicle::fuelSource(int row) const
{
    constexpr int sensors = 6;
    if (!m.settings)
        return {};
    const SerialLineRules& line = m.settings->serial;
    if (isOnLine(LineOwner::Fuel) && line.sensorUsed[row]) {
        const int sensor = line.sensorAddress[row] - 1;
        if (sensor >= 0 && sensor < sensors)
            return {sensor, line.sensorFiltered[row] != 0};
    }
    const BluetoothDevice* device = heard(BluetoothRules::Fuel, row);
    return {device ? device->tankSensor : -1, true};
}

const BluetoothDevice* Vehicle::heard(BluetoothRules::Type type, int place) const
{
    const int device = m.settings ? m.settings->bluetooth.deviceFor(type, place) : -1;
    return device < 0 ? nullptr : &bluetoothDevices[device];
}

double Vehicle::passengers(int counter) const
{
    constexpr double none = 255;
    constexpr double seats = 50;
    if (!isOnLine(LineOwner::Counters) ||
        counter >= static_cast<int>(m.settings->serial.counterAddress.size()) ||
        m.settings->serial.counterAddress[counter] == 0)
        return none;
    return std::floor(drift(400 + counter, 0, seats, 1800));
}

double Vehicle::fuelPercent() const
{
    constexpr double percentFlag = 0x8000;
    return percentFlag + std::round(m.at.fuel / tankLitres * 100);
}

double Vehicle::flow() const
{
    return running() ? (driving() ? 60 + m.speed * 2.4 : 22) * drift(33, 0.9, 1.1, 20) : 0;
}

// Temperatures: the cooled body front and back, the cabin, the outside.

double Vehicle::temperature(int sensor) const
{
    constexpr double noise = 1.5;
    const bool filtered = !m.settings || sensor >= static_cast<int>(m.settings->zones.size()) ||
                          m.settings->zones[sensor].filtered;
    return steadyTemperature(sensor) + (filtered ? 0 : drift(410 + sensor, -noise, noise, 30));
}

double Vehicle::steadyTemperature(int sensor) const
{
    switch (sensor) {
    case 0:
        return drift(40, 1, 6, 1200);
    case 1:
        return drift(41, 2, 7, 1500);
    case 2:
        return running() ? drift(42, 19, 24, 900) : m.outside + 2;
    case 3:
        return m.outside;
    default:
        return noI8;
    }
}

double Vehicle::fineTemperature(int place) const
{
    constexpr double unitsToADegree = 20;
    const BluetoothDevice* device = heard(BluetoothRules::Temperature, place);
    return device && device->climate >= 0 ? drift(430 + device->climate, 1.5, 6, 900) * unitsToADegree
                                          : noI16;
}

double Vehicle::humidity(int place) const
{
    const BluetoothDevice* device = heard(BluetoothRules::Temperature, place);
    return device && device->tellsHumidity ? drift(440 + device->climate, 110, 170, 1200) : noU8;
}

double Vehicle::coolant() const
{
    return running() ? drift(48, 82, 92, 300) : std::max(m.outside, 85 - parkedSeconds() / 60);
}

// Engine, axles, tyres

double Vehicle::engineTurns() const
{
    if (!running())
        return 0;
    return driving() ? 900 + m.speed * 11 + drift(50, 0, 220, 5) : drift(51, 640, 665, 4);
}

double Vehicle::engineLoad() const
{
    return !running() ? 0 : driving() ? drift(52, 25, 75, 8) + m.acceleration * 15 : 12;
}

double Vehicle::gasPedal() const
{
    return driving() ? std::max(0.0, m.acceleration * 60 + drift(53, 10, 25, 6)) : 0;
}

double Vehicle::brakePedal() const
{
    return std::max(0.0, -m.acceleration * 45);
}

// The load goes down trip by trip.
double Vehicle::axleLoad(int axle) const
{
    constexpr double empty[] = {4900, 6100};
    constexpr double perTrip[] = {60, 430};
    return axle < 2 ? empty[axle] + std::max(0, 10 - m.trip) * perTrip[axle] : noU16;
}

double Vehicle::tyrePressure(int wheel) const
{
    return wheel < wheels ? drift(60 + wheel, 82, 86, 3600) : 0;
}

double Vehicle::tyreTemperature(int wheel) const
{
    constexpr double noTemperature = -127;
    return wheel < wheels ? m.outside + (driving() ? 22 : 8) + drift(80 + wheel, 0, 3, 900) : noTemperature;
}

// Acceleration

double Vehicle::lateral() const
{
    return driving() ? drift(100, -0.16, 0.16, 6) * m.speed / 60 : 0;
}

double Vehicle::shock() const
{
    return driving() ? std::max(hit(), drift(101, 2, 28, 3)) : drift(102, 0.1, 0.9, 3);
}

// A hole in the road now and then, over ten seconds.
double Vehicle::hit() const
{
    const std::uint64_t chance = mix(m.seed + 107, static_cast<std::uint64_t>(m.time) / 10);
    return chance % 300 == 0 ? 35 + 64 * fraction(mix(chance)) : 0;
}

double Vehicle::movement() const
{
    return driving() ? drift(103, 2.5, 8, 5) : drift(104, 0, 0.6, 5);
}

double Vehicle::tilt() const
{
    return driving() ? drift(105, 0, 4, 15) : drift(106, 0, 0.4, 600);
}

double Vehicle::shockState() const
{
    return m.sensed.shocks;
}

double Vehicle::speedThresholds() const
{
    double bits = 0;
    for (int i = 0; i < 6; ++i)
        bits += bit(i, m.speed > 50 + i * 10);
    return bits;
}

double Vehicle::thresholds(double g) const
{
    double bits = 0;
    for (int i = 0; i < 4; ++i)
        bits += bit(i, g > 0.05 * (i + 1));
    return bits;
}

// Tachograph and refrigerator

double Vehicle::tachographState() const
{
    constexpr int rest = 0;
    constexpr int work = 2;
    constexpr int drive = 3;
    constexpr int cardOfDriver1 = 4;
    return (driving() ? drive : running() ? work : rest) + cardOfDriver1;
}

double Vehicle::refrigeratorRuns() const
{
    return bit(0, m.trip > 0);
}

double Vehicle::refrigeratorTemperature(int zone) const
{
    return zone == 0 ? drift(110, 180, 520, 900) : zone == 1 ? drift(111, 200, 560, 1100) : 0;
}

} // namespace tracker
