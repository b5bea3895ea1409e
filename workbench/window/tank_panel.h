#pragma once

// The tanks of the simulated vehicle: pour fuel into the one that is chosen, or drain it, and see what its
// sensor says.

#include "window/key_texts.h"

#include <QGroupBox>
#include <QTimer>

class QComboBox;
class QLabel;
class QProgressBar;

namespace tracker {
class SimulatedTracker;
}

namespace workbench {

class TankPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit TankPanel(tracker::SimulatedTracker& tracker, QWidget* parent = nullptr);

    // By its place among the tanks of the tracker; a place of none changes nothing.
    int tank() const;
    void setTank(int tank);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::size_t chosen() const;
    void pour(double litres);
    // Only while it is on show: the first question for the fuel drives the vehicle through its day, a quarter
    // of a second.
    void refresh();

    tracker::SimulatedTracker& tracker_;
    KeyTexts texts_;
    QComboBox* tank_;
    QLabel* shape_;
    QProgressBar* filling_;
    QLabel* litres_;
    QLabel* reading_;
    QTimer timer_;
};

} // namespace workbench
