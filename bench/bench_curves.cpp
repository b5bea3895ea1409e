// A million records as curves and as a track. Opening curves whose columns are decoded beside opening empty
// ones and copying the columns; panning and zooming them beside an empty plot of that size that is panned and
// zoomed too; panning the track likewise. What the views put off counts with what they do at once.

#include "bench/settle.h"
#include "bench/side_by_side.h"
#include "telemetry/curves/curves_view.h"
#include "telemetry/shown/shown_records.h"
#include "telemetry/track/track_view.h"
#include "tests/support/truck_records.h"

#include <QComboBox>
#include <QKeyEvent>

using namespace vlk;

namespace {

constexpr int kManyPoints = 1'000'000;
constexpr QSize kWindow(1024, 400);

// Until nothing is left to do.
void settle(const ShownRecords& records)
{
    do
        bench::settle();
    while (records.isLeftToDo());
}

void open(ShownRecords& records, int count)
{
    TelemetryContents contents;
    contents.records = truckRecords(count);
    records.setContents(std::move(contents));
    settle(records);
}

// The views are made of plug-in widgets that are found by their names.
class Shown
{
public:
    Shown(QWidget& view, const ShownRecords& records, const char* part)
        : records_(records), part_(view.findChild<QWidget*>(QString::fromLatin1(part)))
    {
        view.resize(kWindow);
        view.show();
        settle(records);
    }

    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(part_, &press);
        settle(records_);
    }

private:
    const ShownRecords& records_;
    QWidget* part_;
};

void openCurves(benchmark::State& state)
{
    ShownRecords records;
    open(records, kManyPoints);
    const NumberColumn& level = records.columns().numbers(item("LevelRS485_1"));
    const NumberColumn& speed = records.columns().numbers(item("Speed"));
    ShownRecords nothing;
    const auto openView = [](ShownRecords& of) {
        CurvesView view(&of);
        view.resize(kWindow);
        view.show();
        settle(of);
    };
    // All columns that it shows are decoded then.
    openView(records);
    bench::sideBySide(
        state, [&] { openView(records); }, bench::Against{"x empty curves", [&] { openView(nothing); }},
        bench::Against{"x copying", [&] {
                           NumberColumn copy = level;
                           benchmark::DoNotOptimize(copy.data());
                           copy = speed;
                           benchmark::DoNotOptimize(copy.data());
                       }});
}

// Half of the records, to and fro.
void moveCurves(benchmark::State& state)
{
    ShownRecords records;
    open(records, kManyPoints);
    CurvesView view(&records);
    const Shown curves(view, records, "plot_Curves");
    ShownRecords nothing;
    CurvesView emptyView(&nothing);
    const Shown empty(emptyView, nothing, "plot_Curves");
    const bool isZoom = state.range(0) != 0;
    curves.press(Qt::Key_Plus);
    curves.press(Qt::Key_Plus);
    bool isBack = false;
    const auto move = [&](const Shown& shown) {
        if (isZoom)
            shown.press(isBack ? Qt::Key_Minus : Qt::Key_Plus);
        else
            shown.press(isBack ? Qt::Key_Left : Qt::Key_Right, Qt::ControlModifier);
    };
    bench::sideBySide(
        state, "x empty plot",
        [&] {
            isBack = !isBack;
            move(curves);
        },
        [&] {
            move(empty);
            emptyView.repaint();
        });
}

void panTrack(benchmark::State& state)
{
    ShownRecords records;
    open(records, kManyPoints);
    TrackView view(&records);
    const Shown track(view, records, "canvas_Track");
    ShownRecords nothing;
    TrackView emptyView(&nothing);
    const Shown empty(emptyView, nothing, "canvas_Track");
    for (int zoom = 0; zoom < state.range(0); ++zoom)
        track.press(Qt::Key_Plus);
    bool isBack = false;
    bench::sideBySide(
        state, "x empty track",
        [&] {
            isBack = !isBack;
            track.press(isBack ? Qt::Key_Left : Qt::Key_Right);
        },
        [&] {
            empty.press(isBack ? Qt::Key_Left : Qt::Key_Right);
            emptyView.repaint();
        });
}

BENCHMARK(openCurves)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(moveCurves)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(0)->Arg(1);
BENCHMARK(panTrack)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(0)->Arg(8)->Arg(16);

} // namespace
