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

} // namespace

double shownNumber(const Number& row, const QString& value)
{
    if (row.isText)
        return value.toDouble();
    return (row.hexadecimal ? value.toInt(nullptr, 16) : static_cast<double>(leadingLong(value))) /
           row.factor;
}

QString fileNumber(const Number& row, double shown, const QString& text)
{
    return spelledNumber(row, row.isText ? shown : rounded(shown, row.decimals) * row.factor, text);
}

QString fileText(const Number& row, double value)
{
    return std::isnan(value) ? QString() : spelledNumber(row, value, {});
}

QString normalised(const Number& row, const Reading& reading)
{
    const QString& text = reading.text;
    if (row.blankIsZero && text.isEmpty())
        return text;
    const double inFile = row.isText                       ? leadingDouble(text)
                          : row.hexadecimal                ? text.toInt(nullptr, 16)
                          : reading.source == Source::Edit ? text.trimmed().toInt()
                                                           : leadingInt(text);
    const bool isOff = row.zeroIsOff && (row.negativeIsOn ? inFile == 0 : inFile <= 0);
    const double read = (row.singleRead ? static_cast<float>(inFile) : inFile) / row.factor;
    const double shown = row.isText || row.decimals > 0 ? rounded(read, row.decimals) : std::trunc(read);
    const double held = isOff ? 0 : std::clamp(shown, reading.limits.least, reading.limits.most);
    return fileNumber(row, held, text);
}

} // namespace vlk
