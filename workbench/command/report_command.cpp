// The report of one configuration as HTML.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/file_names.h"
#include "command/output.h"
#include "plugin/base/clock.h"
#include "review/advice.h"
#include "review/report.h"
#include "settings/all_settings.h"
#include "window/languages.h"
#include "xml/xml_document.h"

#include <QLocale>

namespace workbench::command {

using vlk::review::Differences;
using vlk::review::FileState;

namespace {

QString html(const Call& call, vlk::XmlDocument& document)
{
    vlk::Configuration configuration(vlk::allSettings());
    configuration.read(*document.root());
    const FileState state = FileState::ofDocument(*document.root(), configuration);

    vlk::review::Report report;
    const QString name = configuration.value(QStringLiteral("TRANS/OBJECT/name"));
    report.title = name.isEmpty() ? text("cli_050") : text("cli_051").arg(name);
    report.about << text("cli_052").arg(inOneLine(call.files.first()));
    for (const auto& [attribute, key] : {std::pair("model", "cli_053"), {"version", "cli_054"}}) {
        const QString value = document.root()->getString(QLatin1String(attribute));
        if (!value.isEmpty())
            report.about << text(key).arg(value);
    }
    report.about << text("cli_055").arg(QLocale().toString(vlk::now(), QLocale::ShortFormat));
    QHash<QString, QString> unread;
    for (const vlk::review::Stranger& stranger : state.strangers())
        unread.insert(stranger.path, stranger.text);
    for (const vlk::review::Finding& finding : vlk::review::advise(configuration, unread))
        report.advice << adviceText(finding);
    if (call.changedOnly) {
        const Differences differences(FileState::ofDefaults(configuration),
                                      FileState::ofConfiguration(configuration));
        for (const vlk::review::Difference& difference : differences.all())
            report.keys.push_back(difference.key);
        // Without a key all of them would be told.
        if (report.keys.empty())
            report.keys.push_back(-1);
    }
    report.secrets = call.secrets ? vlk::review::Secrets::shown : vlk::review::Secrets::masked;
    return toHtml(configuration, report);
}

} // namespace

QString reportHtml(const Call& call, int* status)
{
    QString made;
    const Outcome outcome = withConfiguration(call, {call.files.first(), true},
                                              [&](const QByteArray&, vlk::XmlDocument& document) {
                                                  made = html(call, document);
                                                  return Outcome{};
                                              });
    writeError(outcome.told + outcome.complaints);
    *status = outcome.status;
    return made;
}

} // namespace workbench::command
