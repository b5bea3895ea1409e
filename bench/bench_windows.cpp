// Opening the configuration dialog and walking a whole configuration through its pages, each against a
// baseline of the same run: an empty dialog, and the XML reader with a handler that does nothing.

#include "bench/side_by_side.h"
#include "bench/xml_reader_alone.h"
#include "dialog/widget_config.h"
#include "dialog/widget_config_full.h"
#include "link/messages.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTemporaryDir>

namespace {

// A configuration with all ten sections, as the tracker gives it.
QString wholeConfiguration()
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("whole.xml"));
    if (!QFile::exists(path))
        QFile::copy(QStringLiteral(VLK_SOURCE "/workbench/tracker/factory.xml"), path);
    return path;
}

void settle()
{
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
}

vlk::OpenRequest request()
{
    vlk::OpenRequest request{};
    request.showFull = 1;
    qstrncpy(request.path, wholeConfiguration().toLocal8Bit().constData(), sizeof request.path);
    return request;
}

void openEmptyDialog()
{
    QDialog dialog;
    dialog.resize(1024, 600);
    dialog.show();
    settle();
}

void openConfigurationFirst(benchmark::State& state)
{
    char ussd[vlk::balanceUssdSize] = {};
    const vlk::OpenRequest opening = request();
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            VLK_Widget_Config dialog;
            dialog.open(opening, ussd);
            settle();
        },
        openEmptyDialog);
}

void openConfigurationAgain(benchmark::State& state)
{
    char ussd[vlk::balanceUssdSize] = {};
    const vlk::OpenRequest opening = request();
    VLK_Widget_Config dialog;
    bench::sideBySide(
        state, "x empty dialog",
        [&] {
            dialog.close();
            dialog.open(opening, ussd);
            settle();
        },
        openEmptyDialog);
}

void loadWalk(benchmark::State& state)
{
    char ussd[vlk::balanceUssdSize] = {};
    const QString path = wholeConfiguration();
    VLK_Widget_Config_Full window;
    bench::sideBySide(
        state, "x reader", [&] { window.loadFile(path, ussd); },
        [&] { benchmark::DoNotOptimize(bench::readWithoutUse(path)); });
}

void saveWalk(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved.xml"));
    VLK_Widget_Config_Full window;
    bench::sideBySide(
        state, "x reader", [&] { window.saveFile(path); },
        [&] { benchmark::DoNotOptimize(bench::readWithoutUse(wholeConfiguration())); });
}

BENCHMARK(openConfigurationFirst)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openConfigurationAgain)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadWalk)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(saveWalk)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
