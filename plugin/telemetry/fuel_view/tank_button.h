#pragma once

// Chooses the fuel level sensors whose litres count, and the calibration table of each: a button with a menu
// of the sensors that say anything in the records. What was chosen is remembered by vehicle.

#include "telemetry/fuel/calibration.h"
#include "telemetry/fuel/table_memory.h"
#include "telemetry/fuel/tank_levels.h"

#include <QToolButton>

namespace vlk {

class ShownRecords;

class TankButton : public QToolButton
{
    Q_OBJECT

public:
    explicit TankButton(QWidget* parent);

    // The sensors that the records have, and what was chosen for the vehicle before.
    void setRecords(ShownRecords& records, const QString& vehicle);
    bool hasSensors() const { return !present_.empty(); }
    const std::vector<TankSensor>& tanks() const { return tanks_; }
    // "RS-485 fuel level 1: tank.xml", a line a sensor.
    QStringList captions() const;
    // What is wrong with a table, or to be known of it; empty for nothing.
    QString news() const;
    void retranslate();
    TableMemory memory() const;

Q_SIGNALS:
    void chosen();
    // A table that was typed.
    void tableSaved(const QString& path);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fillMenu();
    void toggle(const LevelSensor& sensor, bool isOn);
    // False where no table came of it.
    bool askTable(const LevelSensor& sensor);
    void typeTable(const LevelSensor& sensor);
    // Takes it and remembers it.
    bool takeFile(const LevelSensor& sensor, const QString& path);
    bool take(const LevelSensor& sensor, const QString& path);
    void drop(const LevelSensor& sensor);
    void remember();
    void showState();
    void fitText();
    bool isChosen(const LevelSensor& sensor) const;
    bool needsTable(const LevelSensor& sensor) const;

    // Worded when it is shown.
    struct News
    {
        const char* key = nullptr;
        QString first;
        const LevelSensor* sensor = nullptr;
    };

    QString vehicle_;
    bool isBeingRead_ = false;
    std::vector<const LevelSensor*> present_;
    std::vector<const LevelSensor*> inLitres_; // by themselves, from the CAN bus
    std::vector<TankSensor> tanks_;
    std::vector<QString> paths_; // of the tables of tanks_
    News news_;
    QString caption_; // whole, the button shows what it has room for
};

} // namespace vlk
