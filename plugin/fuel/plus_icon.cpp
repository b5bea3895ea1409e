#include "fuel/plus_icon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vlk {

QIcon plusIcon()
{
    constexpr int size = 32; // twice what a button shows, for screens of high density
    QIcon icon;
    for (const auto& [mode, group] :
         {std::pair(QIcon::Normal, QPalette::Active), std::pair(QIcon::Disabled, QPalette::Disabled)}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setPen(QPen(QGuiApplication::palette().color(group, QPalette::ButtonText), 4));
        painter.drawLine(size / 2, 5, size / 2, size - 5);
        painter.drawLine(5, size / 2, size - 5, size / 2);
        painter.end();
        icon.addPixmap(pixmap, mode);
    }
    return icon;
}

} // namespace vlk
