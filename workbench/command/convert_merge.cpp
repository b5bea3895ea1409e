// Records in the order of their times: runs that were sorted in memory lie in a temporary file, from which
// they are taken together.

#include "command/convert_source.h"

#include "command/record_key.h"
#include "telemetry/files/title_lines.h"

#include <QTemporaryFile>

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>
#include <queue>

namespace workbench::command {

namespace {

using vlk::RecordStore;

constexpr quint32 kNoTracker = std::numeric_limits<quint32>::max();
constexpr qint64 kBytesOfRun = 24 << 20;
constexpr int kRecordsOfMergedBatch = 1024;
constexpr qint64 kBytesAhead = 16 << 10; // of a run that are read at a time

// The order of records. Those of a file that tells no tracker come behind equal ones of any that does.
struct Place
{
    RecordKey key;
    quint32 tracker = 0;

    bool isSameAs(const Place& other) const
    {
        const bool isKnown = tracker != kNoTracker && other.tracker != kNoTracker;
        return key == other.key && (tracker == other.tracker || !isKnown);
    }
    std::strong_ordering operator<=>(const Place& other) const
    {
        return std::tie(key, tracker) <=> std::tie(other.key, other.tracker);
    }
    bool operator==(const Place&) const = default;
};

// As a record lies in the file, in front of its bytes.
struct Entry
{
    Place place;
    quint32 layout = 0;
    quint32 origin = 0;
    quint32 size = 0;
};

// A sorted part of the file while it is read.
class Run
{
public:
    Run(QFile& file, qint64 begin, qint64 end) : file_(file), at_(begin), end_(end) {}

    // False at its end. `bytes` are those of the entry, until the next one.
    bool next()
    {
        if (!ensure(sizeof(Entry)))
            return false;
        std::memcpy(&entry, ahead_.constData() + used_, sizeof(Entry));
        used_ += sizeof(Entry);
        if (!ensure(entry.size))
            return false;
        bytes = {reinterpret_cast<const std::uint8_t*>(ahead_.constData()) + used_, entry.size};
        used_ += static_cast<int>(entry.size);
        return true;
    }

    Entry entry;
    std::span<const std::uint8_t> bytes;

private:
    bool ensure(qint64 count)
    {
        if (ahead_.size() - used_ >= count)
            return true;
        ahead_.remove(0, used_);
        used_ = 0;
        file_.seek(at_);
        const QByteArray more = file_.read(std::min(std::max(kBytesAhead, count), end_ - at_));
        at_ += more.size();
        ahead_ += more;
        return ahead_.size() >= count;
    }

    QFile& file_;
    qint64 at_;
    qint64 end_;
    QByteArray ahead_;
    int used_ = 0;
};

class MergedSource : public RecordSource
{
public:
    // False with a reason where the file cannot be written.
    bool take(RecordSource& records, QStringList* trackers, QString* reason)
    {
        bool isWritten = file_.open();
        while (std::optional<RecordBatch> batch = isWritten ? records.next() : std::nullopt) {
            const quint32 origin = numberOf(batch->origin);
            const quint32 tracker = trackers ? numberOf(batch->tracker, trackers) : kNoTracker;
            const RecordStore& store = batch->records;
            for (int record = 0; record < store.size(); ++record) {
                held_.add(store.layout(record), store.bytes(record));
                origins_.push_back(origin);
                trackers_.push_back(tracker);
                heldBytes_ += std::ssize(store.bytes(record)) + qint64{sizeof(Entry)};
            }
            if (heldBytes_ >= kBytesOfRun)
                isWritten = writeRun();
        }
        isWritten = isWritten && writeRun() && file_.flush();
        if (!isWritten)
            *reason = file_.errorString();
        rewind();
        return isWritten;
    }

    void rewind() override
    {
        runs_.clear();
        heads_ = {};
        last_.reset();
        for (std::size_t i = 0; i + 1 < bounds_.size(); ++i)
            runs_.emplace_back(file_, bounds_[i], bounds_[i + 1]);
        for (std::size_t i = 0; i < runs_.size(); ++i) {
            if (runs_[i].next())
                heads_.push({runs_[i].entry.place, i});
        }
    }

    std::optional<RecordBatch> next() override
    {
        RecordBatch batch;
        while (!heads_.empty() && batch.records.size() < kRecordsOfMergedBatch) {
            const Head head = heads_.top();
            Run& run = runs_[head.run];
            const auto& origin = originList_[run.entry.origin];
            if (batch.origin && batch.origin != origin)
                break;
            if (!last_ || !last_->isSameAs(head.place)) {
                batch.origin = origin;
                batch.records.add(layouts_[head.run][run.entry.layout], run.bytes);
            }
            last_ = head.place;
            heads_.pop();
            if (run.next())
                heads_.push({run.entry.place, head.run});
        }
        return batch.records.empty() ? std::nullopt : std::optional(std::move(batch));
    }

private:
    // The next record of a run. Of equal ones that of the earlier run comes first.
    struct Head
    {
        Place place;
        std::size_t run;

        std::strong_ordering operator<=>(const Head& other) const
        {
            return std::tie(place, run) <=> std::tie(other.place, other.run);
        }
    };

    // Files that read user parameters alike count as one.
    quint32 numberOf(const std::shared_ptr<const vlk::TelemetryOrigin>& origin)
    {
        const auto isAlike = [&](const auto& other) {
            return other->trackerId == origin->trackerId &&
                   typeLetters(other->titles) == typeLetters(origin->titles);
        };
        const auto found = std::ranges::find_if(originList_, isAlike);
        const auto number = static_cast<quint32>(found - originList_.begin());
        if (found == originList_.end())
            originList_.push_back(origin);
        return number;
    }

    static quint32 numberOf(const QString& tracker, QStringList* trackers)
    {
        if (tracker.isEmpty())
            return kNoTracker;
        if (!trackers->contains(tracker))
            trackers->append(tracker);
        return static_cast<quint32>(trackers->indexOf(tracker));
    }

    bool writeRun()
    {
        std::vector<Place> places(held_.size());
        for (int record = 0; record < held_.size(); ++record)
            places[record] = {keyOf(held_, record), trackers_[record]};
        std::vector<int> order(held_.size());
        std::iota(order.begin(), order.end(), 0);
        std::ranges::stable_sort(order, {}, [&places](int record) { return places[record]; });
        layouts_.push_back(held_.layouts());
        bool isWritten = true;
        for (const int record : order) {
            const auto bytes = held_.bytes(record);
            const Entry entry{places[record], static_cast<quint32>(held_.layoutNumber(record)),
                              origins_[record], static_cast<quint32>(bytes.size())};
            isWritten = isWritten && put(&entry, sizeof entry) && put(bytes.data(), std::ssize(bytes));
        }
        bounds_.push_back(file_.pos());
        held_.clear();
        origins_.clear();
        trackers_.clear();
        heldBytes_ = 0;
        return isWritten;
    }

    bool put(const void* bytes, qint64 size)
    {
        return size == 0 || file_.write(static_cast<const char*>(bytes), size) == size;
    }

    QTemporaryFile file_;
    std::vector<qint64> bounds_{0};                       // of the runs
    std::vector<std::vector<vlk::RecordLayout>> layouts_; // likewise
    std::vector<std::shared_ptr<const vlk::TelemetryOrigin>> originList_;

    RecordStore held_; // of the run that is being made
    std::vector<quint32> origins_;
    std::vector<quint32> trackers_;
    qint64 heldBytes_ = 0;

    std::vector<Run> runs_;
    std::priority_queue<Head, std::vector<Head>, std::greater<>> heads_;
    std::optional<Place> last_;
};

} // namespace

std::unique_ptr<RecordSource> mergedRecords(RecordSource& records, QStringList* trackers, QString* reason)
{
    auto merged = std::make_unique<MergedSource>();
    return merged->take(records, trackers, reason) ? std::move(merged) : nullptr;
}

} // namespace workbench::command
