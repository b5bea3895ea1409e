#pragma once

// The one source of the present time, so that tests can hold it.

#include <QDateTime>

#include <functional>

namespace vlk {

// The present moment in local time.
QDateTime now();

// Replaces the clock; an empty function brings the system's clock back.
void setClock(std::function<QDateTime()> clock);

} // namespace vlk
