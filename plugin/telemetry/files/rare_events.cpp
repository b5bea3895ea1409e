#include "telemetry/files/rare_events.h"

#include <algorithm>
#include <iterator>

namespace vlk {

namespace {

constexpr int kRoutineShare = 20;
constexpr int kCodes = 1 << 16;

} // namespace

std::vector<int> rareEvents(RecordColumns& columns, const std::vector<int>& records)
{
    const std::vector<quint32>& codes = columns.codes();
    std::vector<int> counts(kCodes);
    for (const quint32 code : codes)
        ++counts[code];
    const int all = columns.store().size();
    std::vector<int> rare;
    std::ranges::copy_if(records, std::back_inserter(rare), [&](int record) {
        return codes[record] != 0 && counts[codes[record]] * qint64{kRoutineShare} <= all;
    });
    return rare;
}

} // namespace vlk
