// Records that are asked for a second time: those of the XML form, whose reading takes most of the time, lie
// packed in a temporary file by then.

#include "command/convert_source.h"

#include <QTemporaryFile>

#include <cstring>
#include <type_traits>

namespace workbench::command {

namespace {

using vlk::RecordLayout;
using vlk::RecordStore;

// A batch in the file: this, its layouts, and a length and number of its layout in front of each record.
struct BatchHead
{
    qint64 bytes = 0; // behind this
    quint32 origin = 0;
    quint32 layouts = 0;
    quint32 records = 0;
    qint32 utcOffset = 0;
    bool hasUtcOffset = false;
};
struct StoredRecord
{
    quint32 layout = 0;
    quint32 bytes = 0;
};
static_assert(std::is_trivially_copyable_v<RecordLayout>);

template <class Value>
void append(QByteArray& to, const Value& value)
{
    to.append(reinterpret_cast<const char*>(&value), sizeof value);
}

template <class Value>
Value taken(const char*& from)
{
    Value value;
    std::memcpy(static_cast<void*>(&value), from, sizeof value);
    from += sizeof value;
    return value;
}

class RecordsAgain : public RecordSource
{
public:
    explicit RecordsAgain(RecordSource& records) : records_(records), isKept_(file_.open()) {}

    void rewind() override
    {
        isFromFile_ = isKept_ && isWhole_ && file_.flush() && file_.seek(0);
        isKept_ = isFromFile_;
        given_ = 0;
        if (!isFromFile_)
            records_.rewind();
    }

    std::optional<RecordBatch> next() override
    {
        if (isFromFile_)
            return fromFile();
        std::optional<RecordBatch> batch = records_.next();
        isWhole_ = isWhole_ || !batch;
        if (batch && isKept_)
            isKept_ = keep(*batch);
        return batch;
    }

    bool isQuickAgain() const override { return isKept_; }

private:
    struct Origin
    {
        std::shared_ptr<const vlk::TelemetryOrigin> origin;
        QString tracker;
    };

    bool keep(const RecordBatch& batch)
    {
        if (origins_.empty() || origins_.back().origin != batch.origin)
            origins_.push_back({batch.origin, batch.tracker});
        const RecordStore& store = batch.records;
        QByteArray bytes;
        for (const RecordLayout& layout : store.layouts())
            append(bytes, layout);
        for (int record = 0; record < store.size(); ++record) {
            const auto content = store.bytes(record);
            append(bytes, StoredRecord{static_cast<quint32>(store.layoutNumber(record)),
                                       static_cast<quint32>(content.size())});
            bytes.append(reinterpret_cast<const char*>(content.data()), static_cast<int>(content.size()));
        }
        QByteArray head;
        append(head,
               BatchHead{bytes.size(), static_cast<quint32>(origins_.size() - 1),
                         static_cast<quint32>(store.layouts().size()), static_cast<quint32>(store.size()),
                         store.utcOffset().value_or(0), store.utcOffset().has_value()});
        return file_.write(head) == head.size() && file_.write(bytes) == bytes.size();
    }

    std::optional<RecordBatch> fromFile()
    {
        const QByteArray start = file_.read(sizeof(BatchHead));
        if (start.isEmpty() && file_.error() == QFileDevice::NoError)
            return std::nullopt;
        const char* from = start.constData();
        const BatchHead head = start.size() == sizeof(BatchHead) ? taken<BatchHead>(from) : BatchHead();
        const QByteArray bytes = file_.read(head.bytes);
        if (head.records == 0 || bytes.size() != head.bytes)
            return fromSource();
        from = bytes.constData();
        std::vector<RecordLayout> layouts;
        for (quint32 i = 0; i < head.layouts; ++i)
            layouts.push_back(taken<RecordLayout>(from));
        RecordBatch batch{origins_[head.origin].origin, {}, origins_[head.origin].tracker};
        for (quint32 i = 0; i < head.records; ++i) {
            const auto record = taken<StoredRecord>(from);
            batch.records.add(layouts[record.layout],
                              {reinterpret_cast<const std::uint8_t*>(from), record.bytes});
            from += record.bytes;
        }
        if (head.hasUtcOffset)
            batch.records.setUtcOffset(head.utcOffset);
        ++given_;
        return batch;
    }

    // Where the file cannot be read any more.
    std::optional<RecordBatch> fromSource()
    {
        isFromFile_ = false;
        isKept_ = false;
        records_.rewind();
        for (int batch = 0; batch < given_; ++batch)
            records_.next();
        return records_.next();
    }

    RecordSource& records_;
    QTemporaryFile file_;
    std::vector<Origin> origins_;
    bool isKept_;
    bool isWhole_ = false;
    bool isFromFile_ = false;
    int given_ = 0; // batches, from the file
};

} // namespace

std::unique_ptr<RecordSource> keptForAgain(RecordSource& records)
{
    return std::make_unique<RecordsAgain>(records);
}

} // namespace workbench::command
