#pragma once

// Which panel below the pages was open the last time, and how high; kept with the host's configurations
// (base/settings_file.h).

namespace vlk {

struct PanelMemory
{
    int open = 0; // as ReviewBar::Panel
    int height = 200;

    static PanelMemory load();
    void save() const;
};

} // namespace vlk
