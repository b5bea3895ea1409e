// Decoding records into a reused page, beside copying the bytes of each into a buffer: 20,000 different
// records, so that neither finds its bytes in a cache that only one record would fit.

#include "bench/side_by_side.h"
#include "telemetry/record/record_head.h"
#include "telemetry/record/tmi_page_zeta3.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <random>
#include <unistd.h>
#include <vector>

using namespace vlk;

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int kRecords = 20'000;

Bytes recordOf(const FieldMask& mask, std::mt19937& random)
{
    Bytes record(RecordHead::kBytes + static_cast<std::size_t>(mask.payloadSize()));
    std::ranges::generate(record, [&random] { return static_cast<std::uint8_t>(random()); });
    record[0] = kTelemetryRecord;
    record[1] = kProtocol3;
    std::ranges::copy(mask.bytes(), record.begin() + 2);
    return record;
}

FieldMask full(int /*number*/, std::mt19937& /*random*/)
{
    return FieldMask::fromText(std::string(kFieldCount, '1'));
}

FieldMask usual(int /*number*/, std::mt19937& /*random*/)
{
    return FieldMask::fromText(kDefaultMaskText);
}

// No two fields are neighbours, the worst that a mask can ask for.
FieldMask everySecondField(int /*number*/, std::mt19937& /*random*/)
{
    FieldMask mask;
    for (int field = 0; field < kFieldCount; field += 2)
        mask.set(field);
    return mask;
}

// Records of all sizes, each with a mask of its own.
FieldMask anyFields(int number, std::mt19937& random)
{
    FieldMask mask;
    for (int field = 0; field < kFieldCount; ++field)
        mask.set(field, random() % kRecords < static_cast<unsigned>(number));
    return mask;
}

long residentKilobytes()
{
    std::ifstream statm("/proc/self/statm");
    long total = 0;
    long resident = 0;
    statm >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void decode(benchmark::State& state, FieldMask (*maskOf)(int, std::mt19937&))
{
    std::mt19937 random(7106);
    std::vector<Bytes> records;
    for (int number = 0; number < kRecords; ++number)
        records.push_back(recordOf(maskOf(number, random), random));
    TmiPage_Zeta3 page;
    Bytes copy(RecordHead::kBytes + kBlockBytes);
    const long before = residentKilobytes();
    bench::sideBySide(
        state, "x copying",
        [&] {
            for (const Bytes& record : records) {
                page.setRecord(record.data(), static_cast<qsizetype>(record.size()));
                benchmark::DoNotOptimize(page.valueBlock().data());
                benchmark::ClobberMemory();
            }
        },
        [&] {
            for (const Bytes& record : records) {
                std::memcpy(copy.data(), record.data(), record.size());
                benchmark::DoNotOptimize(copy.data());
                benchmark::ClobberMemory();
            }
        });
    state.SetItemsProcessed(state.iterations() * kRecords);
    // What the process grew by.
    state.counters["grown_kB"] = static_cast<double>(residentKilobytes() - before);
}

BENCHMARK_CAPTURE(decode, full, full)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(decode, usual, usual)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(decode, every_second_field, everySecondField)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(decode, any_fields, anyFields)->UseManualTime()->Unit(benchmark::kMicrosecond);

} // namespace
