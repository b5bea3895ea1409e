#include "fuel/fit_to_screen.h"

#include <QScreen>
#include <QWidget>

namespace vlk {

void fitToScreen(QWidget* window, QSize wanted)
{
    // Pixels for a frame, which is not known before the window is on show.
    constexpr QSize kFrame(16, 40);
    if (const QScreen* screen = window->screen())
        wanted = wanted.boundedTo(screen->availableSize() - kFrame);
    window->resize(wanted);
}

} // namespace vlk
