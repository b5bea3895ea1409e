// Telemetry in another form.

#include "command/commands.h"

#include "base/windows1251.h"
#include "command/conversions.h"
#include "command/damage_lines.h"
#include "command/file_names.h"
#include "command/origin_losses.h"
#include "telemetry/files/filter_parser.h"
#include "tracker/event_code.h"
#include "window/languages.h"

#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>
#include <limits>

namespace workbench::command {

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
                          {static_cast<double>(event), static_cast<double>(event)});
    }
    return names;
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
            parsed.filter && parsed.filter->root && parsed.filter->root->kind == FilterNode::Condition;
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
        filter->root = FilterNode{.kind = FilterNode::All, .parts = std::move(nodes)};
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

int refused(Output& output, const QString& reason)
{
    output.drop();
    writeError(complaint(QStringLiteral("r7106"), reason));
    return Failed;
}

// A condition on a column that no record holds is not one that no value meets.
QString whyNone(const Filter& filter, RecordSource& source)
{
    std::vector<vlk::FilterColumn> absent = filter.columns();
    int records = 0;
    source.rewind();
    while (const std::optional<RecordBatch> batch = absent.empty() ? std::nullopt : source.next()) {
        records += batch->records.size();
        std::erase_if(absent, [&batch](const vlk::FilterColumn& column) {
            return std::ranges::any_of(batch->records.layouts(), [&column](const vlk::RecordLayout& layout) {
                return layout.has(elementOf(column));
            });
        });
    }
    if (absent.empty() || records == 0)
        return text("cli_292");
    QStringList names;
    for (const vlk::FilterColumn& column : absent)
        names << QString::fromStdString(std::string(nameOf(column)));
    return text("cli_340").arg(text("cli_292"), names.join(QStringLiteral(", ")));
}

int convertFiles(const Conversion& asked, const Filter& filter, vlk::ExportOptions options,
                 const TelemetryInputs& inputs, Output& output)
{
    int status = inputs.status();
    Progress progress;
    SourceListener listener;
    listener.damage = [&](const File& file, const vlk::FileDamage& damage, qint64 size) {
        progress.writeError(damageLine(file, damage, size));
        status = std::max<int>(status, Found);
    };
    listener.fault = [&](const File& file, const QString& reason) {
        progress.writeError(complaint(file.name, text("cli_002").arg(reason)));
        status = Failed;
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
    const bool isReadTwice = looksAhead(asked, options);
    std::unique_ptr<RecordSource> prepared;
    QStringList trackers;
    if (asked.merge) {
        QString reason;
        prepared = mergedRecords(*files, asked.tracker.isEmpty() ? &trackers : nullptr, &reason);
        if (!prepared)
            return refused(output, text("cli_213") + QStringLiteral(": ") + reason);
    } else if (isReadTwice && std::ranges::any_of(inputs.files(), &TelemetryInput::isXml)) {
        prepared = keptForAgain(*files);
    }
    Conversions conversions(asked, filter, options, prepared ? *prepared : *files, output, progress);
    if (isReadTwice)
        conversions.lookAhead();
    if (asked.strict && status != Nothing) {
        output.drop();
        return Failed;
    }
    conversions.write();
    if (trackers.size() > 1) {
        writeError(complaint(QStringLiteral("r7106"),
                             text("cli_296").arg(valueInOneLine(trackers.join(QStringLiteral(", "))))));
        status = std::max<int>(status, Found);
    }
    if (conversions.isEmpty() || conversions.lacksContent()) {
        // A file that is there has more to tell.
        output.drop();
        const QString reason = !conversions.isEmpty() ? text("cli_303")
                               : filter.root          ? whyNone(filter, *files)
                                                      : text("cli_293");
        writeError(complaint(QStringLiteral("r7106"), reason));
        return std::max<int>(status, Found);
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
    options.isMarked = formOf(asked).form == vlk::ExportForm::Csv && output.isSpreadsheet();
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
