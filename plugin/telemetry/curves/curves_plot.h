#pragma once

// The curves of a CurvesModel on a plot: time below, up to four axes of values at the sides, fitted to what
// is in sight.

#include "telemetry/curves/curves_model.h"

#include <qwt_plot.h>

class QwtScaleDiv;
class QwtScaleWidget;

namespace vlk {

class CurvesPlot final : public QwtPlot
{
    Q_OBJECT

public:
    // With a span of its own it stays at that.
    explicit CurvesPlot(CurvesModel* model, QWidget* parent = nullptr,
                        std::optional<TimeSpan> span = std::nullopt);

    const CurvesModel& model() const { return *model_; }
    TimeSpan span() const;
    bool isPaper() const { return ownSpan_.has_value(); }
    // The scale at an axis of the model.
    const QwtScaleDiv& divisionOf(int axis) const;
    // Where the canvas begins and ends, and a moment stands, in pixels of this widget.
    QRect canvasPlace() const;
    double xOf(double time) const;
    double timeAtPixel(double x) const;
    // Takes the cursor to the record in sight that is next to this pixel; where a gap is all that is in
    // sight, it stays and a tip tells.
    void goToPixel(double x);
    // That there is no record in the gap at this pixel; empty where there is no gap.
    QString gapText(double x) const;
    // How wide what stands left of the canvas is at least.
    void setLeftWidth(int width);

    void updateLayout() override;
    // Anew, after the model or the span changed.
    void refresh();
    void retranslate();

Q_SIGNALS:
    void laidOut();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void setAxes();
    void setValueAxis(int axis);
    void dress();
    void fitMargins();
    QMargins fittingMargins() const;
    void placeOuterAxes();
    // A moment without records.
    struct Between
    {
        int before; // the records next to it
        int behind;
    };
    // None beyond the ends.
    std::optional<Between> recordsRound(double time) const;
    QString noRecordsText(const Between& records) const;

    CurvesModel* model_;
    std::optional<TimeSpan> ownSpan_;
    QwtScaleWidget* outerLeft_;
    QwtScaleWidget* outerRight_;
    int leftWidth_ = 0;
    double tickStep_ = 0;
};

} // namespace vlk
