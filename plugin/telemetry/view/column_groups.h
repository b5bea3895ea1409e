#pragma once

// The groups in which columns are chosen: what belongs together, by the fields of the mask.

#include "catalogue/field_catalogue.h"

#include <algorithm>

namespace vlk {

enum class ColumnGroup : std::uint8_t {
    Record,
    Navigation,
    Network,
    Power,
    Lines,
    Fuel,
    Temperature,
    Can,
    Tyres,
    Driving,
    Tachograph,
    Passengers,
    Refrigerator,
    User,
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
    {field("NumPage"), Record},
    {field("Module1"), Network},
    {field("StateNGauge"), Navigation},
    {field("Power"), Power},
    {field("StateU_Ain1"), Lines},
    {field("LevelRS485_1"), Fuel},
    {field("Temp1"), Temperature},
    {field("CAN_FuelLevel"), Can},
    {field("NaviInfoGlonass"), Navigation},
    {field("LbsCellID"), Network},
    {field("TempRS485_1"), Fuel},
    {field("TiresNum1"), Tyres},
    {field("TahoState"), Tachograph},
    {field("AccelDelta"), Driving},
    {field("Passager_1"), Passengers},
    {field("State2"), Record},
    {field("Module3"), Network},
    {field("StateIn3"), Lines},
    {field("VAccelState"), Driving},
    {field("RS485Freq1"), Fuel},
    {field("HPrecisionTemp1"), Temperature},
    {field("FfsState"), Fuel},
    {field("RefrState1"), Refrigerator},
    {field("GeozoneInfo"), Navigation},
    {field("CAN3State"), Can},
    {field("MotochasLoadOn"), Lines},
    {field("User1Byte_1"), User},
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
