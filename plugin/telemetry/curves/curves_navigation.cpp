#include "telemetry/curves/curves_navigation.h"

#include "telemetry/curves/curves_model.h"
#include "telemetry/curves/curves_plot.h"
#include "telemetry/curves/span_moves.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <qwt_scale_map.h>

namespace vlk {

namespace {

constexpr double kZoomStep = 0.7;
constexpr double kPanStep = 0.1;
constexpr double kWheelNotch = 120;
constexpr int kTipReach = 6; // pixels

} // namespace

CurvesNavigation::CurvesNavigation(CurvesModel* model, CurvesPlot* plot)
    : QObject(plot), model_(model), records_(model->records()), plot_(plot)
{
    plot->installEventFilter(this);
    plot->canvas()->installEventFilter(this);
}

bool CurvesNavigation::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == plot_)
        return event->type() == QEvent::KeyPress && takeKey(static_cast<QKeyEvent&>(*event));
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
        return drag(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent&>(*event));
    case QEvent::Wheel:
        return turn(static_cast<QWheelEvent&>(*event));
    case QEvent::ToolTip: {
        const auto& help = static_cast<QHelpEvent&>(*event);
        return showTip(help.pos(), help.globalPos());
    }
    default:
        return false;
    }
}

bool CurvesNavigation::takeKey(const QKeyEvent& event)
{
    const TimeSpan span = plot_->span();
    const TimeSpan whole = records_.wholeTime();
    const int current = records_.current();
    const double moment = current >= 0 ? records_.columns().times()[current] : 0;
    const double round = span.contains(moment) ? moment : (span.from + span.to) / 2;
    const bool isControl = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int way = event.key() == Qt::Key_Left ? -1 : 1;
        if (isControl)
            records_.setInSight(moved(span, way * kPanStep, whole));
        else
            step(way);
        return true;
    }
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        records_.setInSight(moved(span, event.key() == Qt::Key_PageUp ? -1 : 1, whole));
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        model_->setFocused(model_->focused() + (event.key() == Qt::Key_Up ? -1 : 1));
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        records_.setInSight(zoomed(span, kZoomStep, round, whole));
        return true;
    case Qt::Key_Minus:
        records_.setInSight(zoomed(span, 1 / kZoomStep, round, whole));
        return true;
    case Qt::Key_0:
        if (isControl)
            records_.setInSight(whole);
        return isControl;
    case Qt::Key_Home:
        goTo(0);
        return true;
    case Qt::Key_End:
        goTo(records_.byTime().size() - 1);
        return true;
    case Qt::Key_A:
        model_->setMoving(Cursor::A);
        return true;
    case Qt::Key_B:
        model_->setMoving(Cursor::B);
        return true;
    case Qt::Key_Delete:
        model_->endCursor(model_->moving());
        return true;
    case Qt::Key_Escape:
        return endDrag() || model_->endCursor(Cursor::B);
    default:
        return false;
    }
}

void CurvesNavigation::goTo(std::size_t place)
{
    if (place < records_.byTime().size())
        records_.setCurrent(records_.byTime()[place]);
}

// By time; records of one moment follow each other as in the file.
void CurvesNavigation::step(int way)
{
    const std::vector<int>& byTime = records_.byTime();
    const std::vector<quint32>& times = records_.columns().times();
    if (byTime.empty())
        return;
    const auto key = [&](int record) { return std::pair(times[record], record); };
    const auto place = std::ranges::lower_bound(byTime, key(records_.current()), {}, key);
    const auto next = place - byTime.begin() + way;
    goTo(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, std::ssize(byTime) - 1)));
}

double CurvesNavigation::timeAt(double canvasX) const
{
    return plot_->timeAtPixel(canvasX + plot_->canvas()->x());
}

bool CurvesNavigation::press(const QMouseEvent& event)
{
    const bool isPan = event.button() == Qt::MiddleButton ||
                       (event.button() == Qt::LeftButton && event.modifiers() & Qt::ShiftModifier);
    if (!isPan && event.button() != Qt::LeftButton)
        return false;
    endDrag();
    plot_->setFocus(Qt::MouseFocusReason);
    drag_ = isPan ? Drag::Pan : Drag::Zoom;
    dragFrom_ = event.pos();
    dragSpan_ = plot_->span();
    return true;
}

bool CurvesNavigation::drag(const QMouseEvent& event)
{
    if (drag_ == Drag::None)
        return false;
    QWidget* const canvas = plot_->canvas();
    const int way = event.x() - dragFrom_.x();
    if (drag_ == Drag::Pan) {
        const double share = -static_cast<double>(way) / std::max(canvas->width(), 1);
        records_.setInSight(moved(dragSpan_, share, records_.wholeTime()));
    } else if (rubber_ || std::abs(way) >= QApplication::startDragDistance()) {
        if (!rubber_)
            rubber_ = new QRubberBand(QRubberBand::Rectangle, canvas);
        rubber_->setGeometry(
            QRect(dragFrom_.x(), 0, way, canvas->height()).normalized().intersected(canvas->rect()));
        rubber_->show();
    }
    return true;
}

bool CurvesNavigation::release(const QMouseEvent& event)
{
    const Drag ended = drag_;
    const bool hasRubber = rubber_ != nullptr;
    endDrag();
    if (ended == Drag::Zoom && hasRubber) {
        // Back to where it began it chooses nothing.
        const auto [from, to] = std::minmax({timeAt(dragFrom_.x()), timeAt(event.x())});
        if (std::abs(event.x() - dragFrom_.x()) >= QApplication::startDragDistance())
            records_.setInSight(zoomed({from, to}, 1, (from + to) / 2, records_.wholeTime()));
    } else if (ended == Drag::Zoom) {
        plot_->goToPixel(event.x() + plot_->canvas()->x());
    }
    return ended != Drag::None;
}

bool CurvesNavigation::endDrag()
{
    delete std::exchange(rubber_, nullptr);
    return std::exchange(drag_, Drag::None) != Drag::None;
}

bool CurvesNavigation::turn(const QWheelEvent& event)
{
    const TimeSpan span = plot_->span();
    const QPoint angle = event.angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / kWheelNotch;
    const bool isPan = event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier) || angle.y() == 0;
    if (isPan)
        records_.setInSight(moved(span, -notches * kPanStep, records_.wholeTime()));
    else
        records_.setInSight(
            zoomed(span, std::pow(kZoomStep, notches), timeAt(event.position().x()), records_.wholeTime()));
    return true;
}

bool CurvesNavigation::showTip(const QPoint& place, const QPoint& global)
{
    const std::vector<quint32>& times = records_.columns().times();
    const QwtScaleMap x = plot_->canvasMap(QwtPlot::xBottom);
    QStringList texts;
    for (const FoundEvent& event : records_.found()) {
        if (std::abs(x.transform(times[event.record]) - place.x()) <= kTipReach)
            texts << event.text;
    }
    if (texts.isEmpty())
        texts << plot_->gapText(place.x() + plot_->canvas()->x());
    QToolTip::showText(global, texts.join(QLatin1Char('\n')), plot_->canvas());
    return true;
}

} // namespace vlk
