#pragma once

// A calibration table: how many litres are in the tank, against what its sensor says. Rows are the texts that
// the user sees and that files hold; points are the same rows as numbers, in the order of the table.

#include <QStringList>

#include <cstddef>
#include <optional>
#include <vector>

namespace vlk {

// Both texts with a point as decimal sign.
struct FuelRow
{
    QString volume; // litres
    QString value;  // volts or level code, by the kind of the sensor
    // The two readings between which the value was taken; empty where the reading stood still.
    QStringList changing = {};

    bool operator==(const FuelRow&) const = default;
};
using FuelRows = std::vector<FuelRow>;

struct FuelPoint
{
    float volume;
    float value;

    bool operator==(const FuelPoint&) const = default;
};
using FuelPoints = std::vector<FuelPoint>;

// A file or a clipboard with more rows holds no calibration, and is refused.
inline constexpr std::size_t kMaxFuelRows = 20'000;

// Every comma becomes a point.
QString withDecimalPoint(QString text);

// 0 for what is no finite number.
float fuelNumber(const QString& text);

// Both cells hold a number.
bool isPoint(const FuelRow& row);

// A text that is no number, which counts as 0.
struct FuelFlaw
{
    int row; // from 0
    QString text;
};
// The first one of a table.
std::optional<FuelFlaw> firstFlaw(const FuelRows& rows);

// Rows that come to a table which has some: what it has already is left out, whatever way it is written.
struct JoiningRows
{
    FuelRows rows;   // to be added
    int known = 0;   // left out
    FuelRows others; // rows of the table at a volume of those, where it has another value
};
JoiningRows joining(const FuelRows& coming, const FuelRows& table);

// The points that fall back: their value is lower than that of the point before them, though the volume is
// higher. Indices in rising order.
std::vector<std::size_t> fallingPoints(const FuelPoints& points);

} // namespace vlk
