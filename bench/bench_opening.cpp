// A million records, 1.0 GB of XML, opened in the window of records until its table, its curves and the
// track, the summary or the fuel show them: how long it takes, how much memory the records and their views
// take, and the longest turn of the event loop, with the painting in it: by the clock, and by the time that a
// core worked on it.

#include "bench/drive.h"
#include "telemetry/files/telemetry_file.h"
#include "telemetry/view/widget_tmi_table.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>

using namespace vlk;

namespace {

// What this thread worked, whatever else the machine does meanwhile.
double workedMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

double residentBytes()
{
    QFile pages(QStringLiteral("/proc/self/statm"));
    if (!pages.open(QIODevice::ReadOnly))
        qFatal("no measure of memory");
    return pages.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void openMillion(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("million.xml"));
    saveTelemetryFile(path, TelemetryForm::Xml, bench::drive(1'000'000), {});
    malloc_trim(0);
    VLK_Widget_Tmi_Table window;
    window.show();
    const auto* table = window.findChild<QTableView*>(QStringLiteral("tableWidget"));
    window.findChild<QTabWidget*>()->setCurrentIndex(static_cast<int>(state.range(0)));
    QCoreApplication::processEvents();
    for ([[maybe_unused]] auto _ : state) {
        const double before = residentBytes();
        double longest = 0;
        double longestWork = 0;
        QElapsedTimer clock;
        clock.start();
        window.open(path);
        double opened = 0;
        // Columns with rare values are looked for longer, in turns that are short.
        for (int idle = 0; idle < 20; ++idle) {
            const double from = static_cast<double>(clock.nsecsElapsed());
            const double workedBefore = workedMilliseconds();
            QCoreApplication::processEvents();
            const double took = static_cast<double>(clock.nsecsElapsed()) - from;
            const double worked = workedMilliseconds() - workedBefore;
            longestWork = std::max(longestWork, worked);
            longest = std::max(longest, took);
            if (table->model()->rowCount() == 0 || took > 15e6) {
                idle = 0;
                opened = static_cast<double>(clock.nsecsElapsed());
            }
        }
        state.counters["MB"] = (residentBytes() - before) / 1e6;
        state.counters["longest_turn_ms"] = longest / 1e6;
        state.counters["longest_turn_working_ms"] = longestWork;
        state.SetIterationTime(opened / 1e9);
    }
}

} // namespace

BENCHMARK(openMillion)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->DenseRange(0, 2);
