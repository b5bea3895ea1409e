#pragma once

// What a setting is called: in the present language, or in the one of a TextsFrom.

#include "settings/table_layout.h"

namespace vlk::review {

struct SettingWords
{
    QString page;
    QString group; // "Servers / Backup 1"; empty where nothing stands above it
    QString caption;
};

// A setting without a caption is told by its heading, one that no window shows by words of its own.
SettingWords wordsOf(const TableLayout& layout, int row);
// Without its page: "Servers / Backup 1, Port".
QString placeText(const SettingWords& words);

} // namespace vlk::review
