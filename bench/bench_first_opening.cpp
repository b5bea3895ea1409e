// The first opening of the configuration dialog, as a user meets it: nothing of it, nor of any dialog, was
// made in the process before: the time, and the memory on the heap while it is open. Each opening has a
// process of this program of its own, which tells the number; the baseline is the first opening of an empty
// dialog.

#include "bench/first_opening.h"
#include "bench/opened_dialogs.h"
#include "bench/side_by_side.h"

#include <QProcess>

#include <cstdio>
#include <malloc.h>
#include <optional>

namespace {

// What making and showing it takes; closing it is not counted.
template <class Dialog>
double secondsOf(void (*open)(Dialog&))
{
    std::optional<Dialog> dialog;
    auto make = [&] { open(dialog.emplace()); };
    return bench::secondsOf(make);
}

double bytesOnHeap()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

template <class Dialog>
double bytesOf(void (*open)(Dialog&))
{
    const double before = bytesOnHeap();
    Dialog dialog;
    open(dialog);
    return bytesOnHeap() - before;
}

// What a process of its own measures, by its argument.
struct Measurement
{
    const char* argument;
    double (*measure)();
};
constexpr Measurement kSecondsOfConfiguration{"--seconds-of-configuration",
                                              [] { return secondsOf(&bench::openConfiguration); }};
constexpr Measurement kSecondsOfEmptyDialog{"--seconds-of-empty-dialog",
                                            [] { return secondsOf(&bench::openEmpty); }};
constexpr Measurement kBytesOfConfiguration{"--bytes-of-configuration",
                                            [] { return bytesOf(&bench::openConfiguration); }};
constexpr Measurement kBytesOfEmptyDialog{"--bytes-of-empty-dialog",
                                          [] { return bytesOf(&bench::openEmpty); }};
constexpr Measurement kMeasurements[] = {kSecondsOfConfiguration, kSecondsOfEmptyDialog,
                                         kBytesOfConfiguration, kBytesOfEmptyDialog};

double measuredAlone(const Measurement& what)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(what.argument)});
    bool isNumber = false;
    const double number =
        process.waitForFinished() ? process.readAllStandardOutput().trimmed().toDouble(&isNumber) : 0;
    if (!isNumber)
        qFatal("%s told no number", what.argument);
    return number;
}

void openConfigurationInAFreshProcess(benchmark::State& state)
{
    bench::sideBySide(
        state, "x empty dialog", [] { return measuredAlone(kSecondsOfConfiguration); },
        [] { return measuredAlone(kSecondsOfEmptyDialog); });
    const double bytes = measuredAlone(kBytesOfConfiguration);
    state.counters["heap_MB"] = bytes / 1e6;
    state.counters["heap x empty dialog"] = bytes / measuredAlone(kBytesOfEmptyDialog);
}

BENCHMARK(openConfigurationInAFreshProcess)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace

bool bench::openedAlone()
{
    for (const Measurement& what : kMeasurements) {
        if (QCoreApplication::arguments().contains(QLatin1String(what.argument))) {
            std::printf("%.9f\n", what.measure());
            return true;
        }
    }
    return false;
}
