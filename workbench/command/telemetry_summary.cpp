#include "command/telemetry_summary.h"

#include "command/file_kind.h"
#include "command/output.h"
#include "telemetry/files/binary_layout.h"
#include "telemetry/files/telemetry_reader.h"
#include "telemetry/files/vehicle_times.h"
#include "window/languages.h"

#include <algorithm>

namespace workbench::command {

namespace {

// Records that are held at a time.
constexpr int kHeldRecords = 1000;

class Counter
{
public:
    explicit Counter(TelemetrySummary* summary) : summary_(*summary) {}

    void take(const TmiPage_Zeta3& page)
    {
        ++summary_.records;
        // A record that has no time reads as the beginning of all of them.
        if (const quint32 time = timeOf(page); time != 0)
            takeTime(time);
        const quint32 number = vlk::recordNumberOf(page);
        if (summary_.records == 1)
            first_ = number;
        summary_.hole = vlk::holeOfPart(summary_.records, first_, last_, number);
        last_ = number;
        // One without a number, such as a present state, has no place among the others.
        if (number == 0)
            return;
        summary_.gaps += before_ != 0 && number != before_ && number != before_ + 1;
        before_ = number;
    }

    // Behind the last record.
    void finish()
    {
        if (latest_ != 0)
            count(latest_);
    }

private:
    // What comes behind a time tells whether it has strayed.
    void takeTime(quint32 time)
    {
        if (counted_ != 0 && vlk::isStrayed(latest_, counted_, time))
            ++summary_.strayed;
        else if (latest_ != 0)
            count(latest_);
        latest_ = time;
    }

    void count(quint32 time)
    {
        counted_ = time;
        summary_.from = std::min(summary_.from.value_or(time), time);
        summary_.to = std::max(summary_.to.value_or(time), time);
    }

    TelemetrySummary& summary_;
    quint32 latest_ = 0;  // time, not counted yet; 0: none
    quint32 counted_ = 0; // the last one
    quint32 first_ = 0;
    quint32 last_ = 0;
    quint32 before_ = 0; // the last one that is a number
};

} // namespace

TelemetrySummary summaryOf(QIODevice& device, const QString& name)
{
    TelemetrySummary summary;
    const QByteArray start = device.peek(4096);
    vlk::TelemetryReader reader(device, name, vlk::TelemetryReading::Salvage);
    // Where the header is damaged or cut, what stands there is no model.
    const bool hasHeader =
        start.size() >= int{vlk::binary::kHeaderBytes} && kindOf(start) == FileKind::Telemetry;
    if (!reader.isBinary())
        summary.model = modelOf(start);
    else if (hasHeader)
        summary.model = QString::fromLatin1(
            start.mid(vlk::binary::kModelAt, vlk::binary::kModelBytes).split('\0').first());
    Counter counter(&summary);
    for (bool isMore = true; isMore;) {
        isMore = reader.step();
        vlk::RecordStore& records = reader.contents().records;
        if (isMore && records.size() < kHeldRecords)
            continue;
        records.forEach([&counter](const TmiPage_Zeta3& page) { counter.take(page); });
        records.clear();
    }
    counter.finish();
    reader.finish();
    summary.damages = reader.contents().damages;
    if (!summary.damages.empty())
        summary.hole.reset();
    return summary;
}

} // namespace workbench::command
