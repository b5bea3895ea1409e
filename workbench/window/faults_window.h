#pragma once

// The faults, and the tanks, in a small window of their own. While a modal window of the plug-in is open, the
// main window does not react; this one belongs to the modal window and so can be used beside it.

#include "window/key_texts.h"

#include <QDialog>
#include <QRect>

#include <cstddef>
#include <optional>
#include <utility>

class QLabel;

namespace tracker {
class SimulatedTracker;
} // namespace tracker

namespace workbench {

class FaultsPanel;
class TankPanel;

class FaultsWindow : public QDialog
{
    Q_OBJECT

public:
    static constexpr auto kName = "dialog_Faults"; // of the object, and of its layout in the settings

    FaultsWindow(tracker::SimulatedTracker& tracker, QWidget* owner);

    // What is wrong with the tracker's answers at present; empty while all is well.
    void setTrouble(const QString& text);
    void retranslate();
    // Shows it beside the owner, or where there is no room in the corner of the screen in which it covers the
    // fewest buttons of the owner; with the keyboard, or leaving it where it is until the user clicks here.
    void comeUp(bool withKeyboard);
    // What goes with it to another owner.
    struct State
    {
        QRect place;           // also while it has made way for buttons; invalid: wherever there is room
        bool isChosen = false; // by the user: the place
        int tank = 0;
    };
    State state() const;
    // As the one of another owner was: it comes up there, unless it would cover buttons and may make way for
    // them.
    void follow(const State& state, bool makesWay);
    // Whether there is room for it beside a window.
    bool fitsBeside(const QWidget& window) const;

public Q_SLOTS:
    // Gives the keyboard back to the owner.
    void reject() override;

private:
    void place();
    QPoint freeCorner(const QRect& room) const;
    // How many buttons of the owner it would cover there, and how much of a box.
    using Covered = std::pair<std::ptrdiff_t, int>;
    Covered covered(const QPoint& place) const;

    FaultsPanel* panel_;
    TankPanel* tanks_;
    QLabel* trouble_;
    std::optional<QPoint> wanted_; // its place, where another one has stood
    bool isChosen_ = false;        // by the user
    bool makesWay_ = true;
    QPoint madeWay_; // to here, if that would cover buttons
    KeyTexts texts_;
};

} // namespace workbench
