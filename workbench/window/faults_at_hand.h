#pragma once

// Keeps the window of the faults at hand. It comes up wherever the user asks for it by its key, over any
// window of the program, a modal one included, and takes the keyboard. Uninvited it comes up beside a modal
// window that waits for an answer of the tracker longer than usual, if there is room for it, and leaves that
// window the keyboard: what it measures live pauses while it is not the active one. Uninvited it goes with
// that window; where the user has asked for it, it stays until it is sent away.

#include "window/faults_window.h"

#include <QKeySequence>
#include <QObject>
#include <QPointer>

#include <optional>

namespace tracker {
class SimulatedTracker;
} // namespace tracker

namespace workbench {

class AnswerWatch;

class FaultsAtHand : public QObject
{
    Q_OBJECT

public:
    FaultsAtHand(tracker::SimulatedTracker& tracker, const AnswerWatch& answers, const QKeySequence& key,
                 QWidget* mainWindow);
    ~FaultsAtHand() override;

    // Brings it over the window in front, or sends it away when it has the keyboard.
    void toggle();
    void setTrouble(const QString& text);
    void retranslate();
    // Where the user has put it, for the next run; empty where it has not been moved.
    QByteArray layout() const;
    void setLayout(const QByteArray& layout);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    // Uninvited, if there is reason and room.
    void offer();
    // Its owner goes.
    void leave();
    // To the window that takes the mouse now: one that came up over its owner, or the one below that.
    void moveOn();
    FaultsWindow* windowOf(QWidget* owner, bool makesWay = true);

    tracker::SimulatedTracker& tracker_;
    QKeySequence key_;
    QWidget* mainWindow_;
    QPointer<FaultsWindow> window_;
    QPointer<QWidget> home_;  // its owner before a modal window came up over that
    bool isAway_ = false;     // from there, over a modal window
    QPointer<QWidget> asker_; // the modal window from which the tracker was asked last
    QString trouble_;
    bool wanted_ = true;                    // the user has not closed it
    bool isInvited_ = false;                // by the key
    std::optional<FaultsWindow::State> at_; // as it was when its owner went, which may take it along
};

} // namespace workbench
