#include "fuel/fuelsensor_graph.h"

#include "fuel/table/fuel_sensors.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using vlk::FuelPoint;

namespace {

// Pixels.
constexpr int kRightMargin = 20;
constexpr int kTopMargin = 20;
constexpr int kBottomMargin = 50;
constexpr int kArrow = 20; // beyond the last tick
constexpr int kTickHalf = 5;
constexpr int kTicks = 10;
constexpr double kDot = 1;    // radius
constexpr double kRing = 3.5; // 7 pixels across
constexpr double kAlarmRing = 5;
constexpr double kReach = 15; // of the mouse

// On white, whatever the palette.
constexpr Qt::GlobalColor kInk = Qt::black;
constexpr Qt::GlobalColor kAlarm = Qt::red;
constexpr QRgb kRingColor = 0xff1f5f9e;
constexpr QRgb kRoundLine = 0xffe2e6ea;

double largest(const vlk::FuelPoints& points, float FuelPoint::*coordinate)
{
    double found = 0;
    for (const FuelPoint& point : points)
        found = std::max(found, static_cast<double>(point.*coordinate));
    return std::ceil(found);
}

// 1, 2 or 5 times a power of ten, of which an axis has five to ten.
double roundStep(double maximum)
{
    const double most = maximum / 5;
    const double power = std::pow(10, std::floor(std::log10(most)));
    for (const int times : {5, 2}) {
        if (times * power <= most)
            return times * power;
    }
    return power;
}

// Points that stand on another one cost time and show nothing.
QPolygonF withoutHidden(const vlk::FuelPoints& points, auto place)
{
    constexpr double kSeen = 0.5;
    QPolygonF line;
    for (const FuelPoint& point : points) {
        const QPointF at = place(point);
        if (line.isEmpty() || (at - line.last()).manhattanLength() >= kSeen)
            line << at;
    }
    return line;
}

// A circle drawn once and stamped at every place, since thousands of circles take their time.
void stampCircles(QPainter& painter, double radius, const QPen& pen, const QBrush& brush, const QPolygonF& at)
{
    const double scale = painter.device()->devicePixelRatioF();
    const int side = 2 * static_cast<int>(std::ceil(radius + pen.widthF()));
    const QPointF middle(side / 2.0, side / 2.0);
    QPixmap circle(QSize(side, side) * scale);
    circle.setDevicePixelRatio(scale);
    circle.fill(Qt::transparent);
    {
        QPainter stamp(&circle);
        stamp.setRenderHint(QPainter::Antialiasing);
        stamp.setPen(pen);
        stamp.setBrush(brush);
        stamp.drawEllipse(middle, radius, radius);
    }
    for (const QPointF& place : at)
        painter.drawPixmap(place - middle, circle);
}

} // namespace

VLK_FuelSensor_Graph::VLK_FuelSensor_Graph(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setMinimumSize(260, 180);
    // The margins leave no room for more.
    QFont labels = font();
    labels.setPixelSize(12);
    setFont(labels);
}

void VLK_FuelSensor_Graph::setKind(const vlk::FuelKind& kind)
{
    valueDecimals_ = kind.graphDecimals;
    leftMargin_ = kind.leftMargin;
    volumeCaption_ = vlk::fuelWord("cfgt6_040");
    valueCaption_ = vlk::fuelWord(kind.valueCaption);
    volumeAxis_ = vlk::fuelWord("cfgt6_052");
    valueAxis_ = vlk::fuelWord(kind.axisCaption);
    update();
}

void VLK_FuelSensor_Graph::setPoints(vlk::FuelPoints points)
{
    points_ = std::move(points);
    falling_ = vlk::fallingPoints(points_);
    point({});
    update();
}

QPointF VLK_FuelSensor_Graph::Axes::place(const FuelPoint& point) const
{
    const auto along = [](float coordinate, double maximum, int step) {
        return maximum == 0 ? 0 : static_cast<double>(coordinate) / maximum * kTicks * step;
    };
    return {corner.x() + along(point.volume, maxVolume, step.width()),
            corner.y() - along(point.value, maxValue, step.height())};
}

// A tick is a whole number of pixels; the curve keeps to the ticks.
VLK_FuelSensor_Graph::Axes VLK_FuelSensor_Graph::axes() const
{
    return {QPoint(leftMargin_, height() - kBottomMargin),
            QSize(std::max(0, (width() - kArrow - kRightMargin - leftMargin_) / kTicks),
                  std::max(0, (height() - kArrow - kTopMargin - kBottomMargin) / kTicks)),
            largest(points_, &FuelPoint::volume), largest(points_, &FuelPoint::value)};
}

void VLK_FuelSensor_Graph::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(event->rect(), Qt::white);
    const Axes axes = this->axes();
    drawRoundLines(painter, axes);
    painter.setPen(kInk);
    drawAxes(painter, axes);
    if (points_.empty())
        return;
    drawTicks(painter, axes);
    drawCurve(painter, axes);
    drawPointed(painter, axes);
}

// Behind the ticks, which stand at tenths of the largest value and alone have numbers.
void VLK_FuelSensor_Graph::drawRoundLines(QPainter& painter, const Axes& axes) const
{
    const QSize size = axes.step * kTicks;
    painter.setPen(QColor(kRoundLine));
    const auto forEachRound = [](double maximum, int length, auto draw) {
        const double step = maximum > 0 ? roundStep(maximum) : 0;
        for (int n = 1; step > 0 && n * step <= maximum; ++n)
            draw(qRound(n * step / maximum * length));
    };
    forEachRound(axes.maxVolume, size.width(), [&](int right) {
        const QPoint from = axes.corner + QPoint(right, 0);
        painter.drawLine(from, from - QPoint(0, size.height()));
    });
    forEachRound(axes.maxValue, size.height(), [&](int up) {
        const QPoint from = axes.corner - QPoint(0, up);
        painter.drawLine(from, from + QPoint(size.width(), 0));
    });
}

void VLK_FuelSensor_Graph::drawAxes(QPainter& painter, const Axes& axes) const
{
    const QPoint corner = axes.corner;
    const QPoint top(corner.x(), kTopMargin);
    painter.drawLine(corner, top);
    painter.drawLine(top, top + QPoint(-5, 10));
    painter.drawLine(top, top + QPoint(5, 10));
    const QPoint end(width() - kRightMargin, corner.y());
    painter.drawLine(corner, end);
    painter.drawLine(end, end + QPoint(-10, -5));
    painter.drawLine(end, end + QPoint(-10, 5));

    const QFontMetrics metrics = painter.fontMetrics();
    painter.drawText((width() - metrics.horizontalAdvance(volumeAxis_)) / 2, height() - 10, volumeAxis_);
    painter.save();
    painter.translate(QPoint(15, (height() + metrics.horizontalAdvance(valueAxis_)) / 2));
    painter.rotate(-90);
    painter.drawText(0, 0, valueAxis_);
    painter.restore();
}

void VLK_FuelSensor_Graph::drawTicks(QPainter& painter, const Axes& axes) const
{
    const QFontMetrics metrics = painter.fontMetrics();
    const auto label = [](int tick, double maximum, int decimals) {
        return QString::number(tick * maximum / kTicks, 'f', decimals);
    };
    // A label that would touch the one before it is left out.
    int written = 0;
    for (int tick = 1; axes.maxVolume > 0 && tick <= kTicks; ++tick) {
        const int x = axes.corner.x() + tick * axes.step.width();
        painter.drawLine(x, axes.corner.y() + kTickHalf, x, axes.corner.y() - kTickHalf);
        const QString text = label(tick, axes.maxVolume, 1);
        const int from = x - metrics.horizontalAdvance(text) / 2;
        if (from <= written)
            continue;
        painter.drawText(from, axes.corner.y() + 15, text);
        written = from + metrics.horizontalAdvance(text) + kTickHalf;
    }
    written = height();
    for (int tick = 1; axes.maxValue > 0 && tick <= kTicks; ++tick) {
        const int y = axes.corner.y() - tick * axes.step.height();
        painter.drawLine(axes.corner.x() - kTickHalf, y, axes.corner.x() + kTickHalf, y);
        const QString text = label(tick, axes.maxValue, std::max(1, valueDecimals_));
        const int base = y + metrics.ascent() / 2 - 1;
        if (base > written)
            continue;
        painter.drawText(axes.corner.x() - 7 - metrics.horizontalAdvance(text), base, text);
        written = base - metrics.ascent();
    }
}

void VLK_FuelSensor_Graph::drawCurve(QPainter& painter, const Axes& axes) const
{
    const QPolygonF line =
        withoutHidden(points_, [&axes](const FuelPoint& point) { return axes.place(point); });
    painter.drawPolyline(line);
    QPolygonF rings;
    for (const std::size_t index : falling_)
        rings << axes.place(points_[index]);
    stampCircles(painter, kRing, QPen(QColor(kRingColor), 1), Qt::NoBrush, line);
    stampCircles(painter, kAlarmRing, QPen(kAlarm, 2), Qt::NoBrush, rings);
    stampCircles(painter, kDot, Qt::NoPen, kAlarm, line);
}

void VLK_FuelSensor_Graph::drawPointed(QPainter& painter, const Axes& axes) const
{
    if (!pointed_)
        return;
    constexpr int kPadding = 4;
    const QPointF at = axes.place(points_[*pointed_]);
    painter.drawEllipse(at, kAlarmRing + 2, kAlarmRing + 2);
    const QString text = accessibleDescription();
    QRect box = painter.fontMetrics()
                    .boundingRect(rect(), Qt::AlignLeft, text)
                    .adjusted(-kPadding, -kPadding, kPadding, kPadding);
    box.moveBottomLeft(at.toPoint() + QPoint(10, -10));
    box.moveRight(std::min(box.right(), width() - 1));
    box.moveTop(std::max(box.top(), 0));
    painter.fillRect(box, Qt::white);
    painter.drawRect(box);
    painter.drawText(box.adjusted(kPadding, kPadding, 0, 0), Qt::AlignLeft, text);
}

void VLK_FuelSensor_Graph::mouseMoveEvent(QMouseEvent* event)
{
    const Axes axes = this->axes();
    std::optional<std::size_t> nearest;
    double least = kReach * kReach;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const QPointF away = axes.place(points_[i]) - event->localPos();
        const double distance = QPointF::dotProduct(away, away);
        if (distance <= least) {
            least = distance;
            nearest = i;
        }
    }
    point(nearest);
}

void VLK_FuelSensor_Graph::leaveEvent(QEvent* /*event*/)
{
    point({});
}

void VLK_FuelSensor_Graph::point(std::optional<std::size_t> index)
{
    if (index == pointed_)
        return;
    pointed_ = index;
    const auto text = [this](const FuelPoint& point) {
        return QStringLiteral("%1: %2\n%3: %4")
            .arg(volumeCaption_, QString::number(static_cast<double>(point.volume), 'f', 1), valueCaption_,
                 QString::number(static_cast<double>(point.value), 'f', valueDecimals_));
    };
    setAccessibleDescription(index ? text(points_[*index]) : QString());
    update();
}
