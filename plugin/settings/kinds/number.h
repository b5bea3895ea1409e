#pragma once

// Numbers in a spin box. Ranges are in units of the widget; `factor` says what one of them is in the file.

#include "settings/kinds/row.h"

#include <limits>

namespace vlk {

struct Number
{
    double load = 0; // in the file, as is `reset`
    double reset = 0;
    double least = std::numeric_limits<std::int32_t>::min();
    double most = std::numeric_limits<std::int32_t>::max();
    const char* unit = nullptr;
    float step = 0; // of the widget; 0: as the form says
    std::int32_t factor = 1;
    std::int16_t switchedOnAt = -1; // number that switching on brings; -1: the one that was there before
    std::uint8_t decimals = 0;
    bool isText = false;       // the file holds the decimals too, a point before them
    bool hexadecimal = false;  // in the file two digits or more: "0F"
    bool singleRead = false;   // read in single precision
    bool zeroIsOff = false;    // 0 for off, or a number of the range
    bool negativeIsOn = false; // and a number below 0 is not off but the least
    bool blankIsZero = false;  // an empty value, as after a reset, stays empty on show and is 0 in the file
};

template <class Kind>
struct NumberOf : ShownOf<Kind>, Number
{
    const char* companion = nullptr; // check box or slider beside the widget, in the same form

    constexpr Kind range(double from, double to) const
    {
        return this->with(&Kind::least, from).with(&Kind::most, to);
    }
    constexpr Kind stepping(float width) const { return this->with(&Kind::step, width); }
    constexpr Kind unit(const char* text) const { return this->with(&Number::unit, text); }
    constexpr Kind resetTo(double value) const { return this->resetting(value); }
    constexpr Kind beside(const char* slider) const { return this->with(&Kind::companion, slider); }
    constexpr Kind offAtZero(const char* checkBox) const
    {
        return this->with(&Kind::zeroIsOff, true).with(&Kind::companion, checkBox);
    }
    constexpr Kind onUnlessZero() const { return this->with(&Kind::negativeIsOn, true); }
    constexpr Kind switchedOnTo(std::int16_t value) const { return this->with(&Kind::switchedOnAt, value); }
};

// A whole number in the file, `factor` times that of the widget, which may have decimals.
struct Integer : NumberOf<Integer>
{
    // In the line of a tree that the row's number tells.
    constexpr Integer inCell(const char* tree, std::uint8_t number) const
    {
        return in(tree).with(&Integer::column, number);
    }
    constexpr Integer blankable() const
    {
        return with(&Integer::blankIsZero, true).resetTo(std::numeric_limits<double>::quiet_NaN());
    }
};

// A text with `decimals` digits behind the point.
struct Real : NumberOf<Real>
{
    constexpr Real readSingle() const { return with(&Real::singleRead, true); }
};

constexpr Integer integer(const char* key, int loadDefault, std::int32_t factor = 1)
{
    return keyed<Integer>(key, loadDefault).with(&Integer::factor, factor);
}

// `loadDefault` as a number; the file holds two digits of base 16.
constexpr Integer hexadecimal(const char* key, int loadDefault)
{
    return integer(key, loadDefault).with(&Integer::hexadecimal, true);
}

constexpr Real real(const char* key, double loadDefault, std::uint8_t decimals)
{
    return keyed<Real>(key, loadDefault).with(&Real::decimals, decimals).with(&Real::isText, true);
}

// `loadDefault` is what the file holds.
constexpr Integer scaled(const char* key, int loadDefault, std::int32_t factor, std::uint8_t decimals)
{
    return integer(key, loadDefault, factor).with(&Integer::decimals, decimals);
}

// Whole millivolts in the file, volts in the widget.
constexpr Integer volts(const char* key, int loadDefault)
{
    return scaled(key, loadDefault, 1000, 2).stepping(0.01F).unit("abbr_011");
}

constexpr void check(const Number& row)
{
    const auto inRange = [&](double value) {
        return (row.zeroIsOff && value == 0) ||
               (value >= row.least * row.factor && value <= row.most * row.factor);
    };
    if (row.least > row.most)
        throw "a range is upside down";
    if (!inRange(row.load) || (row.reset != 0 && !row.blankIsZero && !inRange(row.reset)))
        throw "a default is outside its range";
}

// A number of the file in units of the widget, and back: rounded to the widget's decimals, not limited.
double shownNumber(const Number& row, const QString& value);
QString fileNumber(const Number& row, double shown);

QString fileText(const Number& row, double value);
Normalised normalised(const Number& row, const Reading& reading);
QString toldText(const Number& row, const QString& value, const char* unit);

} // namespace vlk
