#pragma once

// What was written of some batches of records on the first walk over all of them, by a core that had nothing
// to read. It is as it has to be where all records together have the fields that those of the batch have.

#include "telemetry/files/export_form.h"

#include <atomic>
#include <map>
#include <mutex>

namespace workbench::command {

// Which batch of a walk, from 0.
struct BatchNumber
{
    std::size_t number = 0;
    std::size_t records = 0; // in it

    auto operator<=>(const BatchNumber&) const = default;
};

class EarlyWrites
{
public:
    // One batch at a time, so that the other cores go on reading, and no more than fits into memory.
    std::unique_lock<std::mutex> turn()
    {
        std::unique_lock turn(mutex_, std::defer_lock);
        if (size_ < kMostBytes)
            static_cast<void>(turn.try_lock());
        return turn;
    }

    void keep(BatchNumber batch, const vlk::ExportAhead& ahead, QByteArray bytes)
    {
        size_ += bytes.size();
        kept_.insert_or_assign(batch, Kept{ahead, std::move(bytes)});
    }

    // Null where there is none that holds.
    QByteArray take(BatchNumber batch, const vlk::ExportAhead& all)
    {
        const auto kept = kept_.extract(batch);
        return kept && kept.mapped().ahead.hasFieldsOf(all) ? kept.mapped().bytes : QByteArray();
    }

private:
    static constexpr qint64 kMostBytes = 16 << 20;

    struct Kept
    {
        vlk::ExportAhead ahead;
        QByteArray bytes;
    };

    std::mutex mutex_;
    std::atomic<qint64> size_ = 0;
    std::map<BatchNumber, Kept> kept_;
};

} // namespace workbench::command
