#pragma once

// Has the main window leave in order when the system asks the program to end: the session is over, the
// computer is switched off, the terminal is gone, or somebody has pressed Ctrl+C there. Without it the
// program would go at once, with all that it has in hand. The second time it goes at once. What a desktop
// says of an end that may still be called off ends the save of a period alone.

#include <QObject>

namespace workbench {

class WorkbenchWindow;

class EndSignals : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(WorkbenchWindow& window);
    ~EndSignals() override;
};

} // namespace workbench
