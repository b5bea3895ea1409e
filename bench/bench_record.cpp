// Decoding a record into a reused page, beside a copy of the record's bytes into a buffer. A ratio counter
// tells how many such copies a decoding takes.

#include "telemetry/record/record_head.h"
#include "telemetry/record/tmi_page_zeta3.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <ctime>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

using namespace vlk;

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes recordOf(const FieldMask& mask, std::mt19937& random)
{
    Bytes record(RecordHead::kBytes + static_cast<std::size_t>(mask.payloadSize()));
    std::ranges::generate(record, [&random] { return static_cast<std::uint8_t>(random()); });
    record[0] = kTelemetryRecord;
    record[1] = kProtocol3;
    std::ranges::copy(mask.bytes(), record.begin() + 2);
    return record;
}

Bytes recordOf(std::string_view mask)
{
    std::mt19937 random(7106);
    return recordOf(FieldMask::fromText(mask), random);
}

const Bytes& fullRecord()
{
    static const Bytes record = recordOf(std::string(kFieldCount, '1'));
    return record;
}

const Bytes& defaultRecord()
{
    static const Bytes record = recordOf(kDefaultMaskText);
    return record;
}

// Every second field: no two of them are neighbours, the worst that a mask can ask for.
const Bytes& scatteredRecord()
{
    static const Bytes record = [] {
        std::string mask;
        while (mask.size() < kFieldCount)
            mask += "10";
        return recordOf(mask);
    }();
    return record;
}

void copyBytes(const Bytes& record, Bytes& copy)
{
    std::memcpy(copy.data(), record.data(), record.size());
    benchmark::DoNotOptimize(copy.data());
    benchmark::ClobberMemory();
}

// Processor time of one call: the best of many batches, since others use the machine too.
double secondsOf(auto&& work)
{
    constexpr int kBatches = 50;
    constexpr int kCalls = 10000;
    std::clock_t best = std::numeric_limits<std::clock_t>::max();
    for (int batch = 0; batch < kBatches; ++batch) {
        const std::clock_t begin = std::clock();
        for (int i = 0; i < kCalls; ++i)
            work();
        best = std::min(best, std::clock() - begin);
    }
    return static_cast<double>(best) / CLOCKS_PER_SEC / kCalls;
}

void decode(benchmark::State& state, const Bytes& record)
{
    TmiPage_Zeta3 page;
    const auto decodeOnce = [&] {
        page.setRecord(record.data(), static_cast<qsizetype>(record.size()));
        benchmark::DoNotOptimize(page.valueBlock().data());
        benchmark::ClobberMemory();
    };
    for ([[maybe_unused]] auto _ : state)
        decodeOnce();

    Bytes copy(fullRecord().size());
    const double decoding = secondsOf(decodeOnce);
    state.counters["copies_of_it"] = decoding / secondsOf([&] { copyBytes(record, copy); });
    state.counters["copies_of_full"] = decoding / secondsOf([&] { copyBytes(fullRecord(), copy); });
}

long residentKilobytes()
{
    std::ifstream statm("/proc/self/statm");
    long total = 0;
    long resident = 0;
    statm >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// 100,000 records of all sizes through one page: what the process grows by is told in kilobytes.
void decodeManyIntoOne(benchmark::State& state)
{
    std::mt19937 random(1);
    std::vector<Bytes> records;
    for (int i = 0; i < 1000; ++i) {
        FieldMask mask;
        for (int field = 0; field < kFieldCount; ++field)
            mask.set(field, random() % 1000 < static_cast<unsigned>(i));
        records.push_back(recordOf(mask, random));
    }
    TmiPage_Zeta3 page;
    const long before = residentKilobytes();
    for ([[maybe_unused]] auto _ : state) {
        for (int i = 0; i < 100000; ++i) {
            const Bytes& record = records[i % records.size()];
            page.setRecord(record.data(), static_cast<qsizetype>(record.size()));
            benchmark::DoNotOptimize(page.valueBlock().data());
        }
    }
    state.SetItemsProcessed(state.iterations() * 100000);
    state.counters["grown_kB"] = static_cast<double>(residentKilobytes() - before);
}

} // namespace

BENCHMARK_CAPTURE(decode, full, fullRecord());
BENCHMARK_CAPTURE(decode, default_mask, defaultRecord());
BENCHMARK_CAPTURE(decode, every_second_field, scatteredRecord());
BENCHMARK(decodeManyIntoOne)->Unit(benchmark::kMillisecond);
