#pragma once

// The help texts of the quick window, one a round button.

#include <QString>

namespace vlk {

enum class QuickHelp { Passwords, AccessPoint, Server, Track, Sensors };

// Title and HTML in the present language.
QString quickHelpTitle(QuickHelp help);
QString quickHelpText(QuickHelp help);

} // namespace vlk
