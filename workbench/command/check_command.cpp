// What is wrong in configurations, and what advice there is.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/difference_lines.h"
#include "command/each_file.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "command/preset_problems.h"
#include "review/check_file.h"
#include "window/languages.h"
#include "xml/xml_document.h"

namespace workbench::command {

using vlk::review::FileRemark;
using vlk::review::PresetProblem;

namespace {

struct SeverityRow
{
    const char* name;
    const char* word;
};

// By Severity.
constexpr SeverityRow kSeverities[] = {{"hint", "cli_082"}, {"warning", "cli_081"}, {"error", "cli_080"}};

QByteArray lineOf(const Call& call, const File& file, const FileRemark& remark)
{
    const SeverityRow& severity = kSeverities[static_cast<int>(remark.severity)];
    if (!call.json) {
        // A setting of many parts says its caption in its sentence.
        const bool isNamed = remark.text.startsWith(remark.caption + QStringLiteral(": "));
        const QString place = inWords(remark.path, {remark.page, isNamed ? QString() : remark.caption});
        const QString line = QStringLiteral("%1: %2: %3").arg(text(severity.word), place, remark.text);
        return complaint(file.name, line);
    }
    const bool isFinding = remark.kind == FileRemark::Kind::Finding;
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

// Keys that it lacks are no default values, so there is no advice on them.
std::vector<FileRemark> remarksOnPreset(CXmlSection& root, vlk::review::Secrets secrets)
{
    std::vector<FileRemark> remarks;
    for (const PresetProblem& problem : problemsOfPreset(root)) {
        const vlk::review::DifferenceText words = textOf(problem, secrets);
        const bool isSetting = vlk::review::FileKeys::all().at(problem.path) >= 0;
        remarks.push_back({.path = problem.path,
                           .paths = {problem.path},
                           .page = isSetting ? words.page : QString(),
                           .caption = isSetting ? words.caption : QString(),
                           .text = isSetting && !words.beforeText.isEmpty()
                                       ? QStringLiteral("%1. %2").arg(words.beforeText, words.note)
                                       : words.note});
    }
    return remarks;
}

} // namespace

int check(const Call& call, Output& output)
{
    const auto secrets = call.secrets ? vlk::review::Secrets::Shown : vlk::review::Secrets::Masked;
    const auto work = [&](const File& file) {
        return withConfiguration(call, file, [&](const QByteArray&, vlk::XmlDocument& document) {
            Outcome outcome;
            const bool isPreset = vlk::review::saysPreset(*document.root());
            for (const FileRemark& remark : isPreset ? remarksOnPreset(*document.root(), secrets)
                                                     : checkDocument(*document.root(), secrets)) {
                outcome.told += lineOf(call, file, remark);
                outcome.status = Found;
            }
            return outcome;
        });
    };
    return eachFile(call.files, work, output);
}

} // namespace workbench::command
