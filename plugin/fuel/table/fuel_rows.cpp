#include "fuel/table/fuel_rows.h"

#include <cmath>
#include <set>

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

JoiningRows joining(const FuelRows& coming, const FuelRows& table)
{
    const auto point = [](const FuelRow& row) {
        return std::pair(fuelNumber(row.volume), fuelNumber(row.value));
    };
    std::set<std::pair<float, float>> known;
    for (const FuelRow& row : table)
        known.insert(point(row));
    JoiningRows found;
    std::set<float> volumes;
    for (const FuelRow& row : coming) {
        if (!known.insert(point(row)).second) {
            ++found.known;
            continue;
        }
        found.rows.push_back(row);
        volumes.insert(point(row).first);
    }
    for (const FuelRow& row : table) {
        if (volumes.count(point(row).first) > 0)
            found.others.push_back(row);
    }
    return found;
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
