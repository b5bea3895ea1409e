#pragma once

// The extension ApplyPreset.

#include "link/messages.h"

class VLK_Widget_Config;

namespace vlk {

// Does what the host asked for, and fills what became of it. A record without a preset asks for nothing.
// `open` may be null.
void applyPreset(PresetApplication& asked, VLK_Widget_Config* open);

} // namespace vlk
