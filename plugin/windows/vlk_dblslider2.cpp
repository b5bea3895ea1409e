#include "windows/vlk_dblslider2.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSliderHeight = 20;
constexpr int kLowestLine = kSliderHeight - 1;
constexpr int kTrackTop = 9;
constexpr int kTrackHeight = 3;
constexpr int kHandleHalf = 4;

// A handle that points down, around its pixel; turned by half a turn it points up.
constexpr QPoint kHandleShape[] = {{0, 19}, {-4, 15}, {-4, 1}, {4, 1}, {4, 15}, {0, 19}};

} // namespace

// Lies under the slider and reaches into the space beside it.
class VLK_DblSlider2::Ends : public QWidget
{
public:
    static constexpr int kRoom = kHandleHalf + 1;

    explicit Ends(const VLK_DblSlider2* slider) : QWidget(slider->parentWidget()), slider_(slider)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.translate(kRoom, 0);
        slider_->paintHandles(painter);
    }

private:
    const VLK_DblSlider2* slider_;
};

VLK_DblSlider2::VLK_DblSlider2(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

VLK_DblSlider2::~VLK_DblSlider2()
{
    delete ends_;
}

void VLK_DblSlider2::setRange(double min, double gap, double max)
{
    if (!std::isfinite(min) || !std::isfinite(gap) || !std::isfinite(max))
        return;
    minimum_ = min;
    gap_ = gap;
    maximum_ = max;
    redraw();
    setValue1(value1_);
    moveValue2(value2_);
}

void VLK_DblSlider2::setGap(double gap)
{
    if (std::isfinite(gap))
        gap_ = gap;
}

void VLK_DblSlider2::setValue1(double value)
{
    const double clamped = clampedValue1(value);
    if (std::isnan(value) || clamped == value1_)
        return;
    value1_ = clamped;
    redraw();
    if (value1_ > value2_ - gap_)
        moveValue2(value1_ + gap_);
    Q_EMIT value1Changed(value1_);
}

void VLK_DblSlider2::setValue2(double value)
{
    const double clamped = clampedValue2(value);
    if (std::isnan(value) || clamped == value2_)
        return;
    value2_ = clamped;
    redraw();
    if (value1_ + gap_ > value2_)
        setValue1(value2_ - gap_);
    Q_EMIT value2Changed(value2_);
}

// Where the gap is wider than the scale, a value stops at the end of the scale.
double VLK_DblSlider2::clampedValue1(double value) const
{
    return std::max(minimum_, std::min(value, maximum_ - gap_));
}

double VLK_DblSlider2::clampedValue2(double value) const
{
    return std::min(maximum_, std::max(value, minimum_ + gap_));
}

void VLK_DblSlider2::moveValue2(double value)
{
    const double clamped = clampedValue2(value);
    if (clamped == value2_)
        return;
    value2_ = clamped;
    redraw();
    Q_EMIT value2Changed(value2_);
}

void VLK_DblSlider2::setValue(Handle handle, double value)
{
    if (handle == Handle::First)
        setValue1(value);
    else
        setValue2(value);
}

void VLK_DblSlider2::setColorLow(const QColor& color)
{
    colorLow_ = color;
    redraw();
}

void VLK_DblSlider2::setColorMiddle(const QColor& color)
{
    colorMiddle_ = color;
    redraw();
}

void VLK_DblSlider2::setColorHigh(const QColor& color)
{
    colorHigh_ = color;
    redraw();
}

void VLK_DblSlider2::setTickPosition(int position)
{
    tickPosition_ = position;
    redraw();
}

QSize VLK_DblSlider2::minimumSizeHint() const
{
    return {128, kSliderHeight};
}

void VLK_DblSlider2::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (handle2_.contains(event->pos()))
        active_ = dragged_ = Handle::Second;
    else if (handle1_.contains(event->pos()))
        active_ = dragged_ = Handle::First;
}

void VLK_DblSlider2::mouseMoveEvent(QMouseEvent* event)
{
    if (dragged_ == Handle::None || paintedWidth_ <= 0)
        return;
    setValue(dragged_, ((maximum_ - minimum_) * event->x() + paintedWidth_ * minimum_) / paintedWidth_);
}

void VLK_DblSlider2::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    dragged_ = Handle::None;
}

void VLK_DblSlider2::keyPressEvent(QKeyEvent* event)
{
    const double present = active_ == Handle::First ? value1_ : value2_;
    const double step = (maximum_ - minimum_) / 100;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return setValue(active_, present - step);
    case Qt::Key_Right:
    case Qt::Key_Up:
        return setValue(active_, present + step);
    case Qt::Key_PageDown:
        return setValue(active_, present - 10 * step);
    case Qt::Key_PageUp:
        return setValue(active_, present + 10 * step);
    case Qt::Key_Home:
        return setValue(active_, minimum_);
    case Qt::Key_End:
        return setValue(active_, maximum_);
    default:
        QWidget::keyPressEvent(event);
    }
}

// A slider that is disabled or hidden in the middle of a drag gets no release event.
void VLK_DblSlider2::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange) {
        dragged_ = Handle::None;
        redraw();
    }
    QWidget::changeEvent(event);
}

void VLK_DblSlider2::showEvent(QShowEvent* event)
{
    placeEnds();
    QWidget::showEvent(event);
}

void VLK_DblSlider2::hideEvent(QHideEvent* event)
{
    dragged_ = Handle::None;
    delete ends_;
    QWidget::hideEvent(event);
}

void VLK_DblSlider2::moveEvent(QMoveEvent* event)
{
    placeEnds();
    QWidget::moveEvent(event);
}

void VLK_DblSlider2::resizeEvent(QResizeEvent* event)
{
    placeEnds();
    QWidget::resizeEvent(event);
}

void VLK_DblSlider2::redraw()
{
    update();
    if (ends_)
        ends_->update();
}

void VLK_DblSlider2::placeEnds()
{
    if (!isVisible() || isWindow())
        return;
    if (!ends_) {
        ends_ = new Ends(this);
        ends_->stackUnder(this);
    }
    ends_->setGeometry(geometry().adjusted(-Ends::kRoom, 0, Ends::kRoom, 0));
    ends_->show();
}

void VLK_DblSlider2::paintEvent(QPaintEvent* /*event*/)
{
    paintedWidth_ = width();
    const auto [pixel1, pixel2] = handlePixels();
    handle1_ = QRect(pixel1 - kHandleHalf, 0, 2 * kHandleHalf, kSliderHeight);
    handle2_ = QRect(pixel2 - kHandleHalf, 0, 2 * kHandleHalf, kSliderHeight);

    QPainter painter(this);
    paintTrack(painter, pixel1, pixel2);
    painter.setPen(readable(Qt::black, palette().color(QPalette::WindowText)));
    paintTicks(painter);
    paintHandles(painter);
}

void VLK_DblSlider2::paintHandles(QPainter& painter) const
{
    const auto [pixel1, pixel2] = handlePixels();
    painter.setPen(readable(Qt::black, palette().color(QPalette::WindowText)));
    paintHandle(painter, pixel1);
    paintHandle(painter, pixel2);
}

std::pair<int, int> VLK_DblSlider2::handlePixels() const
{
    const int last = width() - 1;
    const int pixel1 = pixelOf(value1_);
    return {pixel1 + kHandleHalf > last ? last - 5 : pixel1,
            std::min(std::max(pixelOf(value2_), kHandleHalf), last)};
}

int VLK_DblSlider2::pixelOf(double value) const
{
    if (maximum_ <= minimum_)
        return 0;
    const double position = width() / (maximum_ - minimum_) * (value - minimum_);
    return position > 0 ? static_cast<int>(std::min(position, static_cast<double>(width()))) : 0;
}

void VLK_DblSlider2::paintTrack(QPainter& painter, int pixel1, int pixel2) const
{
    const struct
    {
        int left, right;
        const std::optional<QColor>& color;
    } bars[] = {
        {0, pixel1, colorLow_}, {pixel1, pixel2, colorMiddle_}, {pixel2, paintedWidth_ - 1, colorHigh_}};

    painter.setPen(readable(palette().color(QPalette::Shadow),
                            palette().color(QPalette::Disabled, QPalette::WindowText)));
    painter.setBrush(palette().color(QPalette::Window));
    for (const auto& bar : bars) {
        const QRect area(bar.left, kTrackTop, bar.right - bar.left, kTrackHeight);
        if (area.isEmpty())
            continue;
        if (isEnabled() && bar.color)
            painter.fillRect(area, *bar.color);
        else
            painter.drawRect(area.adjusted(0, 0, -1, -1)); // the pen stands on the outer pixels
    }
}

void VLK_DblSlider2::paintTicks(QPainter& painter) const
{
    const bool above = tickPosition_ == 1 || tickPosition_ == 3;
    const bool below = tickPosition_ == 2 || tickPosition_ == 3;
    const int right = paintedWidth_ - 1;
    if (above)
        painter.drawLine(0, 0, right, 0);
    if (below)
        painter.drawLine(0, kLowestLine, right, kLowestLine);
    for (int i = 0; i <= 10; ++i) {
        const int x = static_cast<int>(i * right / 10.0);
        const int last = i % 5 == 0 ? 3 : 1; // 4 pixels long, or 2
        if (above)
            painter.drawLine(x, 0, x, last);
        if (below)
            painter.drawLine(x, kLowestLine - last, x, kLowestLine);
    }
}

void VLK_DblSlider2::paintHandle(QPainter& painter, int pixel) const
{
    const bool up = tickPosition_ == 1;
    QPolygon shape;
    for (const QPoint& point : kHandleShape)
        shape << (up ? QPoint(pixel - point.x(), kLowestLine - point.y()) : point + QPoint(pixel, 0));

    if (isEnabled()) {
        painter.save();
        painter.setPen(palette().color(QPalette::Shadow));
        painter.setBrush(palette().color(QPalette::Shadow));
        painter.drawPolygon(shape.translated(1, up ? 1 : -1));
        painter.restore();
    }
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawPolygon(shape);
    painter.drawLine(pixel, 3, pixel, 16);
}

QColor VLK_DblSlider2::readable(const QColor& usual, const QColor& onDark) const
{
    return palette().color(QPalette::Window).lightness() < 128 ? onDark : usual;
}
