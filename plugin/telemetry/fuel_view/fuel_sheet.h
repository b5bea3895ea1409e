#pragma once

// The list of refuellings and drains on paper, with the curve and the track of a span of time, for whoever
// has to be asked about it.

#include "telemetry/fuel/fuel_events.h"

#include <QImage>
#include <QStringList>

class QTextDocument;

namespace vlk {

struct FuelSheet
{
    QString vehicle;
    QStringList tanks; // a line a sensor with its table
    FuelThresholds thresholds;
    std::vector<FuelEvent> events;
    qint32 utcOffset = 0;
    double from = 0; // seconds since 1970
    double until = 0;
    QImage curve; // null for none
    QImage track;
};

void writeFuelSheet(QTextDocument& document, const FuelSheet& sheet);

} // namespace vlk
