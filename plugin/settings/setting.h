#pragma once

// One setting of the tracker as data: where its value stands in the configuration file, what kind of value it
// is, which values it can hold, what it is worth when the file lacks it, what a new configuration holds, and
// which widget shows it. Rows stand in one table a page (settings_table.h); Values (values.h) holds what they
// are worth.
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
#include <variant>

namespace vlk {

using Kind = std::variant<Group, Constant, Link, Flag, Number, Text, Choice, Period, Digits, Mask>;

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
    constexpr const RowBase& base() const
    {
        return std::visit([](const RowBase& row) -> const RowBase& { return row; }, kind);
    }
    constexpr RowBase& base()
    {
        return std::visit([](RowBase& row) -> RowBase& { return row; }, kind);
    }
    // Null for a row that no widget can show, and for one that is no number.
    constexpr const Shown* shown() const
    {
        return std::visit(
            []<class Row>(const Row& row) -> const Shown* {
                if constexpr (std::derived_from<Row, Shown>)
                    return &row;
                else
                    return nullptr;
            },
            kind);
    }
    constexpr const Number* number() const { return as<Number>(); }

    Kind kind;
};

static_assert(sizeof(Setting) < 200, "a row is small");

// A value that a rule names: a code of a choice, digits and their signs, '*' for any.
constexpr void checkValue(const Setting& setting, std::string_view value)
{
    const auto* choice = setting.as<Choice>();
    if (choice ? !isKnown(*choice, value)
               : setting.shown() && !setting.is<Text>() &&
                     value.find_first_not_of("0123456789ABCDEF.-*") != value.npos)
        throw "a rule names a value that its setting cannot have";
}

QString normalise(const Setting& setting, const Reading& reading);
// Texts of the two defaults in the present language, as a file would hold them.
QString loadDefault(const Setting& setting);
QString resetValue(const Setting& setting);

} // namespace vlk
