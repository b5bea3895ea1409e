#include "fuel/table/fuel_rows.h"

#include <cmath>

namespace vlk {

namespace {

bool isNumber(const QString& text)
{
    bool ok = false;
    return std::isfinite(text.toFloat(&ok)) && ok;
}

} // namespace

QString withDecimalPoint(QString text)
{
    return text.replace(QLatin1Char(','), QLatin1Char('.'));
}

float fuelNumber(const QString& text)
{
    const float number = text.toFloat();
    return std::isfinite(number) ? number : 0;
}

bool isPoint(const FuelRow& row)
{
    return isNumber(row.volume) && isNumber(row.value);
}

std::optional<FuelFlaw> firstFlaw(const FuelRows& rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (const QString& text : {rows[i].volume, rows[i].value}) {
            if (!text.isEmpty() && !isNumber(text))
                return FuelFlaw{static_cast<int>(i), text};
        }
    }
    return {};
}

std::vector<std::size_t> fallingPoints(const FuelPoints& points)
{
    std::vector<std::size_t> falling;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (points[i].volume > points[i - 1].volume && points[i].value < points[i - 1].value)
            falling.push_back(i);
    }
    return falling;
}

} // namespace vlk
