#include "settings/all_settings.h"

#include "settings/transfer_settings.h"

namespace vlk {

const std::vector<const SettingsTable*>& allSettings()
{
    static const std::vector<const SettingsTable*> tables = {&kTransferSettings};
    return tables;
}

} // namespace vlk
