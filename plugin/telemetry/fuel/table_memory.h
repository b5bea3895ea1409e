#pragma once

// Which calibration table each sensor of a vehicle has, which of the sensors are added up, and from how many
// litres on a change counts: by vehicle, in an INI file. Tables themselves stay where they are.

#include "telemetry/fuel/fuel_events.h"

#include <QStringList>

namespace vlk {

struct TankChoiceMemory
{
    QStringList sensors; // elements
    FuelThresholds thresholds;
};

class TableMemory
{
public:
    // Without a folder nothing is remembered.
    explicit TableMemory(const QString& folder);

    // Empty where it has none.
    QString table(const QString& vehicle, const QString& sensor) const;
    void setTable(const QString& vehicle, const QString& sensor, const QString& path);
    TankChoiceMemory choice(const QString& vehicle) const;
    void setChoice(const QString& vehicle, const TankChoiceMemory& choice);

private:
    QString file_;
};

} // namespace vlk
