#pragma once

// The model of the tracker as the host calls it: "R-7106" until a message says otherwise.

#include <QString>

namespace vlk {

const QString& modelText();
void setModelText(const QString& text);

} // namespace vlk
