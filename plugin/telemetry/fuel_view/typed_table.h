#pragma once

// A calibration table that the user types or pastes, for a sensor of which there is no file. It is saved
// beside the files of the calibration window, with all that such a file tells.

#include "fuel/table/fuel_rows.h"
#include "telemetry/fuel/level_sensors.h"

#include <QDialog>

class QLabel;
class VLK_Form_Fuel_Sensor;

namespace vlk {

class TypedTable : public QDialog
{
    Q_OBJECT

public:
    // `rows`: what there is of it already. `vehicle`: for the name of the file.
    TypedTable(const LevelSensor& sensor, const FuelRows& rows, const QString& vehicle, QWidget* parent);

    // The file that holds the table, once the dialog was accepted.
    QString path() const { return path_; }

    // Without a table that can be read and a file that holds it the dialog stays.
    void accept() override;
    // Asks where something was typed.
    void reject() override;

private:
    void tell(const QString& fault);

    const LevelSensor& sensor_;
    QString vehicle_;
    FuelRows given_;
    VLK_Form_Fuel_Sensor* form_;
    QLabel* fault_;
    QString path_;
};

} // namespace vlk
