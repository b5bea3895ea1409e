#pragma once

// Which panel below the pages was open the last time, and how high; kept in the host's folder of
// configurations. Without such a folder nothing is kept: none is made for this.

namespace vlk {

struct PanelMemory
{
    int open = 0; // as ReviewBar::Panel
    int height = 200;

    static PanelMemory load();
    void save() const;
};

} // namespace vlk
