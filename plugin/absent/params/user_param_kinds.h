#pragma once

// What belongs to the kinds of value that devices supply as user parameters: a code of two letters, a size in
// bytes (0: given by who offers it) and a name. Several kinds may share a code.

#include "settings/user_param_types.h"

#include <array>
#include <cstddef>

namespace vlk {

struct UserParamKind
{
    const char* code = "";
    int bytes = 0;
    const char* name = nullptr; // translation key
};

// At the number of the kind; numbers without a kind hold an empty code.
inline constexpr std::array<UserParamKind, 23> kUserParamKinds = {{
    {"FS", 4, "cfgt5_352"},
    {"HD", 2, "cfgt5_353"},
    {"IS", 1, "cfgt5_354"},
    {"LS", 4, "cfgt5_355"},
    {"PR", 2, "cfgt5_356"},
    {"SL", 1, "cfgt5_357"},
    {"ST", 4, "cfgt5_358"},
    {"UB", 1, "cfgt5_359"},
    {"WT", 4, "cfgt5_360"},
    {},
    {},
    {},
    {"AS", 2, "cfgt5_361"},
    {"AS", 2, "cfgt5_363"},
    {"AS", 2, "cfgt5_364"},
    {"AS", 2, "cfgt5_365"},
    {"UP", 0, "cfgt5_366"},
    {"CE", 0, "cfgt18_002"},
    {},
    {"AG", 2, "cfgt5_425"},
    {"AG", 2, "cfgt5_426"},
    {"AG", 2, "cfgt5_427"},
    {"HS", 2, "cfgt5_428"},
}};

// An unknown number gives the empty kind.
constexpr UserParamKind kindOf(userParamType type)
{
    const auto number = static_cast<std::size_t>(type);
    return number < kUserParamKinds.size() ? kUserParamKinds[number] : UserParamKind{};
}

} // namespace vlk
