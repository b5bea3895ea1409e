#include "base/clock.h"

#include <utility>

namespace vlk {

namespace {
std::function<QDateTime()>& heldClock()
{
    static std::function<QDateTime()> clock;
    return clock;
}
} // namespace

QDateTime now()
{
    return heldClock() ? heldClock()() : QDateTime::currentDateTime();
}

qint32 localOffset()
{
    return now().offsetFromUtc();
}

void setClock(std::function<QDateTime()> clock)
{
    heldClock() = std::move(clock);
}

} // namespace vlk
