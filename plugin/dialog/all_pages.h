#pragma once

// The pages of config_pages.h with all that belongs to them, for who calls their operations.

#include "dialog/config_pages.h"
#include "pages/form_config_transfer.h"
