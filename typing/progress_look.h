#pragma once

// A bar that shows how far something has come, in silence of whom it waits for.

class QProgressBar;

namespace vlk {

// Amber while nothing is heard.
void showAsSilent(QProgressBar* bar, bool silent);

} // namespace vlk
