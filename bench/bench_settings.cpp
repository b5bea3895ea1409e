// The settings alone, without a window: reading and writing the tables of all pages against the bare parser
// over the same file, and one edit with its rules.

#include "bench/side_by_side.h"
#include "bench/xml_reader_alone.h"
#include "document/configuration.h"
#include "settings/all_settings.h"
#include "settings/transfer_settings.h"
#include "xml/xml_document.h"

#include <QFile>

namespace {

// A configuration with all sections, as the tracker gives it.
const QString& factoryPath()
{
    static const QString path = QStringLiteral(VLK_SOURCE "/workbench/tracker/factory.xml");
    return path;
}

const QByteArray& factoryText()
{
    static const QByteArray text = [] {
        QFile file(factoryPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    return text;
}

void readSettings(benchmark::State& state)
{
    vlk::Configuration configuration(vlk::allSettings());
    bench::sideBySide(
        state, "x reader",
        [&] {
            vlk::XmlDocument document(factoryText(), QStringLiteral("DEVICE"));
            configuration.read(*document.root());
            benchmark::DoNotOptimize(configuration.tables()[0].value(0));
        },
        [] { benchmark::DoNotOptimize(bench::readWithoutUse(factoryPath())); });
}

void writeSettings(benchmark::State& state)
{
    const vlk::Configuration configuration(vlk::allSettings());
    bench::sideBySide(
        state, "x reader",
        [&] {
            vlk::XmlDocument document(QString(), QStringLiteral("DEVICE"));
            configuration.write(*document.root());
            benchmark::DoNotOptimize(document.text());
        },
        [] { benchmark::DoNotOptimize(bench::readWithoutUse(factoryPath())); });
}

// Selecting an operator fills three settings.
void editWithRules(benchmark::State& state)
{
    vlk::Values transfer(vlk::kTransferSettings);
    const int operators = transfer.rowAt(QStringLiteral("AP1/operator"));
    int item = 0;
    for (auto _ : state) {
        item = 1 - item;
        benchmark::DoNotOptimize(transfer.edit(operators, QString::number(item)));
    }
}

BENCHMARK(readSettings)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(writeSettings)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(editWithRules)->Unit(benchmark::kMicrosecond);

} // namespace
