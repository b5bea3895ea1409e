#pragma once

// Refuellings and drains as a table.

#include "telemetry/fuel/fuel_events.h"
#include "telemetry/fuel/tank_levels.h"

#include <QAbstractTableModel>

namespace vlk {

class FuelListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { What, Time, Before, After, Litres, Place, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    // Those that are on show already stay where they are if all others come behind them.
    void set(std::vector<FuelEvent> events, const std::vector<TankSensor>& tanks, qint32 utcOffset);
    void retranslate();
    const std::vector<FuelEvent>& events() const { return events_; }
    // With a heading, as a spreadsheet takes it: UTF-8, semicolons, the decimal sign of the language.
    QString csv() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const FuelEvent& event, int column) const;
    static QVariant copied(const FuelEvent& event, int column);
    // Where the tables of the tanks end.
    QString beyondText(double litres) const;

    std::vector<FuelEvent> events_;
    std::vector<const LevelSensor*> sensors_;
    double least_ = 0; // litres of the tables
    double greatest_ = 0;
    qint32 utcOffset_ = 0;
};

} // namespace vlk
