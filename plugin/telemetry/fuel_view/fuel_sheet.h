#pragma once

// The list of refuellings and drains on paper, with the curve and the track of a span of time, for whoever
// has to be asked about it.

#include "telemetry/curves/hand_over.h"
#include "telemetry/fuel/fuel_events.h"
#include "telemetry/shown/shown_records.h"

#include <QStringList>

class QTextDocument;

namespace vlk {

struct FuelSheet
{
    QString vehicle;
    QStringList tanks; // a line a sensor with its table
    FuelThresholds thresholds;
    QStringList news; // a line each
    std::vector<FuelEvent> events;
    qint32 utcOffset = 0;
    TimeSpan whole;    // of the records
    TimeSpan pictured; // by the curve and the track
    PaintSpan curve;   // null for none
    PaintSpan track;
    QString trackCaption;
};

void writeFuelSheet(QTextDocument& document, const FuelSheet& sheet);

} // namespace vlk
