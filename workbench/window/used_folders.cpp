#include "window/used_folders.h"

#include "typing/file_error.h"
#include "window/data_folder.h"
#include "window/languages.h"
#include "window/plugin_link.h"
#include "window/settings.h"

#include <QDir>

namespace workbench {

std::vector<Sentence> useFolders(Settings& settings, const DataFolder& own, PluginLink& link)
{
    const auto orOwn = [](const QString& chosen, const QString& ownOne) {
        return chosen.isEmpty() ? ownOne : chosen;
    };
    settings.setFolders(orOwn(settings.telemetryFolder(), own.telemetryFolder()),
                        orOwn(settings.configurationFolder(), own.configurationFolder()));
    // One on a drive that is not there stays chosen, for the day when it is.
    std::vector<Sentence> told;
    const auto inThisRun = [&told](const QString& chosen, const QString& ownOne) {
        const QString reason = whyNotWritable(chosen);
        if (reason.isEmpty())
            return chosen;
        told.emplace_back([chosen, ownOne, reason] {
            return text("wb_folder_replaced")
                .arg(QDir::toNativeSeparators(chosen), vlk::fileErrorText(reason),
                     QDir::toNativeSeparators(ownOne));
        });
        return ownOne;
    };
    const QString telemetry = inThisRun(settings.telemetryFolder(), own.telemetryFolder());
    const QString configuration = inThisRun(settings.configurationFolder(), own.configurationFolder());
    link.setPaths(telemetry, configuration);
    return told;
}

} // namespace workbench
