#pragma once

// The curves of a CurvesModel on a plot: time below, up to four axes of values at the sides, fitted to what
// is in sight. Mouse, wheel and keys move the span in sight and the cursor.

#include "telemetry/curves/curves_model.h"

#include <qwt_plot.h>

class QRubberBand;
class QwtScaleDiv;
class QwtScaleWidget;

namespace vlk {

class CurvesPlot : public QwtPlot
{
    Q_OBJECT

public:
    // With a span of its own it stays at that.
    explicit CurvesPlot(CurvesModel* model, QWidget* parent = nullptr,
                        std::optional<TimeSpan> span = std::nullopt);

    TimeSpan span() const;
    // Where the canvas begins and ends, and a moment stands, in pixels of this widget.
    QRect canvasPlace() const;
    double xOf(double time) const;
    double timeAtPixel(double x) const;
    // How wide what stands left of the canvas is at least.
    void setLeftWidth(int width);

    void updateLayout() override;
    // Anew, after the model or the span changed.
    void refresh();
    void retranslate();

Q_SIGNALS:
    void laidOut();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Drawing;

    void setAxes();
    void setValueAxis(int axis);
    const QwtScaleDiv& divisionOf(int axis) const;
    void dress();
    void fitMargins();
    void placeOuterAxes();
    bool press(const QMouseEvent& event);
    bool drag(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    bool turn(const QWheelEvent& event);
    bool showTip(const QPoint& place, const QPoint& global);
    void step(int way);
    void goTo(std::size_t place);

    CurvesModel* model_;
    std::optional<TimeSpan> ownSpan_;
    QwtScaleWidget* outerLeft_;
    QwtScaleWidget* outerRight_;
    int leftWidth_ = 0;
    double tickStep_ = 0;
    QRubberBand* rubber_ = nullptr;
    enum class Drag { none, zoom, pan } drag_ = Drag::none;
    QPoint dragFrom_;
    TimeSpan dragSpan_;
};

} // namespace vlk
