#pragma once

// Keeps the window of the faults at hand: it comes up beside each modal window of the plug-in that leaves it
// room, and wherever the user asks for it by the key F9, which works in the modal window too.

#include <QObject>
#include <QPointer>

class QWidget;

namespace tracker {
class SimulatedTracker;
} // namespace tracker

namespace vlk {

class FaultsWindow;
class PluginWindows;

class FaultsAtHand : public QObject
{
    Q_OBJECT

public:
    FaultsAtHand(tracker::SimulatedTracker& tracker, const PluginWindows& windows, QWidget* mainWindow);
    ~FaultsAtHand() override;

    static QString shortcut() { return QStringLiteral("F9"); }

    // Shows or hides it over the window in front.
    void toggle();
    void setTrouble(const QString& text);
    void retranslate();

private:
    // Goes to the modal window in front, if there is one.
    void follow();
    FaultsWindow* windowOf(QWidget* owner);

    tracker::SimulatedTracker& tracker_;
    const PluginWindows& windows_;
    QWidget* mainWindow_;
    QPointer<FaultsWindow> window_;
    QString trouble_;
    bool wanted_ = true; // the user has not closed it
};

} // namespace vlk
