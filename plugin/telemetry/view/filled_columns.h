#pragma once

// Which columns show anything in any record: first by some records that are spread over the file, then by all
// of them, a while at a time.

#include "telemetry/record/record_store.h"
#include "telemetry/text/item.h"

namespace vlk {

class FilledColumns
{
public:
    // By the places of `items`. The store may grow.
    FilledColumns(const RecordStore& store, const std::vector<ItemIndex>& items);

    // Those that were found since this was asked the last time.
    std::vector<int> takeFound();
    // True when all records have been looked at, or nothing is left to be found.
    bool lookFor(int milliseconds);

private:
    struct Sought
    {
        int place;
        ItemIndex item;
        std::optional<quint64> empty; // the latest value that shows nothing
    };

    void lookAt(int record);
    const std::vector<int>& offsetsOf(int record);

    const RecordStore& store_;
    std::vector<Sought> sought_;
    std::vector<std::vector<int>> offsets_; // by layout and place
    std::vector<ItemIndex> items_;
    std::vector<int> found_;
    int next_ = 0;
};

} // namespace vlk
