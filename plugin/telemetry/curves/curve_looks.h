#pragma once

// How curves are told apart: a colour that stands out on light and on dark windows, and a shape that is drawn
// along the curve and in the legend, so that nobody needs the colour.

#include <QColor>
#include <QPointF>

class QPainter;
class QPalette;

namespace vlk {

bool isDark(const QPalette& palette);
// The colour of the curve in that place, and of the band or row of marks in one.
QColor curveColor(int place, const QPalette& palette);
QColor bandColor(const QPalette& palette);
void paintCurveShape(QPainter& painter, int place, const QPointF& centre, const QColor& colour);

// A rise or a fall that was found: its colour, and a filled arrow up or down with its tip there.
QColor foundColor(bool isRise, const QPalette& palette);
void paintFoundEvent(QPainter& painter, bool isRise, const QPointF& tip, const QPalette& palette);

} // namespace vlk
