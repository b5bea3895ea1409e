#pragma once

// The Transfer page for tests.

#include "pages/form_config_transfer.h"
#include "settings_page.h"

class TransferPage : public SettingsPage<VLK_Form_Config_Transfer>
{
public:
    TransferPage() : SettingsPage("TRANS") {}
};
