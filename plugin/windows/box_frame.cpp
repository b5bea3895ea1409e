#include "windows/box_frame.h"

#include <QPainter>
#include <QWidget>

namespace vlk {

void paintBoxFrame(QWidget* dialog)
{
    // Halfway between text and background, so that it can be seen on a light and on a dark desktop.
    QColor line = dialog->palette().color(QPalette::WindowText);
    line.setAlphaF(0.5);
    QPainter painter(dialog);
    painter.setPen(line);
    painter.drawRect(dialog->rect().adjusted(0, 0, -1, -1));
}

} // namespace vlk
