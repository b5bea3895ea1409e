#include "settings/kinds/number.h"

#include "base/number_text.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

double rounded(double number, int decimals)
{
    return number == std::trunc(number) ? number : QString::number(number, 'f', decimals).toDouble();
}

// Cut towards zero. A figure such as 2.01 lies below its decimal form in binary: without the small addition
// the cut would lose one.
qint64 cut(double number)
{
    return static_cast<qint64>(number + std::copysign(1e-6, number));
}

// What the file holds for a number of it; most values stand there as they are to, as `text`.
QString spelledNumber(const Number& row, double inFile, const QString& text)
{
    if (row.isText)
        return QString::number(inFile, 'f', row.decimals);
    const qint64 number = cut(inFile);
    if (row.hexadecimal)
        return QString::number(number, 16).toUpper().rightJustified(2, QLatin1Char('0'));
    return spelled(number, text);
}

QString spelledShown(const Number& row, double shown, const QString& text)
{
    return spelledNumber(row, row.isText ? shown : rounded(shown, row.decimals) * row.factor, text);
}

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

} // namespace

double shownNumber(const Number& row, const QString& value)
{
    if (row.isText)
        return value.toDouble();
    return (row.hexadecimal ? value.toInt(nullptr, 16) : static_cast<double>(leadingLong(value))) /
           row.factor;
}

QString fileNumber(const Number& row, double shown)
{
    return spelledShown(row, shown, {});
}

QString fileText(const Number& row, double value)
{
    return std::isnan(value) ? QString() : spelledNumber(row, value, {});
}

Normalised normalised(const Number& row, const Reading& reading)
{
    const QString& text = reading.text;
    if (row.blankIsZero && text.isEmpty())
        return {text};
    const double inFile = row.isText                       ? leadingDouble(text)
                          : row.hexadecimal                ? text.toInt(nullptr, 16)
                          : reading.source == Source::edit ? text.trimmed().toInt()
                                                           : leadingInt(text);
    const bool isOff = row.zeroIsOff && (row.negativeIsOn ? inFile == 0 : inFile <= 0);
    const double read = (row.singleRead ? static_cast<float>(inFile) : inFile) / row.factor;
    const double shown = row.isText || row.decimals > 0 ? rounded(read, row.decimals) : std::trunc(read);
    const double held = isOff ? 0 : std::clamp(shown, reading.limits.least, reading.limits.most);
    const QString value = spelledShown(row, held, text);
    return normalisedBy(value, text, [&] {
        return !isNumber(row, text)             ? Change::notANumber
               : isSameNumber(row, text, value) ? Change::otherForm
               : isOff || held != shown         ? Change::outOfRange
                                                : Change::rounded;
    });
}

QString toldText(const Number& row, const QString& value, const char* unit)
{
    if (row.zeroIsOff && value == QLatin1String("0"))
        return yesNo(false);
    return row.hexadecimal ? value : withUnit(numberText(shownNumber(row, value), row.decimals), unit);
}

} // namespace vlk
