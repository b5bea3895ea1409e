#include "typing/progress_look.h"

#include "typing/field_mark.h"

#include <QProgressBar>

namespace vlk {

void showAsSilent(QProgressBar* bar, bool silent)
{
    QPalette colours;
    if (silent) {
        const QPalette& window = bar->palette();
        colours.setColor(QPalette::Highlight, markColor(Mark::Advice, window));
        colours.setColor(QPalette::HighlightedText, window.color(QPalette::Window));
    }
    bar->setPalette(colours);
}

} // namespace vlk
