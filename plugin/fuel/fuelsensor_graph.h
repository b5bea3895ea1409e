#pragma once

// The curve of a calibration table: sensor value over volume, on white like the paper it is compared with.
// The axes end at the largest volume and value, rounded up, and have ten ticks each; light lines stand at
// round values. Points have a ring, and those that fall back a red one. The point nearest to the mouse shows
// its values, and screen readers find them in the accessible description.

#include "fuel/table/fuel_rows.h"

#include <QWidget>

#include <optional>

namespace vlk {
struct FuelKind;
}

class VLK_FuelSensor_Graph : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_FuelSensor_Graph(QWidget* parent);

    // Margins, decimals and captions; also after a change of language.
    void setKind(const vlk::FuelKind& kind);
    void setPoints(vlk::FuelPoints points);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // Where the corner of the axes is, how far apart ticks are, and what the last ones say.
    struct Axes
    {
        QPointF place(const vlk::FuelPoint& point) const;

        QPoint corner;
        QSize step;
        double maxVolume;
        double maxValue;
    };

    Axes axes() const;
    void drawRoundLines(QPainter& painter, const Axes& axes) const;
    void drawAxes(QPainter& painter, const Axes& axes) const;
    void drawTicks(QPainter& painter, const Axes& axes) const;
    void drawCurve(QPainter& painter, const Axes& axes) const;
    void drawPointed(QPainter& painter, const Axes& axes) const;
    void point(std::optional<std::size_t> index);

    vlk::FuelPoints points_;
    std::vector<std::size_t> falling_;
    std::optional<std::size_t> pointed_; // by the mouse
    int valueDecimals_ = 0;
    int leftMargin_ = 0;
    QString volumeCaption_;
    QString valueCaption_;
    QString volumeAxis_;
    QString valueAxis_;
};
