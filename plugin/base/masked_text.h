#pragma once

#include <QString>

namespace vlk {

// What a line edit with an input mask makes of a text: digits of base 16 fill the places of the mask, one of
// its signs goes on behind that sign, and what fits nowhere is dropped. Places left empty hold nothing.
QString maskedText(const QString& mask, const QString& text);

// The pattern laid over a text: '*' leaves its position alone. Then no position comes, and what lies beyond
// the end is passed over; a pattern without one takes the place of the text.
QString laidOver(QString text, QLatin1String pattern);

} // namespace vlk
