#include "telemetry/track/track_canvas.h"

#include "link/requests.h"
#include "telemetry/curves/time_scale.h"
#include "telemetry/track/track_model.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr double kTrackZoom = 0.8;
constexpr double kFinest = 0.02; // metres a pixel
constexpr double kCoarsest = 50'000;
constexpr double kTrackNotch = 120;
constexpr double kPanShare = 0.15;
constexpr double kNear = 16; // pixels
constexpr QSize kTrackSize(320, 240);

} // namespace

TrackCanvas::TrackCanvas(TrackModel* model, QWidget* parent) : QWidget(parent), model_(model)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(120, 90);
    connect(model, &TrackModel::restarted, this, &TrackCanvas::fit);
    connect(model, &TrackModel::changed, this, [this] {
        if (isFitted_)
            fit();
        update();
    });
    connect(&model->records(), &ShownRecords::currentChanged, this, &TrackCanvas::keepInSight);
}

QSize TrackCanvas::sizeHint() const
{
    return kTrackSize;
}

void TrackCanvas::fit()
{
    isFitted_ = true;
    sight_ = sightOf(model_->bounds(), size());
    update();
}

TrackSight TrackCanvas::sightIn(const QSizeF& room) const
{
    if (isFitted_)
        return sightOf(model_->bounds(), room);
    TrackSight sight = sight_;
    sight.metresPerPixel *= std::max(width() / room.width(), height() / room.height());
    return sight;
}

void TrackCanvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const TimeSpan shown = model_->shownTime();
    paintTrack(painter, size(), *model_, sight_, shown, shown, palette());
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void TrackCanvas::resizeEvent(QResizeEvent*)
{
    if (isFitted_)
        fit();
}

void TrackCanvas::pan(const QPointF& pixels)
{
    isFitted_ = false;
    sight_.middle -= pixels * sight_.metresPerPixel;
    update();
}

void TrackCanvas::zoom(double factor, const QPointF& round)
{
    isFitted_ = false;
    const QPointF place = sight_.toPlace(round, size());
    sight_.metresPerPixel = std::clamp(sight_.metresPerPixel * factor, kFinest, kCoarsest);
    // What was there is there.
    sight_.middle += place - sight_.toPlace(round, size());
    update();
}

void TrackCanvas::mousePressEvent(QMouseEvent* event)
{
    pressedAt_ = event->pos();
    lastDrag_ = event->localPos();
    isDragged_ = false;
}

void TrackCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & (Qt::LeftButton | Qt::MiddleButton)))
        return;
    isDragged_ |= (event->pos() - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
    if (!isDragged_)
        return;
    pan(event->localPos() - lastDrag_);
    lastDrag_ = event->localPos();
}

void TrackCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (isDragged_ || event->button() != Qt::LeftButton)
        return;
    const int point = nearestTo(event->localPos());
    if (point >= 0)
        model_->records().setCurrent(model_->path().points()[point].record);
}

void TrackCanvas::wheelEvent(QWheelEvent* event)
{
    zoom(std::pow(kTrackZoom, event->angleDelta().y() / kTrackNotch), event->position());
}

void TrackCanvas::keyPressEvent(QKeyEvent* event)
{
    const double across = width() * kPanShare;
    const double down = height() * kPanShare;
    const QPointF middle(width() / 2.0, height() / 2.0);
    switch (event->key()) {
    case Qt::Key_Left:
        return pan({across, 0});
    case Qt::Key_Right:
        return pan({-across, 0});
    case Qt::Key_Up:
        return pan({0, down});
    case Qt::Key_Down:
        return pan({0, -down});
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(kTrackZoom, middle);
    case Qt::Key_Minus:
        return zoom(1 / kTrackZoom, middle);
    case Qt::Key_PageUp:
        return step(-1);
    case Qt::Key_PageDown:
        return step(1);
    case Qt::Key_Home:
        return fit();
    case Qt::Key_0:
        if (event->modifiers() & Qt::ControlModifier)
            return fit();
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

// To the next point, whatever lies between.
void TrackCanvas::step(int way)
{
    const TrackPath& path = model_->path();
    const int current = model_->records().current();
    const int at = path.pointOf(current);
    const bool isBetween = at < 0 || path.points()[at].record != current;
    const int next = way < 0 && isBetween ? at : at + way;
    if (next >= 0 && next < static_cast<int>(path.points().size()))
        model_->records().setCurrent(path.points()[next].record);
}

void TrackCanvas::keepInSight(int record)
{
    const int point = model_->path().pointOf(record);
    // What shows all shows this one too, or leaves it out on purpose.
    if (point >= 0 && !isFitted_) {
        const QPointF pixel = sight_.toPixel(model_->path().place(point), size());
        if (!rect().contains(pixel.toPoint()))
            sight_.middle = model_->path().place(point);
    }
    update();
}

int TrackCanvas::nearestTo(const QPointF& pixel) const
{
    const TrackPath& path = model_->path();
    const QPointF place = sight_.toPlace(pixel, size());
    const double reach = kNear * sight_.metresPerPixel;
    double least = reach * reach;
    int nearest = -1;
    for (int point = 0; point < static_cast<int>(path.points().size()); ++point) {
        const QPointF way = path.place(point) - place;
        const double distance = QPointF::dotProduct(way, way);
        if (distance > least || !model_->isShown(point))
            continue;
        least = distance;
        nearest = point;
    }
    return nearest;
}

QString TrackCanvas::tipAt(const QPointF& pixel) const
{
    const int point = nearestTo(pixel);
    if (point < 0)
        return {};
    ShownRecords& records = model_->records();
    const int record = model_->path().points()[point].record;
    QStringList lines{momentText(model_->path().points()[point].time, records.utcOffset())};
    if (model_->column())
        lines << model_->column()->title + QLatin1String(": ") +
                     valueText(*model_->column(), model_->valueAt(record));
    const std::vector<quint32>& times = records.columns().times();
    for (const Stop& stop : model_->stops()) {
        if (times[stop.first] <= times[record] && times[record] <= times[stop.last])
            lines << tr("rec_195").arg(
                durationText(static_cast<double>(times[stop.last]) - times[stop.first]));
    }
    if (std::ranges::binary_search(model_->events(), record))
        lines << requests::eventText(static_cast<int>(records.columns().codes()[record]));
    for (const FoundEvent& event : records.found()) {
        if (event.record == record)
            lines << event.text;
    }
    return lines.join(QLatin1Char('\n'));
}

bool TrackCanvas::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), tipAt(help.pos()), this);
    return true;
}

} // namespace vlk
