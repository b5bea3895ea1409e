// Reading and writing files of telemetry. Reading XML stands beside the SAX parser of libxml2 that does
// nothing over the same bytes; writing beside snprintf of the same cells into a buffer. The counters tell
// megabytes a second and the ratio.

#include "bench/side_by_side.h"
#include "telemetry/files/csv_columns.h"
#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_csv_writer.h"
#include "telemetry/files/telemetry_xml_reader.h"
#include "telemetry/files/telemetry_xml_writer.h"
#include "tests/support/records.h"

#include <QBuffer>

#include <libxml/parser.h>

#include <cstdio>
#include <malloc.h>
#include <random>

using namespace vlk;

namespace {

constexpr int kAllFields = kFieldCount;
constexpr int kUsualFields = 60;

// Records with values as they are on the road; `fields` of them, evenly spread.
TelemetryPages pagesWith(int count, int fields)
{
    std::mt19937 random(7106);
    FieldMask mask;
    for (int i = 0; i < fields; ++i)
        mask.set(i * kFieldCount / fields);
    TelemetryPages pages;
    for (int i = 0; i < count; ++i)
        pages.push_back(std::make_unique<TmiPage_Zeta3>(176, 30, mask, plausibleBlock(random)));
    return pages;
}

template <class Write>
QByteArray written(Write write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    write(buffer);
    return buffer.data();
}

template <class Read>
TelemetryContents readFrom(Read read, QByteArray& bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

// Counts and forgets, so that only the writer is measured.
class Sink : public QIODevice
{
public:
    Sink() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 size) override { return size; }
};

void readXml(benchmark::State& state, int fields)
{
    const TelemetryPages pages = pagesWith(2000, fields);
    QByteArray file = written([&](QIODevice& device) { writeTelemetryXml(device, pages, {}); });
    const auto read = [&] { benchmark::DoNotOptimize(readFrom(readTelemetryXml, file)); };
    const auto walk = [&] {
        xmlSAXHandler idle{};
        idle.initialized = XML_SAX2_MAGIC;
        xmlSAXUserParseMemory(&idle, nullptr, file.constData(), file.size());
    };
    bench::sideBySide(state, "idle_sax", read, walk);
    state.SetBytesProcessed(state.iterations() * file.size());
}

void print(const TmiPage_Zeta3& page, ElementIndex index, const char* form, std::string_view name)
{
    char buffer[512];
    const int length = static_cast<int>(name.size());
    int used = std::snprintf(buffer, sizeof buffer, form, length, name.data());
    if (kElements[index].type == ValueType::f32)
        used += std::snprintf(buffer + used, sizeof buffer - used, "%.9g", page.number(index));
    else
        used += std::snprintf(buffer + used, sizeof buffer - used, "%lld",
                              static_cast<long long>(page.integer(index)));
    std::snprintf(buffer + used, sizeof buffer - used, form, length, name.data());
    benchmark::DoNotOptimize(buffer);
}

void writeXml(benchmark::State& state, int fields)
{
    const TelemetryPages pages = pagesWith(1000, fields);
    const auto write = [&] {
        Sink sink;
        writeTelemetryXml(sink, pages, {});
    };
    const auto printAll = [&] {
        for (const auto& page : pages) {
            for (int i = 0; i < kElementCount; ++i) {
                if (page->has(static_cast<ElementIndex>(i)))
                    print(*page, static_cast<ElementIndex>(i), "\t\t<%.*s>", kElements[i].name);
            }
        }
    };
    bench::sideBySide(state, "snprintf", write, printAll);
}

double bytesInUse()
{
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// 1,000 full records, a tenth of a long export. The memory in use afterwards is that before.
void writeCsv(benchmark::State& state)
{
    const TelemetryPages pages = pagesWith(1000, kAllFields);
    const auto write = [&] {
        Sink sink;
        writeTelemetryCsv(sink, pages, {}, {});
    };
    const auto printAll = [&] {
        for (const auto& page : pages) {
            for (const CsvColumn& column : csvColumns())
                print(*page, column.element(), "=\"%.*s", "");
        }
    };
    const double before = bytesInUse();
    bench::sideBySide(state, "snprintf", write, printAll);
    state.counters["bytes_grown"] = bytesInUse() - before;
}

// 100,000 records of 60 fields.
void readMany(benchmark::State& state, bool binary)
{
    TelemetryPages pages = pagesWith(100'000, kUsualFields);
    QByteArray file = written([&](QIODevice& device) {
        if (binary)
            writeTelemetryBinary(device, pages, {});
        else
            writeTelemetryXml(device, pages, {});
    });
    pages.clear();
    for ([[maybe_unused]] auto _ : state) {
        const double before = bytesInUse();
        const TelemetryContents contents =
            binary ? readFrom(readTelemetryBinary, file) : readFrom(readTelemetryXml, file);
        state.counters["bytes_per_record"] =
            (bytesInUse() - before) / static_cast<double>(std::max<std::size_t>(contents.pages.size(), 1));
    }
    state.counters["MB"] = file.size() / 1e6;
}

} // namespace

BENCHMARK_CAPTURE(readXml, usual_fields, kUsualFields)->UseManualTime();
BENCHMARK_CAPTURE(readXml, all_fields, kAllFields)->UseManualTime();
BENCHMARK_CAPTURE(writeXml, usual_fields, kUsualFields)->UseManualTime();
BENCHMARK_CAPTURE(writeXml, all_fields, kAllFields)->UseManualTime();
BENCHMARK(writeCsv)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readMany, xml, false)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(readMany, binary, true)->Unit(benchmark::kMillisecond)->Iterations(1);
