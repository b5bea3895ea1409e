// One application for all measurements, offscreen unless the caller chose a platform, with the Russian texts
// as people have them.

#include "bench/first_opening.h"
#include "window/key_translator.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    workbench::KeyTranslator texts;
    if (!texts.load(QStringLiteral(VLK_TEXTS "/ru.qm")))
        qFatal("no texts in " VLK_TEXTS);
    QCoreApplication::installTranslator(&texts);
    if (bench::openedAlone())
        return 0;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
