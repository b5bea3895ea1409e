// Converting on the command line and filtering, beside what they cannot do without: a table of numbers beside
// std::to_chars of the same cells into a buffer and to a file, by the time that a core works on either; the
// same on two cores beside one and beside std::to_chars; a filter within 100 ms.

#include "bench/drive.h"
#include "bench/side_by_side.h"
#include "telemetry/files/export_form.h"
#include "telemetry/files/filter_parser.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/resource.h>

using bench::drive;
using namespace vlk;

namespace {

// The cells of one record, as numbers.
struct Cell
{
    enum class Kind { Whole, Fixed, Single, Moment } kind;
    int decimals;
    double number;
};

std::vector<Cell> cellsOf(const RecordStore& records)
{
    std::vector<Cell> cells;
    records.forEach([&](const TmiPage_Zeta3& page) {
        for (int i = 0; i < kElementCount; ++i) {
            const auto index = static_cast<ElementIndex>(i);
            const Measure& measure = kElements[i].measure;
            if (!page.has(index))
                continue;
            if (measure.unit == Unit::UnixSeconds)
                cells.push_back({Cell::Kind::Moment, 0, page.number(index)});
            else if (kElements[i].type == ValueType::F32)
                cells.push_back({Cell::Kind::Single, 0, page.number(index)});
            else if (measure.divisor != 1)
                cells.push_back({Cell::Kind::Fixed, measure.unit == Unit::Degree ? 7 : 3,
                                 measure.of(page.number(index))});
            else
                cells.push_back({Cell::Kind::Whole, 0, page.number(index)});
        }
    });
    return cells;
}

char* putMoment(char* to, std::int64_t seconds)
{
    const std::chrono::sys_seconds time{std::chrono::seconds(seconds)};
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    for (const auto part : {static_cast<std::int64_t>(static_cast<int>(date.year())),
                            static_cast<std::int64_t>(static_cast<unsigned>(date.month())),
                            static_cast<std::int64_t>(static_cast<unsigned>(date.day())),
                            static_cast<std::int64_t>(clock.hours().count()),
                            static_cast<std::int64_t>(clock.minutes().count()),
                            static_cast<std::int64_t>(clock.seconds().count())}) {
        to = std::to_chars(to, to + 20, part).ptr;
        *to++ = '-';
    }
    return to;
}

char* put(char* to, const Cell& cell)
{
    switch (cell.kind) {
    case Cell::Kind::Whole:
        return std::to_chars(to, to + 32, static_cast<std::int64_t>(cell.number)).ptr;
    case Cell::Kind::Fixed:
        return std::to_chars(to, to + 32, cell.number, std::chars_format::fixed, cell.decimals).ptr;
    case Cell::Kind::Single:
        return std::to_chars(to, to + 32, static_cast<float>(cell.number)).ptr;
    case Cell::Kind::Moment:
        return putMoment(to, static_cast<std::int64_t>(cell.number));
    }
    return to;
}

void print(const std::vector<Cell>& cells, const QString& path)
{
    QFile plain(path);
    std::vector<char> buffer(65'536);
    char* end = buffer.data();
    if (!plain.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qFatal("no file");
    for (const Cell& cell : cells) {
        end = put(end, cell);
        *end++ = ',';
        if (end - buffer.data() > 65'000)
            plain.write(buffer.data(), std::exchange(end, buffer.data()) - buffer.data());
    }
    plain.write(buffer.data(), end - buffer.data());
}

// What a core works, whatever else the machine does meanwhile.
template <class Work>
double workingSeconds(int who, Work work)
{
    const auto worked = [who] {
        rusage usage{};
        getrusage(who, &usage);
        const auto seconds = [](const timeval& time) {
            return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
        };
        return seconds(usage.ru_utime) + seconds(usage.ru_stime);
    };
    const double before = worked();
    work();
    return worked() - before;
}

class StoredDrive
{
public:
    explicit StoredDrive(const RecordStore& records)
    {
        QFile file(path("drive.tmi"));
        if (!file.open(QIODevice::WriteOnly) || !exportRecords(file, records, ExportForm::Tmi, {}))
            qFatal("no file");
    }

    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    void convert(const QString& cores) const
    {
        QProcess process;
        process.setStandardOutputFile(path("converted.csv"));
        process.start("taskset", {"-c", cores, VLK_COMMAND, "convert", path("drive.tmi"), "--to", "csv"});
        if (!process.waitForFinished() || process.exitCode() != 0)
            qFatal("not converted");
    }

private:
    const QTemporaryDir folder_;
};

void convertToCsv(benchmark::State& state)
{
    const RecordStore records = drive(300'000);
    const StoredDrive stored(records);
    const auto convert = [&] { return workingSeconds(RUSAGE_CHILDREN, [&] { stored.convert("0"); }); };
    const std::vector<Cell> cells = cellsOf(records);
    const QString plain = stored.path("plain.csv");
    const auto printAll = [&] { return workingSeconds(RUSAGE_SELF, [&] { print(cells, plain); }); };
    bench::sideBySide(state, "x to_chars", convert, printAll);
}

void convertOnTwoCores(benchmark::State& state)
{
    const RecordStore records = drive(300'000);
    const StoredDrive stored(records);
    const std::vector<Cell> cells = cellsOf(records);
    const QString plain = stored.path("plain.csv");
    bench::sideBySide(
        state, [&] { stored.convert("0,1"); }, bench::Against{"x one core", [&] { stored.convert("0"); }},
        bench::Against{"x to_chars", [&] { print(cells, plain); }});
}

// A million records; their columns are decoded anew each time, as when a file was opened.
void filter(benchmark::State& state)
{
    const RecordStore records = drive(1'000'000);
    const Filter condition =
        *parseFilter(QStringLiteral("Speed > 60 and Latitude < 56"), FilterNames()).filter;
    for ([[maybe_unused]] auto _ : state) {
        RecordColumns columns(records);
        benchmark::DoNotOptimize(passing(condition, columns));
    }
}

} // namespace

BENCHMARK(convertToCsv)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(convertOnTwoCores)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->Unit(benchmark::kMillisecond);
