// Settings and presets laid into files.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/difference_lines.h"
#include "command/each_file.h"
#include "command/expected_value.h"
#include "command/file_names.h"
#include "command/file_turn.h"
#include "command/interruption.h"
#include "command/preset_problems.h"
#include "command/system_reason.h"
#include "plugin/base/replace_file.h"
#include "review/edit_file.h"
#include "review/value_text.h"
#include "settings/all_settings.h"
#include "window/languages.h"
#include "xml/xml_document.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace workbench::command {

using vlk::Change;
using vlk::review::Differences;
using vlk::review::EditedFile;
using vlk::review::FileKeys;
using vlk::review::FileState;
using vlk::review::KeyEdit;
using vlk::review::PresetProblem;

namespace {

// Whether it is a number, in either decimal sign, of a setting of whole ones.
bool isFraction(const PresetProblem& problem)
{
    bool isNumber = false;
    QString(problem.text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    const vlk::Number* number = problem.setting ? problem.setting->number() : nullptr;
    return isNumber && number && !number->isText && !number->hexadecimal;
}

const char* reasonKey(const PresetProblem& problem)
{
    switch (problem.change) {
    case Change::NotANumber:
        return isFraction(problem) ? "cli_297" : "cli_034";
    case Change::OutOfRange:
    case Change::Wrapped:
        return "cli_035";
    case Change::Rounded:
        return "cli_036";
    case Change::TooLong:
        return "cli_037";
    case Change::NotOffered:
        return "cli_038";
    case Change::ByRule:
        return "cli_039";
    case Change::None:
    case Change::Missing:
    case Change::UnknownCode:
    case Change::Completed:
    case Change::NotCarried:
    case Change::OtherForm:
    case Change::LooseForm:
        break;
    }
    return "cli_033";
}

QString sentence(const PresetProblem& problem)
{
    using What = PresetProblem::What;
    const QString path = valueInOneLine(problem.path);
    switch (problem.what) {
    case What::UnknownKey:
        return text("cli_030").arg(path);
    case What::Doubled:
        return text("cli_031").arg(path);
    case What::NoPlace:
        return text("cli_032").arg(path);
    case What::BadValue:
        break;
    }
    if (problem.text.isEmpty())
        return withExpected(text("cli_028").arg(path), problem);
    const bool isSecret = FileKeys::all().looksSecret(problem.path);
    return withExpected(
        text(reasonKey(problem))
            .arg(path, isSecret ? QString::fromUtf8(vlk::kSecretDots) : valueInOneLine(problem.text)),
        problem);
}

QString sentences(const std::vector<PresetProblem>& problems)
{
    QStringList told;
    for (const PresetProblem& problem : problems)
        told << sentence(problem);
    return told.join(QStringLiteral("; "));
}

// Even where the system would let a privileged user write.
bool isClosed(const QString& name)
{
    return !(QFile::permissions(name) & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

QByteArray toldOf(const Call& call, const File& file, const QByteArray& before, const QByteArray& after)
{
    vlk::XmlDocument left(before, QStringLiteral("DEVICE"));
    vlk::XmlDocument right(after, QStringLiteral("DEVICE"));
    vlk::Configuration configuration(vlk::allSettings());
    configuration.read(*right.root());
    return linesOf(Differences(FileState::ofDocument(*left.root()), FileState::ofDocument(*right.root())),
                   configuration, call, file.name);
}

// What was read is there no longer: another program has saved the file since.
bool isOvertaken(const QString& name, const QByteArray& read)
{
    QFile file(name);
    return !file.open(QIODevice::ReadOnly) || file.read(read.size() + 1) != read;
}

// Standard input goes to standard output as a document; what changed in it is told beside it.
Outcome passedOn(const Call& call, const QByteArray& document, const QByteArray& told)
{
    return call.dryRun ? Outcome{told, {}, told.isEmpty() ? Nothing : Found} : Outcome{document, told};
}

Outcome laidInto(const Call& call, const File& file, const QByteArray& before, const EditedFile& edited)
{
    if (!edited.isReadable)
        return refusal(call, file.name, text("cli_008"));
    if (!edited.problems.empty())
        return refusal(call, file.name, sentences(edited.problems));
    const bool isSame = edited.text == before;
    const QByteArray told = isSame ? QByteArray() : toldOf(call, file, before, edited.text);
    if (file.isStandardInput())
        return passedOn(call, edited.text, told);
    if (isSame)
        return {};
    if (isOvertaken(file.name, before))
        return refusal(call, file.name, text("cli_280"));
    QString reason = isClosed(file.name) ? qt_error_string(EACCES) : QString();
    if (!reason.isEmpty() || (!call.dryRun && !vlk::replaceFile(file.name, edited.text, &reason)))
        return refusal(call, file.name, text("cli_003").arg(systemReason(reason)));
    return {told, {}, call.dryRun ? Found : Nothing};
}

using Edit = std::function<EditedFile(const QByteArray& text)>;

int edit(const Call& call, Output& output, const Edit& edit)
{
    // Whoever interrupts it is told of every file that was changed.
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    // All files are changed, although nobody reads on what became of them.
    if (!call.dryRun && !call.files.contains(QStringLiteral("-"))) {
        std::signal(SIGPIPE, SIG_IGN);
        awaitInterruption();
    }
    const auto work = [&](const File& file) {
        const FileTurn turn(file.isStandardInput() ? QString() : file.name);
        if (!turn.has())
            return refusal(call, file.name, text("cli_280"));
        return withConfiguration(call, file, [&](const QByteArray& content, vlk::XmlDocument& document) {
            // Presets get settings, but none of another preset: whoever names one there has turned the order.
            if (!call.preset.isEmpty() && vlk::review::saysPreset(*document.root()))
                return refusal(call, file.name, text("cli_291"));
            return laidInto(call, file, content, edit(content));
        });
    };
    return eachFile(call.files, work, output);
}

} // namespace

int set(const Call& call, Output& output)
{
    std::vector<KeyEdit> edits;
    for (const QString& setting : call.settings) {
        const int sign = setting.indexOf(QLatin1Char('='));
        edits.push_back({setting.left(sign), setting.mid(sign + 1)});
    }
    return edit(call, output, [&](const QByteArray& text) { return vlk::review::withEdits(text, edits); });
}

int apply(const Call& call, Output& output)
{
    QByteArray preset;
    const Outcome outcome = withConfiguration(
        call, {call.preset, true}, [&](const QByteArray& content, vlk::XmlDocument& document) {
            preset = content;
            if (vlk::review::saysConfiguration(*document.root()))
                return refusal(call, call.preset, text("cli_290"));
            const std::vector<PresetProblem> problems = problemsOfPreset(*document.root());
            return problems.empty() ? Outcome{} : refusal(call, call.preset, sentences(problems));
        });
    output.write(outcome.told);
    writeError(outcome.complaints);
    if (outcome.status == Failed)
        return Failed;
    return edit(call, output, [&](const QByteArray& text) {
        vlk::XmlDocument document(preset, QStringLiteral("DEVICE"));
        return vlk::review::withPreset(text, *document.root());
    });
}

} // namespace workbench::command
