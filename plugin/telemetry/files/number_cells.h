#pragma once

// The number of an element in a cell of a table that programs read: in its unit, without the unit; whole
// numbers and tenths with all their digits, coordinates in degrees, moments in ISO 8601. A code that means
// that there is no value gives an empty cell, and so does what is no number.

#include "telemetry/files/iso_times.h"
#include "telemetry/text/item.h"

#include <string>
#include <string_view>

namespace vlk {

struct NumberCell
{
    enum Kind : std::uint8_t {
        Whole,
        Fixed,  // `decimals` digits behind the point
        Real,   // up to nine digits
        Single, // a float
        Moment,
        OfItem, // the number of the item
        AsFile, // as the XML form has it
    };

    ElementIndex element{};
    ItemIndex item{};
    Kind kind = Whole;
    Unit unit = Unit::None;
    std::int64_t multiplier = 1; // to units of the last decimal
    std::int64_t divisor = 1;
    int decimals = 0;
    char userType = 0; // of a user parameter
};

// `userTypes`: the letters of the user parameters.
NumberCell numberCell(ElementIndex element, std::string_view userTypes);
// The cell of an item that is part of an element.
NumberCell numberCell(ItemIndex item);
NumberCell rawCell(ElementIndex element);

// Writes cells of one table.
class NumberCells
{
public:
    static constexpr int kLongest = 40; // characters of a cell

    NumberCells(std::optional<qint32> utcOffset, char decimalSign)
        : times_(utcOffset), decimalSign_(decimalSign)
    {
    }

    // Puts the cell there and gives its end.
    char* put(char* to, const NumberCell& cell, std::uint64_t raw);

private:
    char* putFixed(char* to, const NumberCell& cell, std::int64_t number) const;
    char* putReal(char* to, double number, int digits) const;
    char* putShortest(char* to, auto number) const;
    char* withSign(char* from, char* end) const;

    IsoTimes times_;
    char decimalSign_;
};

} // namespace vlk
