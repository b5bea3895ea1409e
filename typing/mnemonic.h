#pragma once

#include <QKeyEvent>

namespace vlk {

// Whether a key is meant for a button: a letter with Alt. One whose button is grey comes to the field that
// has the focus, which would take the letter for a text.
inline bool isMnemonic(const QKeyEvent& key)
{
    return key.modifiers() == Qt::AltModifier && !key.text().isEmpty() && key.text().at(0).isPrint();
}

} // namespace vlk
