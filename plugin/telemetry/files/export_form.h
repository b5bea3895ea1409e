#pragma once

// The forms in which records are handed over, and how records go out in one of them.
//
//     ExportAhead ahead;
//     ahead.add(store, records);                  only where the form looks ahead
//     auto writer = exportWriter(form, ahead, options);
//     writer->begin(out);
//     writer->add(out, store, records);           as often as there are more
//     writer->finish(out);

#include "telemetry/files/encoded_words.h"
#include "telemetry/files/export_writer.h"
#include "telemetry/files/record_filter.h"
#include "telemetry/files/telemetry_contents.h"
#include "telemetry/files/telemetry_csv_writer.h"

namespace vlk {

struct CsvColumn;

enum class ExportForm : std::uint8_t { Csv, CsvText, Tsv, Ndjson, Gpx, Kml, Geojson, Xml, Tmi };

struct ExportFormRow
{
    const char* name; // on the command line
    const char* key;  // of its text
    const char* suffix;
    ExportForm form;
    bool looksAhead;     // needs to know of all records before the first is written
    bool isIndependent;  // no record depends on those before it
    bool hasDecimalSign; // of which there are two
};

// In the order in which they are offered.
inline constexpr ExportFormRow kExportForms[] = {
    {"csv", "rec_120", "csv", ExportForm::Csv, true, true, true},
    {"csv-text", "rec_121", "csv", ExportForm::CsvText, true, true, false},
    {"tsv", "rec_122", "tsv", ExportForm::Tsv, true, true, true},
    {"gpx", "rec_123", "gpx", ExportForm::Gpx, false, false, false},
    {"kml", "rec_124", "kml", ExportForm::Kml, false, false, false},
    {"geojson", "rec_125", "geojson", ExportForm::Geojson, false, false, false},
    {"ndjson", "rec_126", "ndjson", ExportForm::Ndjson, false, true, false},
    {"xml", "rec_127", "xml", ExportForm::Xml, true, true, false},
    {"tmi", "rec_128", "tmi", ExportForm::Tmi, true, true, false},
};

const ExportFormRow& rowOf(ExportForm form);
// The one that a file of this name is taken for: `chosen`, unless its ending is that of others alone.
ExportForm formOfEnding(const QString& path, ExportForm chosen);

// What is to be written, as far as a form has to know it in front.
struct ExportAhead
{
    qint64 count = 0;
    quint32 firstTime = 0;
    quint32 lastTime = 0;
    FieldMask fields; // that any record has
    bool hasPackets = false;
    quint32 crc = 0; // of the records in the binary form

    void add(const RecordStore& store, std::span<const int> records, ExportForm form);
    // Whether forms that have columns have the same ones for both.
    bool hasFieldsOf(const ExportAhead& other) const
    {
        return fields == other.fields && hasPackets == other.hasPackets;
    }
};

struct ExportOptions
{
    TelemetryOrigin origin;
    QString title;                     // of a track
    std::optional<qint32> utcOffset{}; // of the zone of times; none: that of this machine at each moment
    bool raw = false;                  // values as the XML form has them
    bool decimalComma = false;
    bool isMarked = false; // tables of numbers as UTF-8, which spreadsheets do not see by themselves
    bool archive = false;  // all columns there are, with the tracker in front
    // Those asked for, in this order; none: all that any record has. For the forms that have columns.
    std::vector<FilterColumn> columns{};
    EventText eventText{};
    // Of a table of numbers, in the place of names of elements: what a column is called in the language.
    std::function<QString(const CsvColumn&)> heading{};
    TextEncoder encode = [](const QString& text) { return text.toLocal8Bit(); }; // of texts in CSV
};

std::unique_ptr<ExportWriter> exportWriter(ExportForm form, const ExportAhead& ahead,
                                           const ExportOptions& options);

// Writes records of a store to a device in portions as short as its user wants.
class RecordExport
{
public:
    // What is given has to stay. Without `records` all of the store go out.
    RecordExport(QIODevice& device, const RecordStore& store, std::vector<int> records, ExportForm form,
                 ExportOptions options);
    RecordExport(QIODevice& device, const RecordStore& store, ExportForm form, ExportOptions options);

    // True when all is written, or nothing more can be.
    bool writeFor(int milliseconds);
    // How much of the work is done, from 0 to 1.
    double share() const;
    // Whether all that was to be written is.
    bool succeeded() const { return isDone_ && !hasFailed_; }
    // How many of the records the form has no place for; once all is written.
    qint64 withoutPlace() const { return writer_->withoutPlace(); }

private:
    bool step();

    const RecordStore& store_;
    std::vector<int> records_;
    ExportForm form_;
    ExportOptions options_;
    OutputBuffer out_;
    ExportAhead ahead_;
    std::unique_ptr<ExportWriter> writer_; // once all is known that lies ahead
    std::size_t at_ = 0;
    bool isDone_ = false;
    bool hasFailed_ = false;
};

// At once. False if a write failed.
bool exportRecords(QIODevice& device, const RecordStore& store, ExportForm form,
                   const ExportOptions& options);

} // namespace vlk
