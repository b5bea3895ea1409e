// A record into a reused page: the bytes of the page's fields, packed again, are the bytes that came, and
// nothing of the record before is left.

#include "telemetry/record/tmi_page_zeta3.h"

#include <cmath>
#include <cstdlib>
#include <vector>

using namespace vlk;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static TmiPage_Zeta3 reused;
    reused.setRecord(data, static_cast<qsizetype>(size));
    const TmiPage_Zeta3 fresh(data, static_cast<qsizetype>(size));
    if (reused.valueBlock() != fresh.valueBlock() || reused.payload() != fresh.payload() ||
        reused.number() != fresh.number())
        std::abort();

    std::vector<std::uint8_t> packed;
    double sum = 0;
    for (int i = 0; i < kElementCount; ++i) {
        const auto index = static_cast<ElementIndex>(i);
        sum += reused.number(index);
        if (reused.has(index))
            packed.insert(packed.end(), reused.find(index), reused.find(index) + kElements[i].width);
        else if (reused.raw(index) != 0)
            std::abort();
    }
    static_cast<void>(std::isnan(sum));

    const QByteArray payload = reused.payload();
    const bool whole = reused.type() == 176 && payload.size() >= static_cast<int>(packed.size());
    if (whole && !std::equal(packed.begin(), packed.end(), payload.begin(),
                             [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }))
        std::abort();
    return 0;
}
