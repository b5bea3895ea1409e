// A calibration table of 5,000 points: loading it from a CSV file beside reading the file alone, adding a
// point to it beside a sort of as many numbers, painting its curve beside a sheet of paper of that size. The
// times to keep: half a second, five and ten milliseconds.

#include "fuel/form_fuel_sensor.h"
#include "fuel/form_fuel_view.h"
#include "fuel/fuelsensor_graph.h"
#include "side_by_side.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr int kPoints = 5000;

// In no order, and rising with some noise, as sensors do.
vlk::FuelRows points()
{
    std::mt19937 random(1);
    vlk::FuelRows rows;
    for (int i = 0; i < kPoints; ++i)
        rows.push_back(
            {QString::number(i * 0.1, 'f', 1), QString::number(i + static_cast<int>(random() % 40))});
    std::ranges::shuffle(rows, random);
    return rows;
}

class Dialog
{
public:
    Dialog()
    {
        dialog_.resize(1000, 560);
        dialog_.show();
    }
    VLK_Form_Fuel_Sensor& form() { return *dialog_.findChild<VLK_Form_Fuel_Sensor*>(); }
    VLK_FuelSensor_Graph& graph() { return *dialog_.findChild<VLK_FuelSensor_Graph*>(); }

private:
    VLK_Form_Fuel_View dialog_;
};

void loadFuelCsv(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("table.csv");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("no file");
    file.write(vlk::fuelCsv({"volume", "value"}, points()));
    file.close();
    Dialog dialog;
    bench::sideBySide(
        state, "readings_of_it", [&] { dialog.form().loadCsv(path); },
        [&] {
            QFile again(path);
            again.open(QIODevice::ReadOnly);
            benchmark::DoNotOptimize(vlk::readFuelCsv(again.readAll()));
            dialog.form().clearAll();
        });
}

void addFuelPoint(benchmark::State& state)
{
    Dialog dialog;
    dialog.form().addRows(points());
    std::vector<float> numbers(kPoints);
    std::mt19937 random(2);
    bench::sideBySide(
        state, "sorts_of_it", [&] { dialog.form().addRow(QString::number(random() % 500), "7"); },
        [&] {
            std::ranges::generate(numbers, [&] { return static_cast<float>(random()); });
            std::ranges::stable_sort(numbers);
            benchmark::DoNotOptimize(numbers.data());
        });
}

void paintFuelCurve(benchmark::State& state)
{
    Dialog dialog;
    dialog.form().addRows(points());
    VLK_FuelSensor_Graph& graph = dialog.graph();
    QImage image(graph.size(), QImage::Format_ARGB32_Premultiplied);
    bench::sideBySide(
        state, "sheets_of_it", [&] { graph.render(&image); },
        [&] {
            QPainter painter(&image);
            painter.fillRect(image.rect(), Qt::white);
        });
}

} // namespace

BENCHMARK(loadFuelCsv)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(addFuelPoint)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(paintFuelCurve)->UseManualTime()->Unit(benchmark::kMillisecond);
