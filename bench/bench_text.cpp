// Texts of the items of a record that holds every field, beside snprintf of the same values into a buffer.
// The counters tell nanoseconds an item and how many times snprintf that is.

#include "telemetry/text/item_text.h"
#include "tests/support/records.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <ctime>
#include <random>
#include <vector>

using namespace vlk;

namespace {

TmiPage_Zeta3 fullPage()
{
    std::mt19937 random(7106);
    return TmiPage_Zeta3(176, 30, everyField(), plausibleBlock(random));
}

bool isNumber(const Item& item)
{
    const Shape shape = item.rule().shape;
    return shape == Shape::decimal || shape == Shape::fixed || shape == Shape::general;
}

std::vector<ItemIndex> itemsThat(auto&& belong)
{
    std::vector<ItemIndex> found;
    for (int i = 0; i < kItemCount; ++i) {
        if (belong(kItems[i]))
            found.push_back(static_cast<ItemIndex>(i));
    }
    return found;
}

int print(const TmiPage_Zeta3& page, const Item& item, char (&buffer)[512])
{
    const Rule& rule = item.rule();
    const double number = page.number(item.element) * rule.times / rule.by;
    if (rule.shape == Shape::fixed)
        return std::snprintf(buffer, sizeof buffer, "%.*f", rule.decimals, number);
    if (rule.shape == Shape::general)
        return std::snprintf(buffer, sizeof buffer, "%g", number);
    return std::snprintf(buffer, sizeof buffer, "%lld", static_cast<long long>(page.integer(item.element)));
}

// Processor time, so that a busy machine measures the same.
double nanosecondsOf(std::size_t count, auto&& work)
{
    constexpr int kRounds = 1000;
    const std::clock_t begin = std::clock();
    for (int i = 0; i < kRounds; ++i)
        work();
    return 1e9 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC /
           (kRounds * static_cast<double>(count));
}

void texts(benchmark::State& state, const std::vector<ItemIndex>& items)
{
    const TmiPage_Zeta3 page = fullPage();
    const auto textAll = [&] {
        for (const ItemIndex item : items)
            benchmark::DoNotOptimize(text(page, item));
    };
    const auto printAll = [&] {
        char buffer[512];
        for (const ItemIndex item : items)
            benchmark::DoNotOptimize(print(page, kItems[item], buffer));
    };
    for ([[maybe_unused]] auto _ : state)
        textAll();

    const double cost = nanosecondsOf(items.size(), textAll);
    state.counters["items"] = static_cast<double>(items.size());
    state.counters["ns_per_item"] = cost;
    state.counters["snprintf_of_it"] = cost / nanosecondsOf(items.size(), printAll);
}

} // namespace

BENCHMARK_CAPTURE(texts, numbers, itemsThat(isNumber));
BENCHMARK_CAPTURE(texts, words_and_times, itemsThat([](const Item& item) { return !isNumber(item); }));
BENCHMARK_CAPTURE(texts, all, itemsThat([](const Item&) { return true; }));
