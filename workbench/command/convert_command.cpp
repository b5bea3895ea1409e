// Telemetry in another form.

#include "command/commands.h"

#include "base/windows1251.h"
#include "command/convert_inputs.h"
#include "command/convert_source.h"
#include "command/damage_lines.h"
#include "command/file_names.h"
#include "command/in_order.h"
#include "command/origin_losses.h"
#include "command/output.h"
#include "command/progress.h"
#include "telemetry/files/export_form.h"
#include "telemetry/files/filter_parser.h"
#include "telemetry/files/title_lines.h"
#include "tracker/event_code.h"
#include "window/languages.h"

#include <QBuffer>
#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>
#include <deque>
#include <limits>
#include <unistd.h>

namespace workbench::command {

using vlk::ExportForm;
using vlk::ExportWriter;
using vlk::Filter;
using vlk::FilterNames;
using vlk::FilterNode;

namespace {

// Texts in records have the encoding of the tracker; while they are read no file is opened by its name.
class TrackerTexts
{
public:
    TrackerTexts() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251")); }
    ~TrackerTexts() { QTextCodec::setCodecForLocale(before_); }
    Q_DISABLE_COPY_MOVE(TrackerTexts)

private:
    QTextCodec* const before_ = QTextCodec::codecForLocale();
};

FilterNames namesInBothLanguages()
{
    FilterNames names;
    Languages languages;
    for (const QString& code : Languages::codes()) {
        const vlk::TextSource texts = [&](const char* key) {
            const QString found = languages.textIn(code, key);
            return found.isNull() ? QString::fromLatin1(key) : found;
        };
        const vlk::TextsFrom from(texts);
        names.addTexts();
        for (quint16 event = 0; event <= tracker::kHighestNamedEvent; ++event)
            names.addWord(languages.textIn(code, tracker::eventKey(event).constData()), vlk::item("Code"),
                          {double(event), double(event)});
    }
    return names;
}

const vlk::ExportFormRow& formOf(const Conversion& asked)
{
    return *std::ranges::find_if(vlk::kExportForms, [&](const vlk::ExportFormRow& row) {
        return asked.form == QLatin1String(row.name);
    });
}

// What of the records is wanted. A reason where the call does not say it right.
QString readFilter(const Conversion& conversion, const FilterNames& names, Filter* filter)
{
    struct Asked
    {
        const char* option;
        QString prefix;
        const QString& condition;
    };
    std::vector<FilterNode> nodes;
    double from = -std::numeric_limits<double>::infinity();
    for (const Asked& part : {Asked{"--from", QStringLiteral("Time >= "), conversion.from},
                              Asked{"--to-time", QStringLiteral("Time <= "), conversion.to},
                              Asked{"--where", {}, conversion.where}}) {
        if (part.condition.isEmpty())
            continue;
        const vlk::ParsedFilter parsed = vlk::parseFilter(part.prefix + part.condition, names);
        const bool isMoment =
            parsed.filter && parsed.filter->root && parsed.filter->root->kind == FilterNode::condition;
        if (!parsed.filter)
            return text("cli_214")
                .arg(QLatin1String(part.option))
                .arg(parsed.fault.position - part.prefix.size() + 1)
                .arg(parsed.fault.expected);
        if (!part.prefix.isEmpty() && !isMoment)
            return text("cli_214").arg(QLatin1String(part.option)).arg(1).arg(text("rec_104"));
        if (!part.prefix.isEmpty() && parsed.filter->root->number < from)
            return text("cli_264");
        if (&part.condition == &conversion.from)
            from = parsed.filter->root->number;
        if (parsed.filter->root)
            nodes.push_back(*parsed.filter->root);
    }
    if (nodes.size() == 1)
        filter->root = nodes.front();
    else if (!nodes.empty())
        filter->root = FilterNode{.kind = FilterNode::all, .parts = std::move(nodes)};
    return {};
}

QString readColumns(const QString& list, const FilterNames& names, std::vector<vlk::FilterColumn>* columns)
{
    for (const QString& name : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const std::optional<vlk::FilterColumn> column = names.column(name);
        if (!column)
            return text("cli_215").arg(name.trimmed());
        columns->push_back(*column);
    }
    return {};
}

QString trackerOf(const File& file)
{
    return readable(QFileInfo(file.name).completeBaseName()).section(QLatin1Char(' '), 0, 0);
}

// A batch; once they are chosen, those of its records that are wanted, and what was written of them.
struct Part
{
    RecordBatch batch{};
    std::size_t size = 0; // records that came with it
    std::optional<std::vector<int>> records{};
    QByteArray bytes{};
};

class Conversions
{
public:
    Conversions(const Conversion& asked, Filter filter, vlk::ExportOptions options, RecordSource& source,
                Output& output, Progress& progress)
        : form_(formOf(asked)), asked_(asked), filter_(std::move(filter)), options_(std::move(options)),
          source_(source), output_(output), progress_(progress)
    {
    }

    // A first walk over all records, where the form or the call wants one.
    bool looksAhead() const
    {
        const bool isTable = form_.form == ExportForm::csv || form_.form == ExportForm::tsv;
        const bool knowsColumns = isTable && (options_.archive || !options_.columns.empty());
        return (form_.looksAhead && !knowsColumns) || asked_.strict;
    }

    void lookAhead()
    {
        const auto look = [this](Part part) {
            ahead_.add(part.batch.records, *part.records, form_.form);
            setOrigin(part.batch);
            hold(std::move(part));
        };
        holdsAll_ = true;
        walk([this](Part part) { return chosen(std::move(part)); }, look);
        source_.rewind();
        isAhead_ = true;
    }

    void write()
    {
        const auto format = [this](Part part) { return written(std::move(part)); };
        const auto putReady = [this](Part part) {
            written_ += part.records->size();
            begin(part.batch);
            put(part.bytes);
        };
        const auto choose = [this](Part part) { return chosen(std::move(part)); };
        const auto putInTurn = [this](Part part) {
            written_ += part.records->size();
            begin(part.batch);
            put(bytesOf(
                [&](vlk::OutputBuffer& out) { writer_->add(out, part.batch.records, *part.records); }));
        };
        if (form_.isIndependent)
            walk(format, putReady);
        else
            walk(choose, putInTurn);
        begin({});
        put(bytesOf([this](vlk::OutputBuffer& out) { writer_->finish(out); }));
    }

    // No record was wanted, or there was none.
    bool isEmpty() const { return written_ == 0; }
    // There is none that the form has a place for.
    bool lacksContent() const { return !writer_ || !writer_->hasContent(); }
    // Of the file that the heading tells of.
    vlk::TelemetryOrigin origin() const { return first_ ? *first_ : vlk::TelemetryOrigin(); }

private:
    static constexpr qint64 mostHeldBytes = 32 << 20;

    struct Kept
    {
        std::shared_ptr<const vlk::TelemetryOrigin> origin;
        std::unique_ptr<ExportWriter> writer;
    };

    template <class Write>
    static QByteArray bytesOf(Write write)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        vlk::OutputBuffer out(buffer);
        write(out);
        out.finish();
        return buffer.data();
    }

    void walk(std::function<Part(Part)> work, const std::function<void(Part)>& take)
    {
        done_ = 0;
        InOrder<Part, Part> all([this] { return next(); }, std::move(work));
        while (std::optional<Part> part = all.take()) {
            done_ += part->size;
            if (!isOnTerminal_)
                progress_.show(done_);
            take(std::move(*part));
        }
    }

    std::optional<Part> next()
    {
        if (isAhead_ && holdsAll_) {
            std::optional<Part> part;
            if (!held_.empty()) {
                part = std::move(held_.front());
                held_.pop_front();
            }
            return part;
        }
        std::optional<RecordBatch> batch = source_.next();
        if (!batch)
            return std::nullopt;
        const auto size = static_cast<std::size_t>(batch->records.size());
        return Part{.batch = std::move(*batch), .size = size};
    }

    // As long as they are few; else they are read again.
    void hold(Part part)
    {
        for (int record = 0; record < part.batch.records.size(); ++record)
            heldBytes_ += std::ssize(part.batch.records.bytes(record));
        holdsAll_ = holdsAll_ && heldBytes_ <= mostHeldBytes;
        if (holdsAll_)
            held_.push_back(std::move(part));
        else
            held_.clear();
    }

    Part chosen(Part part) const
    {
        if (part.records)
            return part;
        vlk::RecordColumns columns(part.batch.records,
                                   typeLetters(part.batch.origin->titles).toLatin1().toStdString());
        part.records = passing(filter_, columns);
        return part;
    }

    Part written(Part part)
    {
        part = chosen(std::move(part));
        Kept kept = borrow(part.batch.origin);
        part.bytes = bytesOf(
            [&](vlk::OutputBuffer& out) { kept.writer->add(out, part.batch.records, *part.records); });
        giveBack(std::move(kept));
        part.batch.records = {};
        return part;
    }

    // A writer for records of that origin: making one takes longer than writing some.
    Kept borrow(const std::shared_ptr<const vlk::TelemetryOrigin>& origin)
    {
        {
            const std::lock_guard lock(mutex_);
            const auto found = std::ranges::find(idle_, origin, &Kept::origin);
            if (found != idle_.end()) {
                Kept kept = std::move(*found);
                idle_.erase(found);
                return kept;
            }
        }
        return {origin, exportWriter(form_.form, ahead_, optionsFor(*origin))};
    }

    void giveBack(Kept kept)
    {
        const std::lock_guard lock(mutex_);
        // Those of files that are through.
        if (!idle_.empty() && idle_.front().origin != kept.origin)
            idle_.clear();
        idle_.push_back(std::move(kept));
    }

    vlk::ExportOptions optionsFor(const vlk::TelemetryOrigin& origin) const
    {
        vlk::ExportOptions options = options_;
        options.origin = origin;
        return options;
    }

    // The heading tells of the first file.
    void setOrigin(const RecordBatch& batch)
    {
        if (!first_)
            first_ = batch.origin;
    }

    void begin(const RecordBatch& batch)
    {
        if (writer_)
            return;
        setOrigin(batch);
        writer_ = exportWriter(form_.form, ahead_, first_ ? optionsFor(*first_) : options_);
        put(bytesOf([this](vlk::OutputBuffer& out) { writer_->begin(out); }));
    }

    // What stands in front waits for the first record: where none comes, nothing is written.
    void put(const QByteArray& bytes)
    {
        front_ += bytes;
        if (isEmpty() || lacksContent())
            return;
        output_.write(front_);
        front_.clear();
    }

    const vlk::ExportFormRow& form_;
    const Conversion& asked_;
    const Filter filter_;
    const vlk::ExportOptions options_;
    RecordSource& source_;
    Output& output_;
    Progress& progress_;
    const bool isOnTerminal_ =
        !output_.isFile() && isatty(STDOUT_FILENO) != 0; // what comes is progress enough
    std::size_t done_ = 0;                               // records of this walk
    std::size_t written_ = 0;
    vlk::ExportAhead ahead_;
    std::deque<Part> held_; // from looking ahead
    qint64 heldBytes_ = 0;
    bool holdsAll_ = false;
    bool isAhead_ = false; // all of it was looked at
    std::shared_ptr<const vlk::TelemetryOrigin> first_;
    std::unique_ptr<ExportWriter> writer_;
    QByteArray front_;
    std::mutex mutex_;
    std::vector<Kept> idle_;
};

int refused(Output& output, const QString& reason)
{
    output.drop();
    writeError(complaint(QStringLiteral("r7106"), reason));
    return failed;
}

int convertFiles(const Conversion& asked, const Filter& filter, vlk::ExportOptions options,
                 const TelemetryInputs& inputs, Output& output)
{
    int status = inputs.status();
    Progress progress;
    SourceListener listener;
    listener.damage = [&](const File& file, const vlk::FileDamage& damage, qint64 size) {
        progress.writeError(damageLine(file, damage, size));
        status = std::max<int>(status, found);
    };
    listener.fault = [&](const File& file, const QString& reason) {
        progress.writeError(complaint(file.name, text("cli_002").arg(reason)));
        status = failed;
    };
    OriginLosses losses(asked);
    listener.origin = [&](const File& file, const vlk::TelemetryOrigin& origin, const QString& tracker) {
        losses.add(file, origin, tracker);
    };
    listener.complete = [&](const File& file, vlk::TelemetryOrigin& origin) {
        if (!asked.tracker.isEmpty() || options.archive)
            origin.trackerId = asked.tracker.isEmpty() ? trackerOf(file) : asked.tracker;
    };
    options.title = asked.tracker.isEmpty() && !inputs.files().empty()
                        ? trackerOf(inputs.files().front().file)
                        : asked.tracker;
    const TrackerTexts encoding;
    const std::unique_ptr<RecordSource> files = recordsOf(inputs.files(), listener);
    std::unique_ptr<RecordSource> merged;
    QStringList trackers;
    if (asked.merge) {
        QString reason;
        merged = mergedRecords(*files, asked.tracker.isEmpty() ? &trackers : nullptr, &reason);
        if (!merged)
            return refused(output, text("cli_213") + QStringLiteral(": ") + reason);
    }
    Conversions conversions(asked, filter, options, merged ? *merged : *files, output, progress);
    if (conversions.looksAhead())
        conversions.lookAhead();
    if (asked.strict && status != nothing) {
        output.drop();
        return failed;
    }
    conversions.write();
    if (trackers.size() > 1) {
        writeError(complaint(QStringLiteral("r7106"),
                             text("cli_296").arg(valueInOneLine(trackers.join(QStringLiteral(", "))))));
        status = std::max<int>(status, found);
    }
    if (conversions.isEmpty() || conversions.lacksContent()) {
        // A file that is there has more to tell.
        output.drop();
        const char* reason = !conversions.isEmpty() ? "cli_303" : filter.root ? "cli_292" : "cli_293";
        writeError(complaint(QStringLiteral("r7106"), text(reason)));
        return std::max<int>(status, found);
    }
    writeError(losses.lines(conversions.origin()));
    return status;
}

} // namespace

int convert(const Call& call, Output& output)
{
    const Conversion& asked = call.conversion;
    vlk::ExportOptions options;
    options.raw = asked.raw;
    if (asked.form == QLatin1String("ndjson"))
        options.eventText = tracker::eventText;
    options.decimalComma = asked.decimalComma;
    options.isMarked = formOf(asked).form == ExportForm::csv && output.isSpreadsheet();
    options.encode = vlk::toWindows1251;
    options.archive = asked.columns == QLatin1String("archive");
    if (asked.decimalComma && !formOf(asked).hasDecimalSign)
        return refused(output, text("cli_265"));
    Filter filter;
    if (!(asked.from + asked.to + asked.where + asked.columns).isEmpty()) {
        const FilterNames names = namesInBothLanguages();
        QString reason = readFilter(asked, names, &filter);
        if (reason.isEmpty() && !options.archive)
            reason = readColumns(asked.columns, names, &options.columns);
        if (!reason.isEmpty())
            return refused(output, reason);
    }
    const TelemetryInputs inputs(call.files);
    if (inputs.files().empty()) {
        output.drop();
        return inputs.status();
    }
    return convertFiles(asked, filter, options, inputs, output);
}

} // namespace workbench::command
