#include "tracker/record_archive.h"

#include <algorithm>

namespace tracker {

namespace {

constexpr quint64 kVehicleSeed = 7106;
constexpr quint32 kCapacity = 131072;
// Some three days of records.
constexpr quint32 kSearchedBack = 8000;

} // namespace

RecordArchive::RecordArchive(const TrackerMemory& memory, const SettingsHistory& settings)
    : memory_(memory), drive_(kVehicleSeed, memory.firstMidnight(), settings)
{
}

RecordArchive::Found RecordArchive::byNumber(quint32 number, qint64 now, const DataSet& dataSet)
{
    const quint32 newest = drive_.lastBefore(now);
    const quint32 oldest = newest < kCapacity ? 0 : newest - kCapacity + 1;
    const Moment moment = record(std::clamp(number, oldest, newest));
    const Controls controls = memory_.controlsAt(moment.time);
    const Vehicle vehicle(moment, controls, dataSet.links);
    // Firmware of the earlier versions made no packets.
    const bool packet = moment.kind != RecordKind::Telemetry && dataSet.version == 30;
    return {moment.number, static_cast<quint32>(moment.time),
            packet ? packetBytes(vehicle, PacketRoad::Archive) : recordBytes(vehicle, dataSet)};
}

RecordArchive::Found RecordArchive::lastBefore(qint64 time, qint64 now, const DataSet& dataSet)
{
    return byNumber(drive_.lastBefore(std::min(time, now)), now, dataSet);
}

RecordArchive::Found RecordArchive::firstAfter(qint64 time, qint64 now, const DataSet& dataSet)
{
    return byNumber(drive_.firstAfter(std::min(time, now)), now, dataSet);
}

QByteArray RecordArchive::current(qint64 now, const DataSet& dataSet)
{
    const Controls controls = memory_.controlsAt(now);
    return recordBytes(Vehicle(drive_.at(now), controls, dataSet.links), dataSet);
}

QByteArray RecordArchive::lastPacket(RecordKind kind, qint64 now)
{
    const quint32 newest = drive_.lastBefore(now);
    for (quint32 back = 0; back <= std::min(newest, kSearchedBack); ++back) {
        const Moment moment = record(newest - back);
        if (moment.kind == kind) {
            const Controls controls = memory_.controlsAt(moment.time);
            return packetBytes(Vehicle(moment, controls), PacketRoad::Question);
        }
    }
    return {};
}

Moment RecordArchive::record(quint32 number)
{
    Moment moment = drive_.record(number);
    const auto change = memory_.changeWithin(moment.time - moment.segmentSeconds, moment.time);
    if (change && moment.kind == RecordKind::Telemetry)
        moment.code = static_cast<quint16>(*change);
    return moment;
}

} // namespace tracker
