#pragma once

// Numbers in a spin box. Ranges are in units of the widget; `factor` says what one of them is in the file.

#include "settings/kinds/row.h"

#include <limits>

namespace vlk {

struct Number : ShownOf<Number>
{
    double load = 0; // in the file, as is `reset`
    double reset = 0;
    double least = std::numeric_limits<std::int32_t>::min();
    double most = std::numeric_limits<std::int32_t>::max();
    const char* unitKey = nullptr;
    const char* companion = nullptr; // check box or slider beside the widget, in the same form
    float step = 0;                  // of the widget; 0: as the form says
    std::int32_t factor = 1;
    std::int16_t switchedOnAt = -1; // number that switching on brings; -1: the one that was there before
    std::uint8_t decimals = 0;
    bool isText = false;       // the file holds the decimals too, a point before them
    bool hexadecimal = false;  // in the file two digits or more: "0F"
    bool singleRead = false;   // read in single precision
    bool zeroIsOff = false;    // 0 for off, or a number of the range
    bool negativeIsOn = false; // and a number below 0 is not off but the least
    bool blankIsZero = false;  // an empty value, as after a reset, stays empty on show and is 0 in the file
    bool isPort = false;       // its widget takes 0 and 65536 too

    constexpr Number range(double from, double to) const
    {
        return with(&Number::least, from).with(&Number::most, to);
    }
    constexpr Number stepping(float width) const { return with(&Number::step, width); }
    constexpr Number unit(const char* text) const { return with(&Number::unitKey, text); }
    constexpr Number beside(const char* slider) const { return with(&Number::companion, slider); }
    constexpr Number offAtZero(const char* checkBox) const
    {
        return with(&Number::zeroIsOff, true).with(&Number::companion, checkBox);
    }
    constexpr Number onUnlessZero() const { return with(&Number::negativeIsOn, true); }
    constexpr Number switchedOnTo(std::int16_t value) const { return with(&Number::switchedOnAt, value); }
    constexpr Number readSingle() const { return with(&Number::singleRead, true); }
    constexpr Number port() const { return with(&Number::isPort, true); }
    constexpr Number blankable() const
    {
        return with(&Number::blankIsZero, true).resetTo(std::numeric_limits<double>::quiet_NaN());
    }
};

// A whole number in the file, `factor` times that of the widget.
constexpr Number integer(const char* key, int loadDefault, std::int32_t factor = 1)
{
    return keyed<Number>(key, loadDefault).with(&Number::factor, factor);
}

// `loadDefault` as a number; the file holds two digits of base 16.
constexpr Number hexadecimal(const char* key, int loadDefault)
{
    return integer(key, loadDefault).with(&Number::hexadecimal, true);
}

// A text with `decimals` digits behind the point.
constexpr Number real(const char* key, double loadDefault, std::uint8_t decimals)
{
    return keyed<Number>(key, loadDefault).with(&Number::decimals, decimals).with(&Number::isText, true);
}

// `loadDefault` is what the file holds.
constexpr Number scaled(const char* key, int loadDefault, std::int32_t factor, std::uint8_t decimals)
{
    return integer(key, loadDefault, factor).with(&Number::decimals, decimals);
}

// Whole millivolts in the file, volts in the widget.
constexpr Number volts(const char* key, int loadDefault)
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
    if ((row.switchedOnAt >= 0 || row.negativeIsOn) && !row.zeroIsOff)
        throw "what has no off cannot be switched on";
    if (!inRange(row.load) || (row.reset != 0 && !row.blankIsZero && !inRange(row.reset)))
        throw "a default is outside its range";
}

// A number of the file in units of the widget, and back: rounded to the widget's decimals, not limited, and
// `text` itself where that spells the same.
double shownNumber(const Number& row, const QString& value);
QString fileNumber(const Number& row, double shown, const QString& text = {});

QString fileText(const Number& row, double value);
QString normalised(const Number& row, const Reading& reading);

} // namespace vlk
