#include "tracker/driver.h"

#include "tracker/random.h"

namespace tracker {

namespace {

constexpr Driver kDrivers[] = {
    {"SOKOLOV", "ANDREY", "RUD0000071060011", 0x01A4C93B7E52},
    {"MAKAROVA", "ELENA", "RUD0000071060029", 0x01A4C93C0817},
    {"TIKHONOV", "VIKTOR", "RUD0000071060037", 0x01A4C9402D6F},
};

} // namespace

const Driver& driverOf(const Moment& moment)
{
    const auto day = static_cast<quint64>(moment.time / kDaySeconds);
    return kDrivers[mix(moment.seed, day) % std::size(kDrivers)];
}

quint64 tagNumber(const Moment& moment)
{
    constexpr quint64 fiveBytes = 0xFFFFFFFFFF;
    return mix(moment.seed, 8000 + moment.trip % 4) & fiveBytes;
}

} // namespace tracker
