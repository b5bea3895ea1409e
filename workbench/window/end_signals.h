#pragma once

// Tells when the system asks the program to end: the session is over, the computer is switched off, the
// terminal is gone, or somebody has pressed Ctrl+C there. Without it the program would go at once, with all
// that it has in hand. The second time it goes at once.

#include <QObject>

namespace workbench {

class EndSignals : public QObject
{
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;

Q_SIGNALS:
    // From the event loop.
    void came();
};

} // namespace workbench
