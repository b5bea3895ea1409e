#pragma once

// The adapters of all kinds of rows.

#include "windows/binder/boxes_adapter.h"
#include "windows/binder/choice_adapter.h"
#include "windows/binder/flag_adapter.h"
#include "windows/binder/mask_adapter.h"
#include "windows/binder/number_adapter.h"
#include "windows/binder/period_adapter.h"
#include "windows/binder/text_adapter.h"
