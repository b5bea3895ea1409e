#include "review/change.h"

#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace vlk {

namespace {

bool isNumber(const Number& row, const QString& text)
{
    bool is = false;
    if (row.isText) {
        const double read = text.toDouble(&is);
        return is && std::isfinite(read);
    }
    if (!row.hexadecimal)
        return isWholeNumber(text);
    text.toInt(&is, 16);
    return is;
}

// Whether two texts mean the same number: "01" and "1", "2.50" and "2.5".
bool isSameNumber(const Number& row, const QString& text, const QString& other)
{
    if (row.isText)
        return leadingDouble(text) == leadingDouble(other);
    if (row.hexadecimal)
        return text.toInt(nullptr, 16) == other.toInt(nullptr, 16);
    return leadingLong(text) == leadingLong(other);
}

// Whether it is the limits that make the text another value.
bool isLimited(const auto& row, const Reading& reading, const QString& value)
{
    constexpr double most = std::numeric_limits<double>::max();
    const Limits none{.least = -most, .most = most};
    return normalised(row, {reading.text, reading.before, none, reading.source}) != value;
}

// Why a row takes the text for `value`, which is another one: kinds that know it better than changeOf(). A
// function here whose parameters are not those of its call is unused, and does not compile.

// A window always writes the same there, whatever it reads.
Change why(const Constant&, const Reading&, const QString&)
{
    return Change::NotOffered;
}

Change why(const Flag&, const Reading& reading, const QString& value)
{
    if (!isWholeNumber(reading.text))
        return Change::NotANumber;
    return leadingInt(reading.text) == leadingInt(value) ? Change::OtherForm : Change::LooseForm;
}

Change why(const Number& row, const Reading& reading, const QString& value)
{
    if (!isNumber(row, reading.text))
        return Change::NotANumber;
    if (isSameNumber(row, reading.text, value))
        return Change::OtherForm;
    // Digits that the widget has no place for, or more than those.
    const double place = (row.isText ? 1 : row.factor) * std::pow(10, -row.decimals);
    const double lost = row.hexadecimal ? 0 : reading.text.toDouble() - value.toDouble();
    const bool isOff = row.zeroIsOff && value == QLatin1String("0");
    return isOff || std::abs(lost) >= place || isLimited(row, reading, value) ? Change::OutOfRange
                                                                              : Change::Rounded;
}

// A line with a mask takes its signs from the mask, and drops what has no place in it.
Change why(const Text& row, const Reading& reading, const QString& value)
{
    if (!row.mask)
        return Change::TooLong;
    const auto filled = [](const QString& text) {
        QString places;
        std::ranges::copy_if(text, std::back_inserter(places),
                             [](QChar sign) { return sign.isLetterOrNumber(); });
        return places;
    };
    if (filled(value) == filled(reading.text))
        return Change::OtherForm;
    const bool isFull = value.size() == QLatin1String(row.mask).size();
    return isFull && filled(reading.text).startsWith(filled(value)) ? Change::TooLong : Change::UnknownCode;
}

// Whether a text is a digit of 0 to `top(position)` a position.
bool isOfDigits(const QString& text, int size, auto top)
{
    for (int i = 0; i < text.size(); ++i) {
        if (i >= size || text[i] < QLatin1Char('0') || text[i] > QLatin1Char(static_cast<char>('0' + top(i))))
            return false;
    }
    return text.size() == size;
}

Change why(const Choice& row, const Reading& reading, const QString&)
{
    const Code* code = codeOf(row, reading.text);
    if (!code)
        return Change::UnknownCode;
    if (!offersCode(*code, reading.limits))
        return Change::NotOffered;
    const bool isTyped =
        code->pattern ? isOfDigits(reading.text, QLatin1String(code->pattern).size(), [](int) { return 1; })
                      : !row.numeric || isWholeNumber(reading.text);
    return isTyped ? Change::OtherForm : Change::LooseForm;
}

Change why(const Period& row, const Reading& reading, const QString& value)
{
    if (!isWholeNumber(reading.text))
        return Change::NotANumber;
    const qint64 held = leadingLong(value);
    if (held == leadingLong(reading.text))
        return Change::OtherForm;
    const int read = leadingInt(reading.text);
    if (row.wrap > 0 && reading.source == Source::File && (read < 0 || read >= row.wrap))
        return Change::Wrapped;
    return std::abs(held - read) < row.parts.back().seconds ? Change::Rounded : Change::OutOfRange;
}

Change why(const Digits& row, const Reading& reading, const QString& value)
{
    for (std::size_t i = 0; i < row.positions.size(); ++i) {
        if (row.positions[i].widget && digitAt(reading.text, i) > 0 && digitAt(value, i) == 0)
            return Change::NotOffered;
    }
    const auto top = [&](int i) { return row.positions[static_cast<std::size_t>(i)].top; };
    return isOfDigits(reading.text, static_cast<int>(row.positions.size()), top) ? Change::OtherForm
                                                                                 : Change::LooseForm;
}

// Whether a position of a mask is switched on with another one of its field.
bool isSwitchedAlong(const Mask& row, int position)
{
    return std::ranges::any_of(row.fields, [position](const MaskField& field) {
        const auto positions = std::span(field.positions).first(field.count);
        return field.anyReads && std::ranges::find(positions, position) != positions.end();
    });
}

Change why(const Mask& row, const Reading& reading, const QString& value)
{
    if (reading.text.size() > row.length)
        return Change::TooLong;
    Change change = Change::LooseForm;
    for (int i = 0; i < row.length; ++i) {
        const bool isOn = digitAt(value, i) != 0;
        if ((digitAt(reading.text, i) != 0) == isOn)
            continue;
        if (!isOn || !isSwitchedAlong(row, i))
            return Change::NotOffered;
        change = Change::Completed;
    }
    return change;
}

// A kind without a why() has limited the text where other limits would make another value of it, else
// replaced it.
Change changeOf(const auto& row, const Reading& reading, const QString& value)
{
    if (value == reading.text)
        return Change::None;
    if constexpr (requires { why(row, reading, value); })
        return why(row, reading, value);
    else
        return isLimited(row, reading, value) ? Change::OutOfRange : Change::UnknownCode;
}

} // namespace

Taken takenAs(const Setting& setting, const Reading& reading)
{
    QString value = setting.is<Constant>() ? loadDefault(setting) : normalise(setting, reading);
    const Change change =
        std::visit([&](const auto& row) { return changeOf(row, reading, value); }, setting.kind);
    return {std::move(value), change};
}

} // namespace vlk
