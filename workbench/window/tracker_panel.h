#pragma once

// The simulated tracker from behind: its cable, its record format, the faults that one can switch on, and the
// configuration that it holds, key by key.

#include "window/key_texts.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QVBoxLayout;

namespace tracker {
class SimulatedTracker;
struct Faults;
} // namespace tracker

class TrackerPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TrackerPanel(tracker::SimulatedTracker& tracker, QWidget* parent = nullptr);

    void retranslate();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildControls();
    QWidget* buildKeys();
    void addFault(QVBoxLayout* column, const char* name, const char* key, bool tracker::Faults::*fault);
    void refresh();
    void showKeys();
    void filterKeys();

    tracker::SimulatedTracker& tracker_;
    KeyTexts texts_;
    QPushButton* cable_;
    QComboBox* protocol_;
    QSpinBox* delay_;
    QLineEdit* filter_;
    QTableWidget* keys_;
    // Set the boxes as the faults stand.
    KeyTexts faultStates_;
};
