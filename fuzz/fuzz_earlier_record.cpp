// An earlier record gives what the present decoder gives for the fields that both know.

#include "telemetry/record/tmi_page_zeta2.h"
#include "telemetry/record/tmi_page_zeta3.h"

#include <cstdlib>

using namespace vlk;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const TmiPage_Zeta2 earlier(data, static_cast<qsizetype>(size));
    const TmiPage_Zeta3 present(data, static_cast<qsizetype>(size));
    if (earlier.isExtra() != present.isExtra() || earlier.number() != present.number())
        std::abort();
    for (int i = 0; i < kElementCount; ++i) {
        const auto index = static_cast<ElementIndex>(i);
        const bool known = kElements[i].field < kEarlierFieldCount;
        if (earlier.raw(index) != (known ? present.raw(index) : 0))
            std::abort();
    }
    return 0;
}
