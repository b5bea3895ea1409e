#include "telemetry/curves/curve_looks.h"

#include "typing/field_mark.h"
#include "typing/kept_palette.h"

#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QTransform>

#include <iterator>

namespace vlk {

namespace {

struct CurveLook
{
    QRgb light;
    QRgb dark;
    enum Shape { Disc, Square, Triangle, Diamond, Cross, Plus, Ring, Bar } shape;
};

constexpr CurveLook kCurveLooks[] = {
    {0x1f5f9e, 0x7ab8f5, CurveLook::Disc},     {0xb3261e, 0xff9d94, CurveLook::Square},
    {0x1b6e33, 0x7fd491, CurveLook::Triangle}, {0x8a5300, 0xffbd59, CurveLook::Diamond},
    {0x6a3d9a, 0xc9a6f0, CurveLook::Cross},    {0x00686f, 0x5fd0da, CurveLook::Plus},
    {0xa0246e, 0xf29acb, CurveLook::Ring},     {0x4a4a4a, 0xd0d0d0, CurveLook::Bar},
};

constexpr double kShapeReach = 3.5;
constexpr double kFoundWidth = 10;
constexpr int kDarkBelow = 128;

const CurveLook& lookAt(int place)
{
    return kCurveLooks[static_cast<std::size_t>(place) % std::size(kCurveLooks)];
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < kDarkBelow;
}

QColor curveColor(int place, const QPalette& palette)
{
    return QColor(isDark(palette) ? lookAt(place).dark : lookAt(place).light);
}

QColor bandColor(const QPalette& palette)
{
    return between(palette.color(QPalette::WindowText), palette.color(QPalette::Base));
}

void paintCurveShape(QPainter& painter, int place, const QPointF& centre, const QColor& colour)
{
    constexpr double r = kShapeReach;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    const CurveLook::Shape shape = lookAt(place).shape;
    painter.setPen(QPen(colour, 1.5));
    painter.setBrush(shape == CurveLook::Ring ? QBrush(Qt::NoBrush) : QBrush(colour));
    switch (shape) {
    case CurveLook::Disc:
    case CurveLook::Ring:
        painter.drawEllipse(QPointF(), r - 0.5, r - 0.5);
        break;
    case CurveLook::Square:
        painter.drawRect(QRectF(1 - r, 1 - r, 2 * r - 2, 2 * r - 2));
        break;
    case CurveLook::Triangle:
        painter.drawPolygon(QPolygonF({{0, -r}, {r, r - 1}, {-r, r - 1}}));
        break;
    case CurveLook::Diamond:
        painter.drawPolygon(QPolygonF({{0, -r}, {r, 0}, {0, r}, {-r, 0}}));
        break;
    case CurveLook::Cross:
        painter.drawLine(QPointF(-r, -r), QPointF(r, r));
        painter.drawLine(QPointF(-r, r), QPointF(r, -r));
        break;
    case CurveLook::Plus:
        painter.drawLine(QPointF(-r, 0), QPointF(r, 0));
        painter.drawLine(QPointF(0, -r), QPointF(0, r));
        break;
    case CurveLook::Bar:
        painter.drawRect(QRectF(-1, -r, 2, 2 * r));
        break;
    }
    painter.restore();
}

QColor foundColor(bool isRise, const QPalette& palette)
{
    return markColor(isRise ? Mark::Right : Mark::Invalid, palette);
}

void paintFoundEvent(QPainter& painter, bool isRise, const QPointF& tip, const QPalette& palette)
{
    constexpr double r = kFoundWidth / 2;
    constexpr double shaft = 2;
    QPolygonF arrow({{0, 0}, {r, r}, {shaft, r}, {shaft, 2 * r}, {-shaft, 2 * r}, {-shaft, r}, {-r, r}});
    if (!isRise)
        arrow = QTransform::fromScale(1, -1).map(arrow);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::Base), 1));
    painter.setBrush(foundColor(isRise, palette));
    painter.drawPolygon(arrow.translated(tip));
    painter.restore();
}

} // namespace vlk
