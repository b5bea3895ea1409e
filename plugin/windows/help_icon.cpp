#include "windows/help_icon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vlk {

QIcon helpIcon()
{
    constexpr int size = 40; // twice what a button shows, for screens of high density
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QGuiApplication::palette().color(QPalette::ButtonText), 2.5));
    const QRectF circle(2, 2, size - 4, size - 4);
    painter.drawEllipse(circle);
    QFont font = QGuiApplication::font();
    font.setPixelSize(26);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(circle, Qt::AlignCenter, QStringLiteral("?"));
    painter.end();
    return QIcon(pixmap);
}

} // namespace vlk
