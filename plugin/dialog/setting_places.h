#pragma once

// Where settings stand in the windows, and the way there: their tab, the middle of what scrolls, the focus,
// and an outline for a moment.

#include "windows/binder/page_settings.h"

#include <functional>

namespace vlk {

class SettingPlaces : public QObject
{
    Q_OBJECT

public:
    // `pages`: those of the window on show.
    explicit SettingPlaces(std::function<std::vector<PageSettings*>()> pages, QObject* parent = nullptr);

    // The setting of review::FileKeys; `part` as in review::Hit. Null where no form on show has it: it
    // stands in one that the present values do not call for, or in the other window.
    QWidget* widgetOf(int table, int row, int part = -1) const;
    // As near as there is something to show.
    void goTo(int table, int row, int part = -1);
    // After the page has lost some of its room.
    static void keepInSight(QWidget* widget);

private:
    std::function<std::vector<PageSettings*>()> pages_;
};

} // namespace vlk
