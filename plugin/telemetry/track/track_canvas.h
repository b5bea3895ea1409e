#pragma once

// The track on a window: moved with the mouse, the wheel and keys; a click looks at the nearest record.

#include "telemetry/track/track_painter.h"

#include <QWidget>

namespace vlk {

class TrackCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit TrackCanvas(TrackModel* model, QWidget* parent = nullptr);

    // What is seen here, in another shape: all where all is.
    TrackSight sightIn(const QSizeF& room) const;
    // Shows all of it.
    void fit();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void pan(const QPointF& pixels);
    void zoom(double factor, const QPointF& round);
    void step(int way);
    void keepInSight(int record);
    // The point that is drawn nearest to the pixel; -1 where none is near.
    int nearestTo(const QPointF& pixel) const;
    QString tipAt(const QPointF& pixel) const;

    TrackModel* model_;
    TrackSight sight_;
    bool isFitted_ = true; // until it is moved: then it fits anew when its size changes
    QPoint pressedAt_;
    QPointF lastDrag_;
    bool isDragged_ = false;
};

} // namespace vlk
