#pragma once

// The menu of a setting: to bring it back to the file as it came, to give it its default, each a step of the
// history, and to copy its key.

#include "dialog/configuration_review.h"

class QContextMenuEvent;

namespace vlk {

struct SettingOfMenu
{
    ConfigurationReview& review;
    PageSettings& page;
    int row;
    int part; // as in review::Hit
};

// At a widget that is asked for a menu, added to the one that it has of its own.
void openSettingMenu(const SettingOfMenu& setting, QObject* widget, QContextMenuEvent* event);

} // namespace vlk
