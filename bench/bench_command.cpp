// What the program r7106 takes: to start, against a program that does nothing, and to check configurations,
// against reading their documents alone.

#include "bench/side_by_side.h"
#include "review/check_file.h"
#include "tests/support/files.h"
#include "xml/xml_document.h"

#include <QProcess>

namespace {

void runUnheard(const char* program, const QStringList& arguments = {})
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QString::fromUtf8(program), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s does not run", program);
}

void startOfCommand(benchmark::State& state)
{
    bench::sideBySide(
        state, "x true", [] { runUnheard(VLK_COMMAND, {QStringLiteral("--version")}); },
        [] { runUnheard("true"); });
}

void checkConfiguration(benchmark::State& state)
{
    const QByteArray text = readFile(VLK_SOURCE "/workbench/tracker/factory.xml");
    const QString device = QStringLiteral("DEVICE");
    bench::sideBySide(
        state, "x reading it",
        [&] {
            vlk::XmlDocument document(text, device);
            benchmark::DoNotOptimize(vlk::review::checkDocument(*document.root()));
        },
        [&] {
            const vlk::XmlDocument document(text, device);
            benchmark::DoNotOptimize(document.isOpen());
        });
}

BENCHMARK(startOfCommand)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(checkConfiguration)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
