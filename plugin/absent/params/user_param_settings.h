#pragma once

// The 49 free slots of a record: a key of the vocabulary of user parameters
// (absent/params/user_params.h) in each of those in use. They stand in the section PROTOCOL beside the
// data set. Trackers without a tab for them have no such elements in their files, so the table is that tab's
// alone.

#include "settings/settings_table.h"

namespace vlk {

// One width of slots; the element in the file holds the keys p1, p2 and so on.
struct UserParamSlots
{
    const char* element;
    int bytes;
    int count;
};

inline constexpr std::array<UserParamSlots, 4> kUserParamSlots = {{
    {"USRPRM1", 1, 16},
    {"USRPRM2", 2, 15},
    {"USRPRM4", 4, 15},
    {"USRPRM8", 8, 3},
}};

extern const SettingsTable kUserParamSettings;

} // namespace vlk
