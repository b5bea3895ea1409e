#pragma once

// Which records a person asks for: conditions on columns, joined by and, or, not. A filter is kept with the
// names of elements and items and with codes, so that it means the same in every language; what people write
// it in is read by filter_parser.h.
//
//     Filter filter = *parseFilter(typed, names).filter;
//     filter.text()                        "Code = 35 and StateU_Ain3 < 9"
//     filter.text(wording)                 the same in other words
//     passing(filter, columns)             the records, in their order, from the first or a later one on

#include "telemetry/files/record_columns.h"

#include <QString>

#include <functional>
#include <variant>

namespace vlk {

// An item, or the whole number of an element of which the items show parts (StateIn1, Module2).
using FilterColumn = std::variant<ItemIndex, ElementIndex>;

std::string_view nameOf(const FilterColumn& column);
ElementIndex elementOf(const FilterColumn& column);
// Whether the column holds moments, in seconds since 1970.
bool holdsTimes(const FilterColumn& column);

enum class Comparison : std::uint8_t { Equal, NotEqual, Less, Greater, LessOrEqual, GreaterOrEqual };

struct FilterNode
{
    enum Kind : std::uint8_t {
        Condition, // of the column with the number
        All,       // of the parts
        Any,
        Negation, // of the one part
    };

    Kind kind = Condition;
    FilterColumn column{};
    Comparison comparison{};
    double number = 0;
    std::vector<FilterNode> parts{};

    bool operator==(const FilterNode&) const = default;
};

// How a filter is written.
struct FilterWording
{
    std::function<QString(const FilterColumn&)> name;
    std::function<QString(const FilterColumn&, double)> number;
    QString all; // what stands between conditions that have to be met together
    QString any;
    QString negation;
};

struct Filter
{
    std::optional<FilterNode> root; // none lets everything pass

    bool empty() const { return !root; }
    // The filter as it is kept: with names of elements and codes.
    QString text() const;
    QString text(const FilterWording& wording) const;

    // The columns of all conditions, each once.
    std::vector<FilterColumn> columns() const;

    bool operator==(const Filter&) const = default;
};

// A record that does not hold a column, or no value in it, meets no condition on it, not even "!=". Numbers
// are equal that are shown alike: 12.3 V is 12300 mV, and 12.1 the float next to it.
std::vector<int> passing(const Filter& filter, RecordColumns& columns, int first = 0);

} // namespace vlk
