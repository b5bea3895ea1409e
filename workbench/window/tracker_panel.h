#pragma once

// The simulated tracker from behind: its cable, its record format, the faults that one can switch on, and the
// configuration that it holds, key by key, whatever its cable does to it.

#include "window/key_texts.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QTableWidget;

namespace tracker {
class SimulatedTracker;
} // namespace tracker

namespace vlk {
class EmptyNote;
}

namespace workbench {

class FaultsPanel;

class TrackerPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TrackerPanel(tracker::SimulatedTracker& tracker, QWidget* parent = nullptr);

    void retranslate();

private:
    QWidget* buildControls();
    QWidget* buildKeys();
    void showKeys();
    void filterKeys();

    tracker::SimulatedTracker& tracker_;
    KeyTexts texts_;
    FaultsPanel* faults_;
    QComboBox* protocol_;
    QLineEdit* filter_;
    QTableWidget* keys_;
    vlk::EmptyNote* empty_ = nullptr;
};

} // namespace workbench
