// Both roads of an extra packet: the entries tile the area, and everything of them can be read.

#include "telemetry/record/tmi_page_zeta3.h"

#include <cstdlib>
#include <vector>

using namespace vlk;

namespace {

void check(const ExtraPacket& packet)
{
    const std::uint8_t* at = packet.area().data();
    packet.forEachEntry([&](const ExtraEntry& entry) {
        if (entry.value.data() != at + 2)
            std::abort();
        at = entry.value.data() + entry.value.size();
        static_cast<void>(entry.number());
        if (entry.text().size() > static_cast<int>(entry.value.size()))
            std::abort();
    });
    const auto left = packet.area().data() + packet.area().size() - at;
    if (left < 0 || left > 1)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint8_t> packet(data, data + size);
    if (!packet.empty())
        packet[0] = 177;
    static TmiPage_Zeta3 page;
    page.setRecord(packet.data(), static_cast<qsizetype>(size));
    check(page.extra());
    page.setKeyAnswer(packet.data(), static_cast<qsizetype>(size));
    check(page.extra());
    if (page.extra().value<element("State")>() != 0 || page.extra().hSize() != 0)
        std::abort();
    return 0;
}
