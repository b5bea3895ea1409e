// The first opening of the configuration dialog, as a user meets it: nothing of it, nor of any dialog, was
// made in the process before. Each opening has a process of this program of its own, which tells the seconds;
// the baseline is the first opening of an empty dialog.

#include "bench/first_opening.h"
#include "bench/opened_dialogs.h"
#include "bench/side_by_side.h"

#include <QProcess>

#include <cstdio>

namespace {

const QString kOpenConfiguration = QStringLiteral("--open-configuration");
const QString kOpenEmptyDialog = QStringLiteral("--open-empty-dialog");

void openConfigurationOnce()
{
    VLK_Widget_Config dialog;
    bench::openConfiguration(dialog);
}

double secondsAlone(const QString& what)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {what});
    bool isNumber = false;
    const double seconds =
        process.waitForFinished() ? process.readAllStandardOutput().trimmed().toDouble(&isNumber) : 0;
    if (!isNumber)
        qFatal("%s told no time", qPrintable(what));
    return seconds;
}

void openConfigurationInAFreshProcess(benchmark::State& state)
{
    bench::sideBySide(
        state, "x empty dialog", [] { return secondsAlone(kOpenConfiguration); },
        [] { return secondsAlone(kOpenEmptyDialog); });
}

BENCHMARK(openConfigurationInAFreshProcess)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace

bool bench::openedAlone()
{
    const QStringList arguments = QCoreApplication::arguments();
    const bool isConfiguration = arguments.contains(kOpenConfiguration);
    if (!isConfiguration && !arguments.contains(kOpenEmptyDialog))
        return false;
    auto* const open = isConfiguration ? &openConfigurationOnce : &openEmptyDialog;
    std::printf("%.9f\n", secondsOf(*open));
    return true;
}
