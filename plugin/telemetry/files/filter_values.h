#pragma once

// The numbers and moments that people write in a filter. Each begins at the position of the text; `end` is
// told where it ends.

#include <QString>

#include <optional>

namespace vlk {

// Seconds since 1970, from the first to the last that a moment means.
struct MomentSpan
{
    qint64 first;
    qint64 last;
};

// With a point or a comma.
std::optional<double> typedNumber(const QString& text, int position, int* end);

// "20.11.2026 08:29", or in ISO 8601. Without a zone of its own it is in that of `utcOffset`, without that in
// the zone of this machine.
std::optional<MomentSpan> typedMoment(const QString& text, int position, std::optional<qint32> utcOffset,
                                      int* end);

} // namespace vlk
