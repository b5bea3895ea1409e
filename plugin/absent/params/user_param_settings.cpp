#include "absent/params/user_param_settings.h"

namespace vlk {

namespace {

template <int place>
constexpr auto slotsOf()
{
    constexpr UserParamSlots kSlots = kUserParamSlots[place];
    return rowsOf(group(kSlots.element), repeat<kSlots.count>([](int) { return text("p%1", ""); }));
}

constexpr auto kRows = rowsOf(slotsOf<0>(), slotsOf<1>(), slotsOf<2>(), slotsOf<3>());

} // namespace

constexpr SettingsTable kUserParamSettings = tableOver<kRows>("PROTOCOL");

} // namespace vlk
