#include "telemetry/curves/curves_drawing.h"

#include "base/translated.h"
#include "telemetry/curves/curve_looks.h"
#include "telemetry/curves/curves_plot.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <qwt_clipper.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

namespace vlk {

namespace {

constexpr int kShapeDistance = 90;
constexpr double kPointReach = 1.5;

// A piece as the painter takes it; the same on every axis but for its map.
QPolygonF onCanvas(const QPolygonF& piece, const QwtScaleMap& x, const QwtScaleMap& y)
{
    QPolygonF mapped(piece.size());
    std::ranges::transform(piece, mapped.begin(), [&](const QPointF& point) {
        return QPointF(x.transform(point.x()), y.transform(point.y()));
    });
    return mapped;
}

} // namespace

CurvesDrawing::CurvesDrawing(const CurvesPlot& plot) : plot_(plot)
{
    setZ(10);
}

void CurvesDrawing::draw(QPainter* painter, const QwtScaleMap& x, const QwtScaleMap& y,
                         const QRectF& canvas) const
{
    const CurvesModel& model = plot_.model();
    painter->setClipRect(canvas);
    if (model.curves().empty()) {
        painter->setPen(plot_.palette().color(QPalette::Disabled, QPalette::Text));
        const char* const reason = model.isBeingMade()                 ? "rec_371"
                                   : model.records().records().empty() ? "rec_192"
                                                                       : "rec_191";
        painter->drawText(canvas, Qt::AlignCenter | Qt::TextWordWrap, translated(reason));
    }
    for (int place = 0; place < static_cast<int>(model.curves().size()); ++place) {
        if (place != model.focused())
            drawCurve(*painter, place, x, y, canvas);
    }
    if (model.focused() >= 0)
        drawCurve(*painter, model.focused(), x, y, canvas);
    drawFound(*painter, x, canvas);
    for (const Cursor which : {Cursor::A, Cursor::B})
        drawCursor(*painter, which, x, y, canvas);
}

QwtScaleMap CurvesDrawing::mapOf(int axis, const QwtScaleMap& left) const
{
    const QwtScaleDiv& division = plot_.divisionOf(axis);
    QwtScaleMap map = left;
    map.setScaleInterval(division.lowerBound(), division.upperBound());
    return map;
}

void CurvesDrawing::drawCurve(QPainter& painter, int place, const QwtScaleMap& x, const QwtScaleMap& left,
                              const QRectF& canvas) const
{
    const Curve& curve = plot_.model().curves()[place];
    const QwtScaleMap y = mapOf(curve.axis, left);
    const QColor colour = curveColor(place, plot_.palette());
    const bool isFocused = place == plot_.model().focused();
    // On paper as wide as it should be. On a screen by lines of one pixel, which are drawn many times as
    // fast, twice where the curve is the one that the cursors tell.
    const bool isPaper = plot_.isPaper();
    painter.setPen(QPen(colour, isPaper && isFocused ? 2 : 1));
    double nextShape = canvas.left() + kShapeDistance / 2.0 + place * 13;
    for (const QPolygonF& piece : curve.series->pieces(plot_.span(), static_cast<int>(canvas.width()))) {
        QPolygonF line = onCanvas(piece, x, y);
        // Pictures of lines know no clipping, and the line goes on to the next record out of sight.
        if (isPaper)
            line = QwtClipper::clipPolygonF(canvas, line);
        if (line.isEmpty())
            continue;
        if (line.size() == 1) {
            painter.setBrush(colour);
            painter.drawEllipse(line.front(), kPointReach, kPointReach);
        } else {
            painter.drawPolyline(line);
            if (isFocused && !isPaper)
                painter.drawPolyline(line.translated(0, 1));
        }
        for (const QPointF& point : line) {
            if (point.x() < nextShape || point.x() > canvas.right())
                continue;
            paintCurveShape(painter, place, point, colour);
            nextShape = point.x() + kShapeDistance;
        }
    }
}

void CurvesDrawing::drawFound(QPainter& painter, const QwtScaleMap& x, const QRectF& canvas) const
{
    const std::vector<quint32>& times = plot_.model().records().columns().times();
    for (const FoundEvent& event : plot_.model().records().found()) {
        if (!plot_.span().contains(times[event.record]))
            continue;
        const double at = std::round(x.transform(times[event.record]));
        painter.setPen(QPen(foundColor(event.isRise, plot_.palette()), 1, Qt::DotLine));
        painter.drawLine(QPointF(at, canvas.top()), QPointF(at, canvas.bottom()));
    }
}

void CurvesDrawing::drawCursor(QPainter& painter, Cursor which, const QwtScaleMap& x, const QwtScaleMap& left,
                               const QRectF& canvas) const
{
    const CurvesModel& model = plot_.model();
    const int record = model.cursor(which);
    const std::vector<quint32>& times = model.records().columns().times();
    if (record < 0 || times[record] == 0 || !plot_.span().contains(times[record]))
        return;
    const QPalette& palette = plot_.palette();
    const double at = std::round(x.transform(times[record]));
    const QColor colour = palette.color(QPalette::Text);
    painter.setPen(
        QPen(colour, which == model.moving() ? 2 : 1, which == Cursor::A ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(QPointF(at, canvas.top()), QPointF(at, canvas.bottom()));
    const QFontMetrics metrics(painter.font());
    QRectF letter(0, 0, metrics.height(), metrics.height());
    letter.moveBottomLeft({std::min(at + 1, canvas.right() - letter.width()), canvas.bottom()});
    painter.fillRect(letter, colour);
    painter.setPen(palette.color(QPalette::Base));
    painter.drawText(letter, Qt::AlignCenter, QLatin1String(which == Cursor::A ? "A" : "B"));
    if (model.focused() < 0)
        return;
    const Curve& curve = model.curves()[model.focused()];
    const double value = model.valueAt(curve, record);
    if (!std::isnan(value))
        paintCurveShape(painter, model.focused(), {at, mapOf(curve.axis, left).transform(value)}, colour);
}

} // namespace vlk
