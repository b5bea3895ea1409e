// What is wrong in configurations, and what advice there is.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/difference_lines.h"
#include "command/each_file.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "review/check_file.h"
#include "window/languages.h"
#include "xml/xml_document.h"

namespace workbench::command {

using vlk::review::FileRemark;

namespace {

struct SeverityRow
{
    const char* name;
    const char* word;
};

// By Severity.
constexpr SeverityRow severities[] = {{"hint", "cli_082"}, {"warning", "cli_081"}, {"error", "cli_080"}};

QByteArray lineOf(const Call& call, const File& file, const FileRemark& remark)
{
    const SeverityRow& severity = severities[static_cast<int>(remark.severity)];
    if (!call.json) {
        const QString line = QStringLiteral("%1: ").arg(text(severity.word)) +
                             inWords(remark.path, {remark.page, remark.caption}) + QStringLiteral(": ") +
                             remark.text;
        return complaint(file.name, line);
    }
    const bool isFinding = remark.kind == FileRemark::Kind::finding;
    return JsonLine()
        .add("file", readable(file.name))
        .add("kind", isFinding ? QStringLiteral("finding") : QStringLiteral("advice"))
        .add("severity", QString::fromLatin1(severity.name))
        .add("path", remark.path)
        .add("paths", remark.paths)
        .add("page", remark.page)
        .add("caption", remark.caption)
        .add("text", remark.text)
        .line();
}

} // namespace

int check(const Call& call, Output& output)
{
    const auto secrets = call.secrets ? vlk::review::Secrets::shown : vlk::review::Secrets::masked;
    const auto work = [&](const File& file) {
        return withConfiguration(call, file, [&](const QByteArray&, vlk::XmlDocument& document) {
            Outcome outcome;
            for (const FileRemark& remark : checkDocument(*document.root(), secrets)) {
                outcome.told += lineOf(call, file, remark);
                outcome.status = found;
            }
            return outcome;
        });
    };
    return eachFile(call.files, work, output);
}

} // namespace workbench::command
