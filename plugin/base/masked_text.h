#pragma once

#include <QString>

namespace vlk {

// What a line edit with an input mask makes of a text: digits of base 16 fill the places of the mask, one of
// its signs goes on behind that sign, and what fits nowhere is dropped. Places left empty hold nothing.
QString maskedText(const QString& mask, const QString& text);

} // namespace vlk
