#pragma once

// One setting of the tracker as data: where its value stands in the configuration file, what kind of value it
// is, which values it can hold, what it is worth when the file lacks it, what a new configuration holds, and
// which widget shows it. Rows stand in one table a page (settings_table.h); Values (values.h) holds what they
// are worth.
//
//     constexpr auto kRows = rowsOf(
//         group("POINTS"),
//         flag("useMaxSpeed", 0).in("Always_checkBox_MaxSpeed"),
//         integer("maxSpeed", 100).range(1, 180).unit("abbr_024").in("Always_spinBox_MaxSpeed_Value"));
//
// A value is always the text that the file holds: "100", "2.5", "NB+". Captions, units and labels are
// translation keys; the text of a caption may hold %1, the number of a repeated row.

#include "settings/kinds/choice.h"
#include "settings/kinds/digits.h"
#include "settings/kinds/flag.h"
#include "settings/kinds/mask.h"
#include "settings/kinds/number.h"
#include "settings/kinds/period.h"
#include "settings/kinds/structure.h"
#include "settings/kinds/text.h"

#include <concepts>
#include <type_traits>
#include <variant>

namespace vlk {

using Kind = std::variant<Group, Constant, Link, Flag, Integer, Real, Text, Choice, Period, Digits, Mask>;

// What a row is, seen as one of its bases; null where it is none.
template <class Part>
constexpr const Part* partOf(const Kind& kind)
{
    return std::visit(
        [](const auto& row) -> const Part* {
            if constexpr (std::is_base_of_v<Part, std::remove_cvref_t<decltype(row)>>)
                return &row;
            else
                return nullptr;
        },
        kind);
}

struct Setting
{
    template <std::derived_from<RowBase> Row>
    constexpr Setting(const Row& row) : kind(row) // a row of any kind is a setting
    {
    }
    Setting() = default;

    template <class Row>
    constexpr const Row* as() const
    {
        return std::get_if<Row>(&kind);
    }
    template <class Row>
    constexpr bool is() const
    {
        return std::holds_alternative<Row>(kind);
    }
    // What rows of any kind have, those that a widget can show, and numbers; null where it is none.
    constexpr const RowBase& base() const { return *partOf<RowBase>(kind); }
    constexpr const Shown* shown() const { return partOf<Shown>(kind); }
    constexpr const Number* number() const { return partOf<Number>(kind); }

    Kind kind;
};

static_assert(sizeof(Setting) < 200, "a row is small");

Normalised normalise(const Setting& setting, const Reading& reading);
// Texts of the two defaults in the present language, as a file would hold them.
QString loadDefault(const Setting& setting);
QString resetValue(const Setting& setting);
// The value as a person reads it, in the present language; `unit` is that of now.
QString valueText(const Setting& setting, const QString& value, const char* unit);

} // namespace vlk
