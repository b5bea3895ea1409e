// Reading and writing files of telemetry. Reading XML stands beside the SAX parser of libxml2 over the same
// bytes, once doing nothing and once copying the values, in the encoding of the files and in UTF-8, which
// costs that parser less. Writing stands beside one snprintf a cell or element, of its value as the record
// has it.

#include "base/windows1251.h"
#include "bench/side_by_side.h"
#include "telemetry/files/csv_columns.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_csv_writer.h"
#include "telemetry/files/telemetry_xml_writer.h"
#include "tests/support/records.h"
#include "tests/support/whole_files.h"

#include <QBuffer>

#include <libxml/parser.h>

#include <cstdio>
#include <malloc.h>

using namespace vlk;

namespace {

constexpr int kAllFields = kFieldCount;
constexpr int kUsualFields = 60;

// What trackers record unless they are told otherwise, instead of so many fields, evenly spread.
constexpr int kDefaultFields = 0;

// Records with values as they are on the road.
RecordStore recordsWith(int count, int fields)
{
    std::mt19937 random(7106);
    FieldMask mask = fields == kDefaultFields ? FieldMask::fromText(kDefaultMaskText) : FieldMask();
    for (int i = 0; i < fields; ++i)
        mask.set(i * kFieldCount / fields);
    RecordStore records;
    records.setUtcOffset(10800);
    for (int i = 0; i < count; ++i)
        records.add(30, mask, plausibleBlock(random));
    return records;
}

// For the baselines, which are not to decode.
std::vector<std::shared_ptr<TmiPage_Zeta3>> decoded(const RecordStore& records)
{
    std::vector<std::shared_ptr<TmiPage_Zeta3>> pages;
    for (int record = 0; record < records.size(); ++record)
        pages.push_back(records.at(record));
    return pages;
}

TelemetryOrigin namedLines()
{
    TelemetryOrigin origin;
    origin.titles.inputs.fill(QString::fromUtf8("Задняя дверь"));
    origin.titles.temperatures.fill(QString::fromUtf8("Кузов"));
    return origin;
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

xmlSAXHandler idleParser()
{
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    return handler;
}

// Keeps the value of the element or attribute at hand, as whoever uses it has to.
xmlSAXHandler copyingParser()
{
    xmlSAXHandler handler = idleParser();
    handler.startElementNs = [](void* value, const xmlChar*, const xmlChar*, const xmlChar*, int,
                                const xmlChar**, int count, int, const xmlChar** attributes) {
        auto& text = *static_cast<std::string*>(value);
        // Five pointers each: name, prefix, namespace, the value's begin and end.
        for (int i = 0; i < count; ++i) {
            text.assign(attributes[5 * i + 3], attributes[5 * i + 4]);
            benchmark::DoNotOptimize(text.data());
        }
        text.clear();
    };
    handler.characters = [](void* value, const xmlChar* part, int size) {
        static_cast<std::string*>(value)->append(reinterpret_cast<const char*>(part), size);
    };
    handler.endElementNs = [](void* value, const xmlChar*, const xmlChar*, const xmlChar*) {
        benchmark::DoNotOptimize(static_cast<std::string*>(value)->data());
    };
    return handler;
}

void readXml(benchmark::State& state, int fields, bool inUtf8)
{
    const RecordStore records = recordsWith(2000, fields);
    QByteArray file = written([&](QIODevice& device) { writeTelemetryXml(device, records, namedLines()); });
    if (inUtf8)
        file = fromWindows1251(file).toUtf8().replace("windows-1251", "UTF-8");
    const auto parse = [&file](xmlSAXHandler handler) {
        std::string value;
        if (xmlSAXUserParseMemory(&handler, &value, file.constData(), file.size()) != 0)
            qFatal("no XML");
    };
    bench::sideBySide(
        state, [&] { benchmark::DoNotOptimize(readFrom(readTelemetryXml, file)); },
        bench::Against{"x idle SAX", [&] { parse(idleParser()); }},
        bench::Against{"x copying SAX", [&] { parse(copyingParser()); }});
    state.SetBytesProcessed(state.iterations() * file.size());
}

// Gives the number of an element as the record has it: a double of an f32, else a long long.
void withNumber(const TmiPage_Zeta3& page, ElementIndex index, auto print)
{
    if (kElements[index].type == ValueType::F32)
        print(page.number(index));
    else
        print(static_cast<long long>(page.integer(index)));
}

void printCell(auto number)
{
    char buffer[64];
    if constexpr (std::is_floating_point_v<decltype(number)>)
        std::snprintf(buffer, sizeof buffer, "=\"%.9g\";", number);
    else
        std::snprintf(buffer, sizeof buffer, "=\"%lld\";", number);
    benchmark::DoNotOptimize(buffer);
}

void printElement(const char* name, auto number)
{
    char buffer[128];
    if constexpr (std::is_floating_point_v<decltype(number)>)
        std::snprintf(buffer, sizeof buffer, "\t\t<%s>%.9g</%s>\r\n", name, number, name);
    else
        std::snprintf(buffer, sizeof buffer, "\t\t<%s>%lld</%s>\r\n", name, number, name);
    benchmark::DoNotOptimize(buffer);
}

void writeXml(benchmark::State& state, int fields)
{
    const RecordStore records = recordsWith(1000, fields);
    const auto write = [&] {
        Sink sink;
        writeTelemetryXml(sink, records, {});
    };
    const auto printAll = [&, pages = decoded(records)] {
        for (const auto& page : pages) {
            for (int i = 0; i < kElementCount; ++i) {
                const auto index = static_cast<ElementIndex>(i);
                const auto print = [i](auto number) { printElement(kElements[i].name.data(), number); };
                if (page->has(index))
                    withNumber(*page, index, print);
            }
        }
    };
    bench::sideBySide(state, "x snprintf", write, printAll);
}

double bytesInUse()
{
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// 1,000 full records, a tenth of a long export. The memory in use afterwards is that before.
void writeCsv(benchmark::State& state)
{
    const RecordStore records = recordsWith(1000, kAllFields);
    const auto write = [&] {
        Sink sink;
        writeTelemetryCsv(sink, records, {}, {});
    };
    const auto printAll = [&, pages = decoded(records)] {
        for (const auto& page : pages) {
            for (const CsvColumn& column : csvColumns())
                withNumber(*page, column.element(), [](auto number) { printCell(number); });
        }
    };
    const double before = bytesInUse();
    bench::sideBySide(state, "x snprintf", write, printAll);
    state.counters["bytes_grown"] = bytesInUse() - before;
}

// 100,000 records of 60 fields.
void readMany(benchmark::State& state, bool binary)
{
    RecordStore records = recordsWith(100'000, kUsualFields);
    QByteArray file = written([&](QIODevice& device) {
        if (binary)
            writeTelemetryBinary(device, records, {});
        else
            writeTelemetryXml(device, records, {});
    });
    records.clear();
    for ([[maybe_unused]] auto _ : state) {
        const double before = bytesInUse();
        const TelemetryContents contents =
            binary ? readFrom(readTelemetryBinary, file) : readFrom(readTelemetryXml, file);
        state.counters["bytes_per_record"] =
            (bytesInUse() - before) / static_cast<double>(std::max(contents.records.size(), 1));
    }
    state.counters["MB"] = file.size() / 1e6;
}

} // namespace

BENCHMARK_CAPTURE(readXml, default_mask, kDefaultFields, false)->UseManualTime();
BENCHMARK_CAPTURE(readXml, default_mask_utf8, kDefaultFields, true)->UseManualTime();
BENCHMARK_CAPTURE(readXml, usual_fields, kUsualFields, false)->UseManualTime();
BENCHMARK_CAPTURE(readXml, usual_fields_utf8, kUsualFields, true)->UseManualTime();
BENCHMARK_CAPTURE(readXml, all_fields, kAllFields, false)->UseManualTime();
BENCHMARK_CAPTURE(readXml, all_fields_utf8, kAllFields, true)->UseManualTime();
BENCHMARK_CAPTURE(writeXml, usual_fields, kUsualFields)->UseManualTime();
BENCHMARK_CAPTURE(writeXml, all_fields, kAllFields)->UseManualTime();
BENCHMARK(writeCsv)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readMany, xml, false)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(readMany, binary, true)->Unit(benchmark::kMillisecond)->Iterations(1);
