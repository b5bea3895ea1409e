#pragma once

// Refuellings and drains of the records on show: which sensors and tables, from how many litres on, and the
// list. Choosing a line looks at its record in all parts of the window, Enter brings half an hour round it in
// sight.

#include "telemetry/curves/hand_over.h"
#include "telemetry/fuel/tank_levels.h"
#include "telemetry/fuel_view/fuel_list_model.h"
#include "telemetry/shown/shown_records.h"

#include <QWidget>

class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QTextDocument;

namespace vlk {

class EmptyNote;
class ListButtons;
class NoticeBar;
class TankButton;

class FuelView : public QWidget
{
    Q_OBJECT

public:
    // `bar`: the window's, which tells what was handed over; null tells nothing.
    explicit FuelView(ShownRecords* records, QWidget* parent = nullptr, NoticeBar* bar = nullptr);

    // Under which tables are remembered: as its file names it, until the user calls it something else.
    void setVehicle(const QString& vehicle);
    // What a file of the list is called by.
    void setTitle(const QString& title);
    using CaptionOfSpan = std::function<QString(const TimeSpan& span)>;
    // For the sheet on paper; null for none.
    void setPictures(PaintSpan curve, PaintSpan track, CaptionOfSpan trackCaption);
    void retranslate();

    // One a record, empty while no sensor is chosen.
    const NumberColumn& litres() const { return litres_; }
    const std::vector<FuelEvent>& events() const { return model_->events(); }
    void writeSheet(QTextDocument& document) const;

Q_SIGNALS:
    // Litres or events are others.
    void fuelChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readVehicle();
    void refreshRecords();
    void refreshLater();
    void takeSensors();
    void computeLitres();
    void takeLitres();
    void takeMedians();
    void find();
    void setEvents(std::vector<FuelEvent> found);
    void look(int line);
    void zoom(int line);
    void showState();
    // Thresholds that are too low for the sensor, with a mark on their fields.
    QStringList markLowThresholds() const;
    QStringList tellReadingsBeyond() const;
    QStringList tellBlindLevels() const;
    QStringList news() const;
    TimeSpan spanOfSheet() const;

    ShownRecords& records_;
    FuelListModel* model_;
    HandOver* handOver_;
    QLabel* vehicleLabel_;
    QLineEdit* vehicle_;
    TankButton* tanks_;
    QLabel* riseLabel_;
    QDoubleSpinBox* rise_;
    QLabel* fallLabel_;
    QDoubleSpinBox* fall_;
    ListButtons* buttons_;
    QPushButton* print_;
    QLabel* news_;
    QTableView* table_;
    EmptyNote* empty_;
    PaintSpan curve_;
    PaintSpan track_;
    CaptionOfSpan trackCaption_;
    NumberColumn litres_;
    std::vector<ReadingsBeyond> beyond_; // by tank
    std::vector<LevelMedian> medians_;   // of them
    double noise_ = 0;                   // of them
    bool isRefreshing_ = false;
};

} // namespace vlk
