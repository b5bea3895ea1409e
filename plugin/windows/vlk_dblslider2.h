#pragma once

// A horizontal selector of a range: a scale with a lower and an upper handle, 20 pixels high. The two values
// stay at least `gap` apart: a handle that comes too near pushes the other one along, up to the end of the
// scale. Values, ends and gap are in the caller's unit; a value outside the scale is brought to its end,
// one that is not a number is ignored. An empty scale (minimum equal to maximum) is drawn with both handles
// at its left end. The mouse drags a handle; the arrow keys, Page Up and Down, Home and End move the handle
// that was used last.

#include <QColor>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <optional>
#include <utility>

class VLK_DblSlider2 : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_DblSlider2(QWidget* parent = nullptr);
    ~VLK_DblSlider2() override;

    // The scale is 0 to 100 with a gap of 1 at first, and the values stand at its ends.
    void setRange(double min, double gap, double max);
    // Changes what later moves keep; the values stay.
    void setGap(double gap);
    void setValue1(double value);
    void setValue2(double value);

    double value1() const { return value1_; }
    double value2() const { return value2_; }
    double minimum() const { return minimum_; }
    double maximum() const { return maximum_; }
    double gap() const { return gap_; }

    // Colours of the track left of the lower handle, between the handles, and right of the upper one. Without
    // a colour, and while the slider is disabled, a part is drawn as an outline in the palette's colours.
    void setColorLow(const QColor& color);
    void setColorMiddle(const QColor& color);
    void setColorHigh(const QColor& color);

    // 0 none, 1 above (the handles then point up), 2 below, 3 both.
    void setTickPosition(int position);

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void value1Changed(double value);
    void value2Changed(double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Handle { None, First, Second };

    // At the ends of the scale the handles stand out of the slider by half, which is drawn beside it.
    class Ends;

    double clampedValue1(double value) const;
    double clampedValue2(double value) const;
    void moveValue2(double value);
    void setValue(Handle handle, double value);

    int pixelOf(double value) const;
    std::pair<int, int> handlePixels() const;
    void placeEnds();
    void redraw();
    void paintHandles(QPainter& painter) const;
    void paintTrack(QPainter& painter, int pixel1, int pixel2) const;
    void paintTicks(QPainter& painter) const;
    void paintHandle(QPainter& painter, int pixel) const;
    // Black lines and a dark groove would vanish on a dark window.
    QColor readable(const QColor& usual, const QColor& onDark) const;

    double minimum_ = 0;
    double maximum_ = 100;
    double gap_ = 1;
    double value1_ = 0;
    double value2_ = 100;
    std::optional<QColor> colorLow_;
    std::optional<QColor> colorMiddle_;
    std::optional<QColor> colorHigh_;
    int tickPosition_ = 0;
    QPointer<QWidget> ends_;

    // Set by the last painting, 0 and empty before the first. Positions of the mouse refer to it.
    int paintedWidth_ = 0;
    QRect handle1_;
    QRect handle2_;
    Handle dragged_ = Handle::None;
    Handle active_ = Handle::First;
};
