#pragma once

// What writes records in one form, piece by piece, with memory that does not grow with them.

#include "telemetry/files/output_buffer.h"
#include "telemetry/record/record_store.h"

#include <memory>

namespace vlk {

class ExportWriter
{
public:
    virtual ~ExportWriter() = default;

    // What stands in front of the records.
    virtual void begin(OutputBuffer& out) = 0;
    // The next records, those of the store that are named.
    virtual void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) = 0;
    // What stands behind them.
    virtual void finish(OutputBuffer& out) = 0;
    // Whether any of the records that were added has a place in the form.
    virtual bool hasContent() const { return true; }
    // How many of them have none.
    virtual qint64 withoutPlace() const { return 0; }

protected:
    ExportWriter() = default;
    Q_DISABLE_COPY_MOVE(ExportWriter)
};

} // namespace vlk
