// Filling the four tabs with one record after another, beside the texts alone. The counters tell milliseconds
// a record and how many times that baseline it is; one frame at 60 Hz is 16.7 ms.

#include "telemetry/text/item_text.h"
#include "telemetry/view/form_tmi_zeta3.h"
#include "telemetry/view/value_label.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <ctime>
#include <random>

using namespace vlk;

namespace {

QByteArray fullRecord(unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray record("\xb0\x1e");
    record.append(FieldMask::kBytes, '\xff');
    for (int i = 0; i < kBlockBytes; ++i)
        record.append(static_cast<char>(random()));
    return record;
}

// Processor time, so that a busy machine measures the same.
double millisecondsOf(auto&& work)
{
    constexpr int kRounds = 200;
    const std::clock_t begin = std::clock();
    for (int i = 0; i < kRounds; ++i)
        work(i);
    return 1e3 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / kRounds;
}

// With `painted`, until the tab on top is on the screen.
void fillTabs(benchmark::State& state, bool painted)
{
    VLK_Form_TMI_Zeta3 form(nullptr);
    form.resize(1010, 560);
    form.show();
    const QByteArray records[] = {fullRecord(1), fullRecord(2)};
    const auto fill = [&](int i) {
        form.takeRecord(records[i % 2]);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        if (painted)
            QCoreApplication::processEvents();
    };
    int round = 0;
    for ([[maybe_unused]] auto _ : state)
        fill(round++);

    form.takeRecord(records[0]);
    const auto labels = form.findChildren<vlk::ValueLabel*>().size();
    const double texts = millisecondsOf([&](int) {
        for (int i = 0; i < labels; ++i)
            benchmark::DoNotOptimize(text(*form.page(), static_cast<ItemIndex>(i)));
    });
    const double cost = millisecondsOf(fill);
    state.counters["labels"] = static_cast<double>(labels);
    state.counters["ms_per_record"] = cost;
    state.counters["texts_of_it"] = cost / texts;
}

} // namespace

BENCHMARK_CAPTURE(fillTabs, filled, false);
BENCHMARK_CAPTURE(fillTabs, painted, true);
