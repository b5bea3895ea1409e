#include "settings/all_settings.h"

#include "settings/accel_settings.h"
#include "settings/bluetooth_settings.h"
#include "settings/data_set_settings.h"
#include "settings/lines_in_settings.h"
#include "settings/lines_out_settings.h"
#include "settings/rs_settings.h"
#include "settings/system_settings.h"
#include "settings/temperature_settings.h"
#include "settings/track_settings.h"
#include "settings/transfer_settings.h"

namespace vlk {

const std::vector<const SettingsTable*>& allSettings()
{
    static const std::vector<const SettingsTable*> tables = {
        &kTransferSettings,    &kDataSetSettings, &kTrackSettings, &kSystemSettings,   &kRsSettings,
        &kTemperatureSettings, &kLinesInSettings, &kAccelSettings, &kLinesOutSettings, &kBluetoothSettings};
    return tables;
}

} // namespace vlk
