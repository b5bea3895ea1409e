// Opening the configuration dialog and walking a whole configuration through its pages, each against a
// baseline of the same run: an empty dialog, and the XML reader with a handler that does nothing.

#include "bench/opened_dialogs.h"
#include "bench/side_by_side.h"
#include "bench/xml_reader_alone.h"
#include "dialog/widget_config_full.h"
#include "xml/xml_document.h"

namespace {

// The dialog is new, but not the first of its process; that one is in bench_first_opening.cpp.
void openConfigurationAnew(benchmark::State& state)
{
    bench::sideBySide(
        state, "x empty dialog",
        [] {
            VLK_Widget_Config dialog;
            bench::openConfiguration(dialog);
        },
        bench::openEmptyDialog);
}

void openConfigurationAgain(benchmark::State& state)
{
    VLK_Widget_Config dialog;
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            dialog.close();
            bench::openConfiguration(dialog);
        },
        bench::openEmptyDialog);
}

void loadWalk(benchmark::State& state)
{
    char ussd[vlk::kBalanceUssdSize] = {};
    const QString path = bench::wholeConfiguration();
    VLK_Widget_Config_Full window;
    const auto load = [&] {
        vlk::XmlDocument document(path, QStringLiteral("DEVICE"));
        window.loadFromXml(document.root(), ussd);
    };
    // The form of the serial line's device is made by the first file, which belongs to the opening.
    load();
    bench::sideBySide(state, "x reader", load,
                      [&] { benchmark::DoNotOptimize(bench::readWithoutUse(path)); });
}

// Up to the text of the file: how long the disk takes to hold it is not ours.
void saveWalk(benchmark::State& state)
{
    VLK_Widget_Config_Full window;
    bench::sideBySide(
        state, "x reader",
        [&] {
            vlk::XmlDocument document(QString(), QStringLiteral("DEVICE"));
            window.saveToXml(document.root());
            benchmark::DoNotOptimize(document.text());
        },
        [&] { benchmark::DoNotOptimize(bench::readWithoutUse(bench::wholeConfiguration())); });
}

BENCHMARK(openConfigurationAnew)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openConfigurationAgain)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadWalk)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(saveWalk)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
