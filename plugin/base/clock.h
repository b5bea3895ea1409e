#pragma once

// The one source of the present time, so that tests can hold it.

#include <QDateTime>

#include <functional>

namespace vlk {

// The present moment in local time.
QDateTime now();

// The zone of the present moment in local time, in seconds east of UTC. It costs as much as a thousand
// numbers from a text: who makes many records asks once.
qint32 localOffset();

// Replaces the clock; an empty function brings the system's clock back.
void setClock(std::function<QDateTime()> clock);

} // namespace vlk
