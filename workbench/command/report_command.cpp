// The report of one configuration as HTML.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/file_names.h"
#include "command/output.h"
#include "review/preset.h"
#include "review/report.h"
#include "settings/all_settings.h"
#include "window/languages.h"
#include "xml/xml_document.h"

namespace workbench::command {

using vlk::review::Differences;
using vlk::review::FileState;

namespace {

QString html(const Call& call, vlk::XmlDocument& document)
{
    vlk::Configuration configuration(vlk::allSettings());
    configuration.read(*document.root());
    QStringList about{text("cli_052").arg(inOneLine(call.files.first()))};
    for (const auto& [attribute, key] : {std::pair("model", "cli_053"), {"version", "cli_054"}}) {
        const QString value = document.root()->getString(QLatin1String(attribute));
        if (!value.isEmpty())
            about << text(key).arg(value);
    }
    vlk::review::ReportChoice choice{.isChangesAlone = call.changedOnly};
    if (call.secrets)
        choice.secrets = vlk::review::Secrets::Shown;
    const Differences changes(FileState::ofDefaults(configuration),
                              FileState::ofConfiguration(configuration));
    const auto advice =
        vlk::review::advise(configuration, FileState::ofDocument(*document.root(), configuration).unread());
    return toHtml(configuration, reportOf(configuration, changes, advice, about, choice));
}

} // namespace

QString reportHtml(const Call& call, int* status)
{
    QString made;
    const Outcome outcome = withConfiguration(
        call, {call.files.first(), true}, [&](const QByteArray&, vlk::XmlDocument& document) {
            // All that it lacks would stand there as defaults.
            if (vlk::review::saysPreset(*document.root()))
                return refusal(call, call.files.first(), text("cli_331"));
            made = html(call, document);
            return Outcome{};
        });
    writeError(outcome.told + outcome.complaints);
    *status = outcome.status;
    return made;
}

} // namespace workbench::command
