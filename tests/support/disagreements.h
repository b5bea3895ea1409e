#pragma once

// Whether the widgets of a window show what its settings hold.

#include "windows/binder/adapter.h"
#include "windows/binder/binder.h"

// Settings whose widgets hold another value.
inline QStringList disagreements(const vlk::Binder& binder)
{
    const auto adapters = binder.findChildren<vlk::Adapter*>();
    if (adapters.empty())
        return {"no widget is joined to a setting"};
    QStringList all;
    for (const vlk::Adapter* adapter : adapters) {
        const int row = adapter->row();
        if (adapter->held() != binder.values().value(row))
            all << QString("%1 is %2, shown %3")
                       .arg(binder.values().row(row).path, binder.values().value(row), adapter->held());
    }
    return all;
}
