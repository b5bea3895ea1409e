#pragma once

// Where settings stand in the windows, and the way there: their tab, the middle of what scrolls, the focus,
// and an outline for a moment.

#include "review/search.h"
#include "windows/binder/page_settings.h"

#include <functional>
#include <utility>
#include <vector>

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
    // The setting by which the quick window, if it is on show, has this one; else the same.
    review::Hit onShow(const review::Hit& hit) const;
    // What has to be set to show it, "Device: Fuel level sensors", or that the other window has it. Empty
    // where it is on show.
    QString whyHidden(int table, int row) const;
    // Whether no window of this tracker ever shows it: sensors behind the sixth one, which are kept all the
    // same.
    bool isShownNowhere(int table, int row, int part = -1) const;
    // To what has to be set first, where the setting is not on show, saying so.
    void goTo(int table, int row, int part = -1);
    // Outlines a widget where it stands, and shows its tool tip unless a press of the mouse would take it
    // away.
    static void pointAt(QWidget* widget);
    // After the page has lost some of its room.
    static void keepInSight(QWidget* widget);

private:
    PageSettings* pageOf(int table) const;
    // The page of the window on show that has it, and its row there.
    std::pair<PageSettings*, int> placeOf(int table, int row) const;

    std::function<std::vector<PageSettings*>()> pages_;
};

} // namespace vlk
