#pragma once

// Records on their way into another form: a first walk over all of them, where there is one, then they are
// written, on all cores and in their order.

#include "command/call.h"
#include "command/convert_source.h"
#include "command/early_writes.h"
#include "command/output.h"
#include "command/progress.h"
#include "telemetry/files/export_form.h"

#include <deque>

namespace workbench::command {

const vlk::ExportFormRow& formOf(const Conversion& asked);
// Whether there is a first walk over all records: where the form or the call wants one.
bool looksAhead(const Conversion& asked, const vlk::ExportOptions& options);

class Conversions
{
public:
    Conversions(const Conversion& asked, vlk::Filter filter, vlk::ExportOptions options, RecordSource& source,
                Output& output, Progress& progress);

    // Before write(), where there is a first walk.
    void lookAhead();
    void write();

    // No record was wanted, or there was none.
    bool isEmpty() const { return written_ == 0; }
    // There is none that the form has a place for.
    bool lacksContent() const { return !writer_ || !writer_->hasContent(); }
    // The vehicle and the zone of the file that the heading tells of.
    vlk::TelemetryOrigin origin() const { return first_ ? *first_ : vlk::TelemetryOrigin(); }

private:
    // A batch; once they are chosen, those of its records that are wanted, and what was written of them.
    struct Part
    {
        RecordBatch batch{};
        BatchNumber number{};
        std::optional<std::vector<int>> records{};
        QByteArray bytes{};
        vlk::ExportAhead ahead{}; // of its records, where they were written early
    };
    struct Kept
    {
        std::shared_ptr<const vlk::TelemetryOrigin> origin;
        vlk::ExportAhead ahead;
        std::unique_ptr<vlk::ExportWriter> writer;
    };

    void walk(std::function<Part(Part)> work, const std::function<void(Part)>& take,
              std::size_t mostWaiting = 0);
    std::optional<Part> next();
    std::optional<Part> read();
    void hold(Part part);
    Part chosen(Part part) const;
    Part early(Part part);
    Part written(Part part);
    QByteArray bytesFor(const Part& part, const vlk::ExportAhead& ahead);
    Kept borrow(const std::shared_ptr<const vlk::TelemetryOrigin>& origin, const vlk::ExportAhead& ahead);
    void giveBack(Kept kept);
    QByteArray borrowPlace();
    void giveBack(QByteArray place);
    vlk::ExportOptions optionsFor(const vlk::TelemetryOrigin& origin) const;
    void setOrigin(const RecordBatch& batch);
    void begin(const RecordBatch& batch);
    void put(const QByteArray& bytes);

    const vlk::ExportFormRow& form_;
    const Conversion& asked_;
    const vlk::Filter filter_;
    const vlk::ExportOptions options_;
    RecordSource& source_;
    Output& output_;
    Progress& progress_;
    const bool isOnTerminal_; // what comes is progress enough
    std::size_t done_ = 0;    // records of this walk
    std::size_t number_ = 0;  // of its next batch
    std::size_t written_ = 0;
    vlk::ExportAhead ahead_;
    std::deque<Part> held_; // from looking ahead
    EarlyWrites early_;     // likewise
    qint64 heldBytes_ = 0;
    bool holdsAll_ = false;
    bool isAhead_ = false; // all of it was looked at
    std::shared_ptr<const vlk::TelemetryOrigin> first_;
    std::unique_ptr<vlk::ExportWriter> writer_;
    QByteArray front_;
    std::atomic<int> usualBytes_ = 0; // of what is written of a batch
    std::mutex mutex_;
    std::vector<Kept> idle_;
    std::vector<QByteArray> places_; // of bytes that were put out
};

} // namespace workbench::command
