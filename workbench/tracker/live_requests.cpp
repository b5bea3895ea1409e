#include "tracker/live_requests.h"

#include "check/sealed_record.h"
#include "tracker/bytes.h"
#include "tracker/driver.h"
#include "tracker/vehicle_fuel.h"
#include "tracker/vehicle_motion.h"
#include "tracker/vehicle_power.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

using vlk::Message;

constexpr int kFirstLine = 21; // id of IN1 in the line list
constexpr int kLineCount = 3;

vlk::IdPair idPair(quint64 number)
{
    return {static_cast<std::uint32_t>(number), static_cast<std::uint32_t>(number >> 32)};
}

// Shocks and movement go as squares, 1800 units being the whole.
std::uint32_t accelWord(double percent)
{
    const double units = percent * 1800 / 100;
    return static_cast<std::uint32_t>(std::lround(units * units));
}

void putWord(QByteArray& record, int offset, double value)
{
    const auto little = qToLittleEndian(static_cast<quint16>(std::clamp(std::round(value), 0.0, 65535.0)));
    record.replace(offset, sizeof little, reinterpret_cast<const char*>(&little), sizeof little);
}

} // namespace

LiveRequests::LiveRequests(TrackerMemory& memory, std::function<Vehicle()> present)
    : memory_(memory), present_(std::move(present))
{
}

void LiveRequests::addTo(Handlers& handlers)
{
    handlers[Message::RequestLines] = [this](void* p1) { return lines(static_cast<const QByteArray*>(p1)); };
    handlers[Message::RequestAnalog] = [this](void*) { return analog(); };
    handlers[Message::RequestSupply] = [this](void*) -> Answers {
        vlk::SupplyRecord record{};
        record.values[vlk::kSupplyElement] =
            static_cast<std::uint16_t>(std::lround(supplyVoltage(present_())));
        Answer answer = Answer::record(record);
        workbench::seal(answer.data, Message::RequestSupply);
        return {answer};
    };
    handlers[Message::RequestAccel] = [this](void*) -> Answers {
        constexpr double degree = 3.14159265358979323846 / 180;
        const Vehicle vehicle = present_();
        return {Answer::record(vlk::AccelValues{accelWord(movement(vehicle)), tilt(vehicle) * degree,
                                                accelWord(shock(vehicle))})};
    };
    handlers[Message::RequestAccelCommand] = [](void*) -> Answers {
        constexpr char done = 49;
        QByteArray record(vlk::kAccelResultSize, '\0');
        record[vlk::kAccelStatusByte] = done;
        return {{Answer::Form::Record, record, {}}};
    };
    handlers[Message::WaitStepEnd] = [](void*) -> Answers { return {Answer{}}; };
    handlers[Message::RequestLiveKey] = [this](void*) -> Answers {
        return {Answer::record(idPair(driverOf(present_().m).key))};
    };
    handlers[Message::RequestRfid] = [this](void*) -> Answers {
        const Vehicle vehicle = present_();
        Answer answer = Answer::record(idPair(tagNumber(vehicle.m)));
        const double level = vehicle.drift(300, -95, -55, 10); // dBm
        answer.second = QByteArray(1, static_cast<char>(std::lround(level)));
        return {answer};
    };
    handlers[Message::SetCanLogProgram] = [this](void* p1) -> Answers {
        if (p1)
            memory_.setCanLogProgram(*static_cast<const std::int32_t*>(p1));
        return {};
    };
    handlers[Message::RequestCanLogProgram] = [this](void*) -> Answers {
        return {Answer::record(std::int32_t{memory_.canLogProgram()})};
    };
}

// Seven bytes of header, then "21:HEX,22:HEX"; lines that the tracker lacks are left out.
Answers LiveRequests::lines(const QByteArray* list) const
{
    if (!list)
        return {};
    const Vehicle vehicle = present_();
    QByteArray pairs;
    for (const QByteArray& id : list->split(',')) {
        const int index = id.trimmed().toInt() - kFirstLine;
        if (index < 0 || index >= kLineCount)
            continue;
        if (!pairs.isEmpty())
            pairs += ',';
        pairs += id.trimmed() + ':' + QByteArray::number(qRound(lineVoltage(vehicle, index)), 16).toUpper();
    }
    return {Answer::bytes("LINES: " + pairs)};
}

Answers LiveRequests::analog() const
{
    constexpr int frequencies = 11;
    constexpr int fuelSensors = 25; // D1, three bytes each
    constexpr int fuelSensorCount = 6;
    const Vehicle vehicle = present_();
    QByteArray record(vlk::kAnalogRecordSize, '\0');
    for (int i = 0; i < 2; ++i)
        putWord(record, frequencies + 2 * i, frequency(vehicle, i));
    for (int i = 0; i < kLineCount; ++i)
        putWord(record, vlk::kAnalogRecordLine1 + 2 * i, lineVoltage(vehicle, i));
    for (int i = 0; i < fuelSensorCount; ++i)
        putWord(record, fuelSensors + 3 * i, fuelSensor(vehicle, i));
    workbench::seal(record, Message::RequestAnalog);
    return {{Answer::Form::Record, record, {}}};
}

} // namespace tracker
