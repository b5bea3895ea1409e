#pragma once

// Mouse, wheel and keys on a plot of curves: they move the span in sight and the cursors.

#include "telemetry/shown/shown_records.h"

#include <QPoint>

class QKeyEvent;
class QMouseEvent;
class QRubberBand;
class QWheelEvent;

namespace vlk {

class CurvesModel;
class CurvesPlot;

class CurvesNavigation : public QObject
{
    Q_OBJECT

public:
    CurvesNavigation(CurvesModel* model, CurvesPlot* plot);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takeKey(const QKeyEvent& event);
    bool press(const QMouseEvent& event);
    bool drag(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    // False where there is none.
    bool endDrag();
    bool turn(const QWheelEvent& event);
    bool showTip(const QPoint& place, const QPoint& global);
    void step(int way);
    void goTo(std::size_t place);
    double timeAt(double canvasX) const;

    CurvesModel* model_;
    ShownRecords& records_;
    CurvesPlot* plot_;
    QRubberBand* rubber_ = nullptr;
    enum class Drag { None, Zoom, Pan } drag_ = Drag::None;
    QPoint dragFrom_;
    TimeSpan dragSpan_;
};

} // namespace vlk
