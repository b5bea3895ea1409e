#include "command/conversions.h"

#include "command/in_order.h"
#include "telemetry/files/title_lines.h"

#include <QBuffer>

#include <algorithm>
#include <unistd.h>

namespace workbench::command {

using vlk::ExportForm;

namespace {

constexpr qint64 kMostHeldBytes = 32 << 20;
// Reading goes on while a batch is written.
constexpr std::size_t kWaitingEarly = 32;

// `place`: of bytes that are not needed any more.
template <class Write>
QByteArray bytesOf(Write write, QByteArray place = {})
{
    QBuffer buffer(&place);
    buffer.open(QIODevice::WriteOnly | QIODevice::Truncate);
    vlk::OutputBuffer out(buffer);
    write(out);
    out.finish();
    return place;
}

} // namespace

const vlk::ExportFormRow& formOf(const Conversion& asked)
{
    return *std::ranges::find_if(vlk::kExportForms, [&](const vlk::ExportFormRow& row) {
        return asked.form == QLatin1String(row.name);
    });
}

bool looksAhead(const Conversion& asked, const vlk::ExportOptions& options)
{
    const vlk::ExportFormRow& form = formOf(asked);
    const bool isTable = form.form == ExportForm::Csv || form.form == ExportForm::Tsv;
    const bool knowsColumns = isTable && (options.archive || !options.columns.empty());
    return (form.looksAhead && !knowsColumns) || asked.strict;
}

Conversions::Conversions(const Conversion& asked, vlk::Filter filter, vlk::ExportOptions options,
                         RecordSource& source, Output& output, Progress& progress)
    : form_(formOf(asked)), asked_(asked), filter_(std::move(filter)), options_(std::move(options)),
      source_(source), output_(output), progress_(progress),
      isOnTerminal_(!output.isFile() && isatty(STDOUT_FILENO) != 0)
{
}

void Conversions::lookAhead()
{
    const auto look = [this](Part part) {
        ahead_.add(part.batch.records, *part.records, form_.form);
        setOrigin(part.batch);
        if (!part.bytes.isNull())
            early_.keep(part.number, part.ahead, std::exchange(part.bytes, {}));
        hold(std::move(part));
    };
    const bool writesEarly = form_.isIndependent && !asked_.strict && coresToUse() > 1;
    holdsAll_ = !source_.isQuickAgain();
    walk(
        [this, writesEarly](Part part) {
            part = chosen(std::move(part));
            return writesEarly ? early(std::move(part)) : part;
        },
        look, writesEarly ? kWaitingEarly : 0);
    source_.rewind();
    isAhead_ = true;
}

void Conversions::write()
{
    const auto format = [this](Part part) { return written(std::move(part)); };
    const auto putReady = [this](Part part) {
        written_ += part.records->size();
        begin(part.batch);
        put(part.bytes);
        giveBack(std::move(part.bytes));
    };
    const auto choose = [this](Part part) { return chosen(std::move(part)); };
    const auto putInTurn = [this](Part part) {
        written_ += part.records->size();
        begin(part.batch);
        put(bytesOf([&](vlk::OutputBuffer& out) { writer_->add(out, part.batch.records, *part.records); }));
    };
    if (form_.isIndependent)
        walk(format, putReady);
    else
        walk(choose, putInTurn);
    begin({});
    put(bytesOf([this](vlk::OutputBuffer& out) { writer_->finish(out); }));
}

void Conversions::walk(std::function<Part(Part)> work, const std::function<void(Part)>& take,
                       std::size_t mostWaiting)
{
    done_ = 0;
    number_ = 0;
    InOrder<Part, Part> all([this] { return next(); }, std::move(work), mostWaiting);
    while (std::optional<Part> part = all.take()) {
        done_ += part->number.records;
        if (!isOnTerminal_)
            progress_.show(done_);
        take(std::move(*part));
    }
}

std::optional<Conversions::Part> Conversions::next()
{
    std::optional<Part> part = read();
    if (part && isAhead_)
        part->bytes = early_.take(part->number, ahead_);
    return part;
}

std::optional<Conversions::Part> Conversions::read()
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
    return Part{.batch = std::move(*batch), .number = {number_++, size}};
}

// As long as they are few; else they are read again.
void Conversions::hold(Part part)
{
    if (!holdsAll_)
        return;
    for (int record = 0; record < part.batch.records.size(); ++record)
        heldBytes_ += std::ssize(part.batch.records.bytes(record));
    holdsAll_ = heldBytes_ <= kMostHeldBytes;
    if (holdsAll_)
        held_.push_back(std::move(part));
    else
        held_.clear();
}

Conversions::Part Conversions::chosen(Part part) const
{
    if (part.records)
        return part;
    vlk::RecordColumns columns(part.batch.records,
                               typeLetters(part.batch.origin->titles).toLatin1().toStdString());
    part.records = passing(filter_, columns);
    return part;
}

Conversions::Part Conversions::early(Part part)
{
    const std::unique_lock turn = early_.turn();
    if (!turn || part.records->empty())
        return part;
    part.ahead.add(part.batch.records, *part.records, form_.form);
    part.bytes = bytesFor(part, part.ahead);
    return part;
}

Conversions::Part Conversions::written(Part part)
{
    part = chosen(std::move(part));
    if (part.bytes.isNull())
        part.bytes = bytesFor(part, ahead_);
    part.batch.records = {};
    return part;
}

QByteArray Conversions::bytesFor(const Part& part, const vlk::ExportAhead& ahead)
{
    Kept kept = borrow(part.batch.origin, ahead);
    QByteArray bytes =
        bytesOf([&](vlk::OutputBuffer& out) { kept.writer->add(out, part.batch.records, *part.records); },
                borrowPlace());
    usualBytes_ = bytes.size() + bytes.size() / 16;
    giveBack(std::move(kept));
    return bytes;
}

// A writer for records of that origin with those fields: making one takes longer than writing some.
Conversions::Kept Conversions::borrow(const std::shared_ptr<const vlk::TelemetryOrigin>& origin,
                                      const vlk::ExportAhead& ahead)
{
    {
        const std::lock_guard lock(mutex_);
        const auto found = std::ranges::find_if(
            idle_, [&](const Kept& kept) { return kept.origin == origin && kept.ahead.hasFieldsOf(ahead); });
        if (found != idle_.end()) {
            Kept kept = std::move(*found);
            idle_.erase(found);
            return kept;
        }
    }
    return {origin, ahead, exportWriter(form_.form, ahead, optionsFor(*origin))};
}

void Conversions::giveBack(Kept kept)
{
    const std::lock_guard lock(mutex_);
    // Those of files that are through, and of other fields.
    if (!idle_.empty() &&
        (idle_.front().origin != kept.origin || !idle_.front().ahead.hasFieldsOf(kept.ahead)))
        idle_.clear();
    idle_.push_back(std::move(kept));
}

// Memory that is had anew for every batch costs a tenth of the time.
QByteArray Conversions::borrowPlace()
{
    const std::lock_guard lock(mutex_);
    if (places_.empty()) {
        QByteArray place;
        place.reserve(usualBytes_);
        return place;
    }
    QByteArray place = std::move(places_.back());
    places_.pop_back();
    return place;
}

void Conversions::giveBack(QByteArray place)
{
    constexpr std::size_t most = 8;
    const std::lock_guard lock(mutex_);
    if (places_.size() < most)
        places_.push_back(std::move(place));
}

vlk::ExportOptions Conversions::optionsFor(const vlk::TelemetryOrigin& origin) const
{
    vlk::ExportOptions options = options_;
    options.origin = origin;
    return options;
}

// The heading tells of the first file.
void Conversions::setOrigin(const RecordBatch& batch)
{
    if (!first_)
        first_ = batch.origin;
}

void Conversions::begin(const RecordBatch& batch)
{
    if (writer_)
        return;
    setOrigin(batch);
    writer_ = exportWriter(form_.form, ahead_, first_ ? optionsFor(*first_) : options_);
    put(bytesOf([this](vlk::OutputBuffer& out) { writer_->begin(out); }));
}

// What stands in front waits for the first record: where none comes, nothing is written.
void Conversions::put(const QByteArray& bytes)
{
    front_ += bytes;
    if (isEmpty() || lacksContent())
        return;
    output_.writeRecords(front_);
    front_.clear();
}

} // namespace workbench::command
