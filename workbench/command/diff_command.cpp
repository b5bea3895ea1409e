// Two configurations, or one and what its keys would read as if they were missing.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/difference_lines.h"
#include "command/output.h"
#include "settings/all_settings.h"
#include "xml/xml_document.h"

#include <algorithm>
#include <optional>

namespace workbench::command {

using vlk::review::Differences;
using vlk::review::FileState;

int diff(const Call& call, Output& output)
{
    vlk::Configuration configuration(vlk::allSettings());
    std::vector<FileState> states;
    std::optional<Differences> load;
    int status = Nothing;
    for (const QString& name : call.files) {
        const Outcome outcome =
            withConfiguration(call, {name, true}, [&](const QByteArray&, vlk::XmlDocument& document) {
                configuration.read(*document.root());
                states.push_back(call.againstDefaults ? FileState::ofConfiguration(configuration)
                                                      : FileState::ofDocument(*document.root()));
                if (call.againstDefaults)
                    load.emplace(FileState::ofDocument(*document.root(), configuration), states.back());
                return Outcome{};
            });
        output.write(outcome.told);
        writeError(outcome.complaints);
        status = std::max(status, outcome.status);
    }
    if (status == Failed)
        return Failed;
    if (call.againstDefaults)
        states.insert(states.begin(), FileState::ofDefaults(configuration));
    const Differences differences(std::move(states.front()), std::move(states.back()));
    output.write(linesOf(differences, configuration, call, {}, load ? &*load : nullptr));
    return differences.count() > 0 ? Found : Nothing;
}

} // namespace workbench::command
