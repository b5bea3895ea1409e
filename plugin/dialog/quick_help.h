#pragma once

// The help texts of the quick window, one a round button.

#include <QString>

namespace vlk {

enum class QuickHelp { passwords, accessPoint, server, track, sensors };

// Title and HTML in the present language.
QString quickHelpTitle(QuickHelp help);
QString quickHelpText(QuickHelp help);

} // namespace vlk
