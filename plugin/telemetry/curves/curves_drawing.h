#pragma once

// What stands on the canvas of a plot of curves: the curves, the one that the cursors tell above the others,
// what was found of the fuel, and the cursors.

#include <qwt_plot_item.h>

namespace vlk {

class CurvesPlot;
enum class Cursor;

class CurvesDrawing : public QwtPlotItem
{
public:
    explicit CurvesDrawing(const CurvesPlot& plot);

    void draw(QPainter* painter, const QwtScaleMap& x, const QwtScaleMap& y,
              const QRectF& canvas) const override;

private:
    QwtScaleMap mapOf(int axis, const QwtScaleMap& left) const;
    void drawCurve(QPainter& painter, int place, const QwtScaleMap& x, const QwtScaleMap& left,
                   const QRectF& canvas) const;
    void drawFound(QPainter& painter, const QwtScaleMap& x, const QRectF& canvas) const;
    void drawCursor(QPainter& painter, Cursor which, const QwtScaleMap& x, const QwtScaleMap& left,
                    const QRectF& canvas) const;

    const CurvesPlot& plot_;
};

} // namespace vlk
