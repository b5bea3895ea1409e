#pragma once

// What one can do to the simulated tracker and its cable: attach, detach, and switch faults on and off. Any
// number of these panels show the same tracker.

#include "window/key_texts.h"

#include <QWidget>

class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace tracker {
class SimulatedTracker;
struct Faults;
} // namespace tracker

namespace workbench {

class FaultsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FaultsPanel(tracker::SimulatedTracker& tracker, QWidget* parent = nullptr);

    void retranslate();

private:
    void addFault(QVBoxLayout* column, const char* name, const char* key, bool tracker::Faults::*fault);
    void addDelay(QVBoxLayout* column);
    template <class Value>
    void change(Value tracker::Faults::*fault, Value value);
    void refresh();

    tracker::SimulatedTracker& tracker_;
    KeyTexts texts_;
    QPushButton* cable_;
    // Set the widgets as the faults stand.
    std::vector<std::function<void()>> states_;
};

} // namespace workbench
