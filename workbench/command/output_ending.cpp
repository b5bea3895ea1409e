#include "command/output_ending.h"

#include "telemetry/files/export_form.h"
#include "window/languages.h"

#include <QFileInfo>

#include <algorithm>

namespace workbench::command {

namespace {

bool isReport(const Call& call)
{
    return call.command == QLatin1String("report");
}

bool isTable(const Call& call)
{
    return call.csv;
}

// The document itself; what is told of a file that is changed in place is refused by the arguments.
bool isEditedDocument(const Call& call)
{
    return (call.command == QLatin1String("set") || call.command == QLatin1String("apply")) && !call.dryRun &&
           call.files == QStringList(QStringLiteral("-"));
}

bool isLinesOfJson(const Call& call)
{
    return call.json && !isEditedDocument(call);
}

struct EndingRow
{
    const char* ending;
    const char* writer; // for who looks for it
    bool (*isWritten)(const Call& call);
};

// What writes files with these endings; those of telemetry have a table of their own.
constexpr EndingRow kEndingRows[] = {
    {"pdf", "report", isReport},
    {"html", "report", isReport},
    {"csv", "compare --csv", isTable},
    {"json", "check --json", isLinesOfJson},
    {"jsonl", "check --json", isLinesOfJson},
    {"ndjson", "check --json", isLinesOfJson},
    {"xml", "set FILE -", isEditedDocument},
};

bool isNamed(const vlk::ExportFormRow& row, const QString& ending)
{
    using vlk::ExportForm;
    return ending == QLatin1String(row.suffix) ||
           (row.form == ExportForm::Ndjson && ending == QLatin1String("jsonl")) ||
           ((row.form == ExportForm::Ndjson || row.form == ExportForm::Geojson) &&
            ending == QLatin1String("json"));
}

} // namespace

QString whyOtherEnding(const Call& call)
{
    const QString ending = QFileInfo(call.output).suffix().toLower();
    const bool isFile = !call.output.isEmpty() && call.output != QLatin1String("-");
    if (!isFile)
        return {};
    QStringList writers;
    for (const EndingRow& row : kEndingRows) {
        if (ending != QLatin1String(row.ending))
            continue;
        if (row.isWritten(call))
            return {};
        writers << QLatin1String(row.writer);
    }
    for (const vlk::ExportFormRow& row : vlk::kExportForms) {
        if (!isNamed(row, ending))
            continue;
        if (call.conversion.form == QLatin1String(row.name))
            return {};
        writers << QStringLiteral("convert --to ") + QLatin1String(row.name);
    }
    if (isReport(call))
        return text("cli_024");
    return writers.isEmpty() ? QString() : text("cli_333").arg(ending, writers.join(QStringLiteral(", ")));
}

} // namespace workbench::command
