#include "telemetry/view/filled_columns.h"

#include "telemetry/text/item_text.h"

#include <QElapsedTimer>

#include <cmath>

namespace vlk {

namespace {

constexpr int kSpreadLooks = 1000;
constexpr int kBetweenLooksAtClock = 256;

bool showsSomething(quint64 raw, ItemIndex item)
{
    const double number = itemNumber(raw, item);
    const Rule& rule = kItems[item].rule();
    if (rule.shape != Shape::TwoState)
        return !std::isnan(number);
    return !(number != 0 ? rule.set : rule.clear).source().empty();
}

} // namespace

FilledColumns::FilledColumns(const RecordStore& store, const std::vector<ItemIndex>& items)
    : store_(store), items_(items)
{
    for (std::size_t place = 0; place < items.size(); ++place)
        sought_.push_back({static_cast<int>(place), items[place], {}});
    const int step = std::max(store.size() / kSpreadLooks, 1);
    for (int record = 0; record < store.size() && !sought_.empty(); record += step)
        lookAt(record);
    if (step == 1)
        next_ = store.size();
}

std::vector<int> FilledColumns::takeFound()
{
    return std::exchange(found_, {});
}

bool FilledColumns::lookFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    for (; next_ < store_.size() && !sought_.empty(); ++next_) {
        if (next_ % kBetweenLooksAtClock == 0 && clock.elapsed() >= milliseconds)
            return false;
        lookAt(next_);
    }
    return true;
}

const std::vector<int>& FilledColumns::offsetsOf(int record)
{
    offsets_.resize(store_.layouts().size());
    std::vector<int>& offsets = offsets_[store_.layoutNumber(record)];
    if (offsets.empty()) {
        const RecordLayout& layout = store_.layout(record);
        for (const ItemIndex item : items_) {
            const ElementIndex element = kItems[item].element;
            offsets.push_back(layout.has(element) ? layout.offsetOf(element) : -1);
        }
    }
    return offsets;
}

void FilledColumns::lookAt(int record)
{
    const std::vector<int>& offsets = offsetsOf(record);
    const std::span<const std::uint8_t> bytes = store_.bytes(record);
    std::erase_if(sought_, [&](Sought& column) {
        const int offset = offsets[column.place];
        if (offset < 0)
            return false;
        const std::size_t width = kElements[kItems[column.item].element].width;
        quint64 raw = 0;
        for (std::size_t i = 0; i < width && offset + i < bytes.size(); ++i)
            raw |= quint64{bytes[offset + i]} << 8 * i;
        if (column.empty == raw)
            return false;
        if (!showsSomething(raw, column.item)) {
            column.empty = raw;
            return false;
        }
        found_.push_back(column.place);
        return true;
    });
}

} // namespace vlk
