#pragma once

// The few items whose text takes more than one value of the record.

#include <QString>

class TmiPage_Zeta3;

namespace vlk {

// How much of the interval of the last path segment was travelled, in whole percent; 0 without an interval.
QString segmentReliability(const TmiPage_Zeta3& page);

// "X | Y | Z" of the linear acceleration.
QString linearAxes(const TmiPage_Zeta3& page);

} // namespace vlk
