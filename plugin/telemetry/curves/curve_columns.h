#pragma once

// What can be drawn against time: columns of numbers as curves, states of two as bands. By the names of their
// items, which stay the same in every language.

#include "telemetry/files/csv_columns.h"
#include "telemetry/shown/shown_records.h"

#include <QStringList>

namespace vlk {

struct CurveColumn
{
    QString name;
    QString title; // with neither unit nor file's title where it has none
    QString unit;  // empty without one
    QString axis;  // columns of the same one share it
    std::optional<ItemIndex> item;
    int computed = -1; // the place among the computed ones, of no item
};

// What the records have, in the order of the table; computed ones are the first.
std::vector<CurveColumn> curveColumns(const ShownRecords& records);
// States that the records have.
std::vector<CurveColumn> stateColumns(const ShownRecords& records);

const NumberColumn& numbersOf(ShownRecords& records, const CurveColumn& column);
// NaN for none, also where a computed column ends before the record.
double numberOf(ShownRecords& records, const CurveColumn& column, int record);

QString itemName(ItemIndex item);

// What a title adds to the first one of its axis: of sensors of a kind their number alone.
QString furtherTitle(const QString& first, const QString& title);
// "Fuel level, l".
QString withUnit(const CurveColumn& column);
// "251.5 l" in the language on show, a dash for none; with its sign where it is a difference.
QString valueText(const CurveColumn& column, double value, bool isDifference = false);

} // namespace vlk
