#pragma once

// The groups in which columns are chosen: what belongs together, by the fields of the mask.

#include "catalogue/field_catalogue.h"

#include <algorithm>

namespace vlk {

enum class ColumnGroup : std::uint8_t {
    record,
    navigation,
    network,
    power,
    lines,
    fuel,
    temperature,
    can,
    tyres,
    driving,
    tachograph,
    passengers,
    refrigerator,
    user,
};

// By group.
inline constexpr const char* kColumnGroupTexts[] = {
    "rec_020", "rec_021", "rec_022", "rec_023", "rec_024", "rec_025", "rec_026",
    "rec_027", "rec_028", "rec_029", "rec_030", "rec_031", "rec_032", "rec_033",
};

namespace columns {

struct GroupStart
{
    int field;
    ColumnGroup group;
};

using enum ColumnGroup;

// Each holds up to the next one.
inline constexpr GroupStart kGroupStarts[] = {
    {field("NumPage"), record},
    {field("Module1"), network},
    {field("StateNGauge"), navigation},
    {field("Power"), power},
    {field("StateU_Ain1"), lines},
    {field("LevelRS485_1"), fuel},
    {field("Temp1"), temperature},
    {field("CAN_FuelLevel"), can},
    {field("NaviInfoGlonass"), navigation},
    {field("LbsCellID"), network},
    {field("TempRS485_1"), fuel},
    {field("TiresNum1"), tyres},
    {field("TahoState"), tachograph},
    {field("AccelDelta"), driving},
    {field("Passager_1"), passengers},
    {field("State2"), record},
    {field("Module3"), network},
    {field("StateIn3"), lines},
    {field("VAccelState"), driving},
    {field("RS485Freq1"), fuel},
    {field("HPrecisionTemp1"), temperature},
    {field("FfsState"), fuel},
    {field("RefrState1"), refrigerator},
    {field("GeozoneInfo"), navigation},
    {field("CAN3State"), can},
    {field("MotochasLoadOn"), lines},
    {field("User1Byte_1"), user},
};
static_assert(std::ranges::is_sorted(kGroupStarts, {}, &GroupStart::field));

} // namespace columns

constexpr ColumnGroup groupOfField(int field)
{
    const auto* behind =
        std::ranges::upper_bound(columns::kGroupStarts, field, {}, &columns::GroupStart::field);
    return std::prev(behind)->group;
}

} // namespace vlk
