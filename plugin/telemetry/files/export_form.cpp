#include "telemetry/files/export_form.h"

#include "telemetry/files/json_writer.h"
#include "telemetry/files/number_table_writer.h"
#include "telemetry/files/raw_values.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_xml_writer.h"
#include "telemetry/files/text_table_writer.h"
#include "telemetry/files/track_writers.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <numeric>

namespace vlk {

namespace {

std::vector<int> allOf(const RecordStore& store)
{
    std::vector<int> records(store.size());
    std::iota(records.begin(), records.end(), 0);
    return records;
}

} // namespace

const ExportFormRow& rowOf(ExportForm form)
{
    return *std::ranges::find(kExportForms, form, &ExportFormRow::form);
}

ExportForm formOfEnding(const QString& path, ExportForm chosen)
{
    const auto isEnding = [ending = QFileInfo(path).suffix()](const char* suffix) {
        return ending.compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
    };
    const auto* const found = std::ranges::find_if(kExportForms, isEnding, &ExportFormRow::suffix);
    return isEnding(rowOf(chosen).suffix) || found == std::end(kExportForms) ? chosen : found->form;
}

void ExportAhead::add(const RecordStore& store, std::span<const int> records, ExportForm form)
{
    if (records.empty())
        return;
    const auto timeOf = [&](int record) {
        constexpr ElementIndex time = element("Time");
        const int at = store.layout(record).offsetOf(time);
        const auto bytes = store.bytes(record);
        const bool isThere = at >= 0 && bytes.size() >= static_cast<std::size_t>(at) + sizeof(quint32);
        return isThere ? static_cast<quint32>(rawAt(bytes.data() + at, sizeof(quint32))) : 0;
    };
    if (count == 0)
        firstTime = timeOf(records.front());
    lastTime = timeOf(records.back());
    count += std::ssize(records);
    std::vector<bool> seen(store.layouts().size());
    for (const int record : records)
        seen[store.layoutNumber(record)] = true;
    for (std::size_t number = 0; number < seen.size(); ++number) {
        if (!seen[number])
            continue;
        const RecordLayout& layout = store.layouts()[number];
        hasPackets = hasPackets || layout.isPacket();
        fields = fields | layout.mask;
    }
    if (form == ExportForm::Tmi)
        crc = binaryCrc(crc, store, records);
}

std::unique_ptr<ExportWriter> exportWriter(ExportForm form, const ExportAhead& ahead,
                                           const ExportOptions& options)
{
    switch (form) {
    case ExportForm::Csv:
    case ExportForm::Tsv:
        return numberTableWriter(form, ahead, options);
    case ExportForm::CsvText:
        return textTableWriter(ahead, options);
    case ExportForm::Ndjson:
        return jsonWriter(options);
    case ExportForm::Gpx:
        return gpxWriter(options);
    case ExportForm::Kml:
        return kmlWriter(options);
    case ExportForm::Geojson:
        return geoJsonWriter(options);
    case ExportForm::Xml:
        return xmlWriter(ahead, options.origin);
    case ExportForm::Tmi:
        return binaryWriter(ahead, options.origin);
    }
    return nullptr;
}

RecordExport::RecordExport(QIODevice& device, const RecordStore& store, std::vector<int> records,
                           ExportForm form, ExportOptions options)
    : store_(store), records_(std::move(records)), form_(form), options_(std::move(options)), out_(device)
{
}

RecordExport::RecordExport(QIODevice& device, const RecordStore& store, ExportForm form,
                           ExportOptions options)
    : RecordExport(device, store, allOf(store), form, std::move(options))
{
}

bool RecordExport::writeFor(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!step()) {
        if (clock.elapsed() >= milliseconds)
            return false;
    }
    return true;
}

bool RecordExport::step()
{
    constexpr std::size_t portion = 256;
    const auto next = std::span<const int>(records_).subspan(at_, std::min(portion, records_.size() - at_));
    if (isDone_ || hasFailed_)
        return true;
    if (!writer_ && rowOf(form_).looksAhead && !next.empty()) {
        ahead_.add(store_, next, form_);
        at_ += next.size();
        return false;
    }
    if (!writer_) {
        at_ = 0;
        writer_ = exportWriter(form_, ahead_, options_);
        writer_->begin(out_);
        return false;
    }
    writer_->add(out_, store_, next);
    at_ += next.size();
    hasFailed_ = out_.hasFailed();
    if (hasFailed_ || at_ < records_.size())
        return hasFailed_;
    writer_->finish(out_);
    hasFailed_ = !out_.finish();
    isDone_ = true;
    return true;
}

double RecordExport::share() const
{
    if (isDone_ || records_.empty())
        return 1;
    const double part = static_cast<double>(at_) / static_cast<double>(records_.size());
    if (!rowOf(form_).looksAhead)
        return part;
    // Looking ahead takes a fraction of what writing does.
    constexpr double looking = 0.1;
    return writer_ ? looking + (1 - looking) * part : looking * part;
}

bool exportRecords(QIODevice& device, const RecordStore& store, ExportForm form, const ExportOptions& options)
{
    RecordExport all(device, store, form, options);
    while (!all.writeFor(1000)) {
    }
    return all.succeeded();
}

} // namespace vlk
