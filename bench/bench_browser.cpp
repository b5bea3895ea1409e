// The windows for stored telemetry. Scrubbing the browser, and scrolling a table of a million records, beside
// one full painting of the window; opening a table of 100,000 records beside reading the file; sorting the
// million by a column beside sorting as many numbers.

#include "bench/settle.h"
#include "bench/side_by_side.h"
#include "telemetry/files/telemetry_file.h"
#include "telemetry/view/widget_tmi_page.h"
#include "telemetry/view/widget_tmi_table.h"
#include "tests/support/whole_files.h"

#include <QApplication>
#include <QScrollBar>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>
#include <random>

using bench::settle;
using namespace vlk;

namespace {

constexpr int kManyRecords = 100'000;
constexpr int kMillion = 1'000'000;

RecordStore recordsOf(int count, const std::string& mask)
{
    std::mt19937 random(7106);
    RecordStore records;
    TmiPage_Zeta3::ValueBlock block;
    for (int i = 0; i < count; ++i) {
        std::ranges::generate(block, [&] { return static_cast<std::uint8_t>(random()); });
        qToLittleEndian(static_cast<quint32>(i), block.data() + kElements[element("NumPage")].offset);
        records.add(30, FieldMask::fromText(mask), block);
    }
    return records;
}

QString fileOf(int count, const std::string& mask)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QString::number(count) + QLatin1String(".xml"));
    if (!QFile::exists(path))
        saveTelemetryFile(path, TelemetryForm::Xml, recordsOf(count, mask), {});
    return path;
}

const std::string kSomeFields(60, '1');

void scrubBrowser(benchmark::State& state)
{
    VLK_Widget_Tmi_Page window;
    window.show();
    window.open(fileOf(1000, std::string(kFieldCount, '1')));
    settle();
    auto* slider = window.findChild<QSlider*>(QStringLiteral("horizontalSlider"));
    bench::sideBySide(
        state, "x painting",
        [&] {
            slider->setValue((slider->value() + 1) % slider->maximum());
            settle();
        },
        [&] { window.repaint(); });
}

void openTable(benchmark::State& state)
{
    const QString path = fileOf(kManyRecords, kSomeFields);
    VLK_Widget_Tmi_Table window;
    const auto* table = window.findChild<QTableView*>(QStringLiteral("tableWidget"));
    window.show();
    bench::sideBySide(
        state, "x reading",
        [&] {
            window.open(path);
            while (table->model()->rowCount() == 0)
                settle();
        },
        [&] { benchmark::DoNotOptimize(readTelemetryFile(path)); });
}

QTableView* openedTable(VLK_Widget_Tmi_Table& window)
{
    static const auto contents = [] {
        auto made = std::make_shared<TelemetryContents>();
        made->records = recordsOf(kMillion, kSomeFields);
        return made;
    }();
    window.show();
    window.open(contents, QString());
    settle();
    return window.findChild<QTableView*>(QStringLiteral("tableWidget"));
}

void scrollTable(benchmark::State& state)
{
    VLK_Widget_Tmi_Table window;
    QTableView* const table = openedTable(window);
    std::mt19937 random(7106);
    bench::sideBySide(
        state, "x painting",
        [&] {
            table->verticalScrollBar()->setValue(static_cast<int>(random() % kMillion));
            settle();
        },
        [&] { table->viewport()->repaint(); });
}

void sortTable(benchmark::State& state)
{
    VLK_Widget_Tmi_Table window;
    QTableView* const table = openedTable(window);
    std::mt19937 random(7106);
    std::vector<double> unsorted(kMillion);
    std::ranges::generate(unsorted, random);
    bench::sideBySide(
        state, "x sorting numbers",
        [&] {
            table->sortByColumn(static_cast<int>(state.range(0)), Qt::DescendingOrder);
            settle();
        },
        [&] {
            std::vector<double> numbers = unsorted;
            std::ranges::stable_sort(numbers);
            benchmark::DoNotOptimize(numbers.data());
        });
}

BENCHMARK(scrubBrowser)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openTable)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(scrollTable)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sortTable)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(2)->Arg(0)->Arg(2)->Arg(30);

} // namespace
