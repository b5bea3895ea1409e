// Texts of the items of records that hold every field, beside one snprintf of each value into a buffer.

#include "bench/side_by_side.h"
#include "telemetry/text/item_text.h"
#include "tests/support/records.h"

#include <cstdio>
#include <memory>
#include <vector>

using namespace vlk;

namespace {

std::vector<std::unique_ptr<TmiPage_Zeta3>> fullPages()
{
    std::mt19937 random(7106);
    std::vector<std::unique_ptr<TmiPage_Zeta3>> pages(100);
    for (auto& page : pages)
        page = std::make_unique<TmiPage_Zeta3>(176, 30, everyField(), plausibleBlock(random), 10800);
    return pages;
}

bool isNumber(const Item& item)
{
    const Shape shape = item.rule().shape;
    return shape == Shape::Decimal || shape == Shape::Fixed || shape == Shape::General;
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
    const double number = measureOf(item, rule).of(page.number(item.element));
    if (rule.shape == Shape::Fixed)
        return std::snprintf(buffer, sizeof buffer, "%.*f", rule.decimals, number);
    if (rule.shape == Shape::General)
        return std::snprintf(buffer, sizeof buffer, "%g", number);
    return std::snprintf(buffer, sizeof buffer, "%lld", static_cast<long long>(page.integer(item.element)));
}

void texts(benchmark::State& state, const std::vector<ItemIndex>& items)
{
    const auto pages = fullPages();
    bench::sideBySide(
        state, "x snprintf",
        [&] {
            for (const auto& page : pages) {
                for (const ItemIndex item : items)
                    benchmark::DoNotOptimize(text(*page, item));
            }
        },
        [&] {
            char buffer[512];
            for (const auto& page : pages) {
                for (const ItemIndex item : items)
                    benchmark::DoNotOptimize(print(*page, kItems[item], buffer));
            }
        });
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(pages.size() * items.size()));
}

BENCHMARK_CAPTURE(texts, numbers, itemsThat(isNumber))->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(texts, words_and_times, itemsThat([](const Item& item) { return !isNumber(item); }))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(texts, all, itemsThat([](const Item&) { return true; }))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
