#pragma once

// Asks the tracker again for the live values that a calibration waits for: the plug-in asks once and waits
// for the answer without end, so that one that does not come, or is empty, would be the last.

#include "window/plugin_link.h"

#include <QTimer>

namespace vlk {

class HostSession;
class MessageLogModel;

class LiveReadings : public QObject
{
    Q_OBJECT

public:
    LiveReadings(HostSession& session, MessageLogModel& log);

private:
    void look(vlk::Direction direction, quint32 id, const void* p1);
    void askAgain();

    HostSession& session_;
    MessageLogModel& log_;
    QTimer patience_;
};

} // namespace vlk
