#pragma once

// What the vehicle did, in figures: over the time in sight, from the first to the last record that passes the
// filter or that is chosen in the table, or on each day.

#include "telemetry/fuel/journey.h"
#include "telemetry/shown/shown_records.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QTableView;

namespace vlk {

class EmptyNote;
class ListButtons;
class NoticeBar;
class SummaryModel;

class SummaryView : public QWidget
{
    Q_OBJECT

public:
    // `bar`: the window's, which tells what was handed over; null tells nothing.
    explicit SummaryView(ShownRecords* records, QWidget* parent = nullptr, NoticeBar* bar = nullptr);

    // One of each record, none for no litres; and what was refuelled and drained.
    void setFuel(const NumberColumn& litres, const std::vector<FuelEvent>& events);
    // What a file of it is called by.
    void setTitle(const QString& title);
    void retranslate();

protected:
    void showEvent(QShowEvent* event) override;

private:
    enum Over { InSight, Passing, Chosen, Days };

    void forget();
    void makeJourney();
    void refresh();
    void tellEmpty();
    TimeSpan spanOf(const std::vector<int>& records) const;

    ShownRecords& records_;
    NumberColumn litres_;
    std::vector<FuelEvent> events_;
    std::shared_ptr<Journey> making_;
    std::shared_ptr<const Journey> journey_; // made when it is looked at
    int summedUp_ = 0;                       // records
    SummaryModel* model_;
    QLabel* overLabel_;
    QComboBox* over_;
    ListButtons* buttons_;
    QTableView* table_;
    EmptyNote* empty_;
};

} // namespace vlk
