#include "telemetry/curves/curves_plot.h"

#include "telemetry/curves/curve_looks.h"
#include "telemetry/curves/span_moves.h"
#include "telemetry/curves/time_scale.h"
#include "typing/kept_palette.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

namespace vlk {

namespace {

constexpr double kZoomStep = 0.7;
constexpr double kPanStep = 0.1;
constexpr double kWheelNotch = 120;
constexpr int kShapeDistance = 90;
constexpr int kValueTicks = 5;
constexpr int kLeastTitleRoom = 80; // less cuts titles to nothing
constexpr double kPointReach = 1.5;

class TimeScaleDraw : public QwtScaleDraw
{
public:
    TimeScaleDraw(const double* step, const ShownRecords& records) : step_(step), records_(records) {}

    QwtText label(double time) const override { return tickText(time, *step_, records_.utcOffset()); }

private:
    const double* step_;
    const ShownRecords& records_;
};

QwtScaleDiv valueDivision(const Extremes& extremes, int most)
{
    double least = extremes.isEmpty() ? 0 : extremes.least;
    double greatest = extremes.isEmpty() ? 1 : extremes.greatest;
    // Damaged values are as large as they like; the scale has to stay a scale.
    constexpr double farthest = 1e300;
    least = std::clamp(least, -farthest, farthest);
    greatest = std::clamp(greatest, -farthest, farthest);
    QwtLinearScaleEngine engine;
    engine.setMargins(0, 0);
    double step = 0;
    engine.autoScale(most, least, greatest, step);
    return engine.divideScale(least, greatest, most, 2, step);
}

// Of a piece, as what the painter takes; the same on every axis but for its map.
QPolygonF onCanvas(const QPolygonF& piece, const QwtScaleMap& x, const QwtScaleMap& y)
{
    QPolygonF mapped(piece.size());
    std::ranges::transform(piece, mapped.begin(), [&](const QPointF& point) {
        return QPointF(x.transform(point.x()), y.transform(point.y()));
    });
    return mapped;
}

} // namespace

class CurvesPlot::Drawing : public QwtPlotItem
{
public:
    explicit Drawing(CurvesPlot& plot) : plot_(plot) { setZ(10); }

    void draw(QPainter* painter, const QwtScaleMap& x, const QwtScaleMap& y,
              const QRectF& canvas) const override
    {
        const CurvesModel& model = *plot_.model_;
        painter->setClipRect(canvas);
        if (model.curves().empty()) {
            painter->setPen(plot_.palette().color(QPalette::Disabled, QPalette::Text));
            painter->drawText(canvas, Qt::AlignCenter | Qt::TextWordWrap,
                              tr(model.records().records().empty() ? "rec_192" : "rec_191"));
        }
        for (int place = 0; place < static_cast<int>(model.curves().size()); ++place) {
            if (place != model.focused())
                drawCurve(*painter, place, x, y, canvas);
        }
        if (model.focused() >= 0)
            drawCurve(*painter, model.focused(), x, y, canvas);
        drawFound(*painter, x, canvas);
        for (const Cursor which : {Cursor::a, Cursor::b})
            drawCursor(*painter, which, x, y, canvas);
    }

private:
    QwtScaleMap mapOf(int axis, const QwtScaleMap& left) const
    {
        const QwtScaleDiv& division = plot_.divisionOf(axis);
        QwtScaleMap map = left;
        map.setScaleInterval(division.lowerBound(), division.upperBound());
        return map;
    }

    void drawCurve(QPainter& painter, int place, const QwtScaleMap& x, const QwtScaleMap& left,
                   const QRectF& canvas) const
    {
        const Curve& curve = plot_.model_->curves()[place];
        const QwtScaleMap y = mapOf(curve.axis, left);
        const QColor colour = curveColor(place, plot_.palette());
        const bool isFocused = place == plot_.model_->focused();
        // On paper as wide as it should be. On a screen by lines of one pixel, which are drawn many times as
        // fast, twice where the curve is the one that the cursors tell.
        const bool isPaper = plot_.ownSpan_.has_value();
        painter.setPen(QPen(colour, isPaper && isFocused ? 2 : 1));
        double nextShape = canvas.left() + kShapeDistance / 2.0 + place * 13;
        for (const QPolygonF& piece : curve.series->pieces(plot_.span(), static_cast<int>(canvas.width()))) {
            const QPolygonF line = onCanvas(piece, x, y);
            if (line.size() == 1) {
                painter.setBrush(colour);
                painter.drawEllipse(line.front(), kPointReach, kPointReach);
            } else {
                painter.drawPolyline(line);
                if (isFocused && !isPaper)
                    painter.drawPolyline(line.translated(0, 1));
            }
            for (const QPointF& point : line) {
                if (point.x() < nextShape || point.x() > canvas.right())
                    continue;
                paintCurveShape(painter, place, point, colour);
                nextShape = point.x() + kShapeDistance;
            }
        }
    }

    void drawFound(QPainter& painter, const QwtScaleMap& x, const QRectF& canvas) const
    {
        const std::vector<quint32>& times = plot_.model_->records().columns().times();
        for (const FoundEvent& event : plot_.model_->records().found()) {
            if (!plot_.span().contains(times[event.record]))
                continue;
            const double at = std::round(x.transform(times[event.record]));
            painter.setPen(QPen(foundColor(event.isRise, plot_.palette()), 1, Qt::DotLine));
            painter.drawLine(QPointF(at, canvas.top()), QPointF(at, canvas.bottom()));
        }
    }

    void drawCursor(QPainter& painter, Cursor which, const QwtScaleMap& x, const QwtScaleMap& left,
                    const QRectF& canvas) const
    {
        const CurvesModel& model = *plot_.model_;
        const int record = model.cursor(which);
        const std::vector<quint32>& times = model.records().columns().times();
        if (record < 0 || times[record] == 0 || !plot_.span().contains(times[record]))
            return;
        const QPalette& palette = plot_.palette();
        const double at = std::round(x.transform(times[record]));
        const QColor colour = palette.color(QPalette::Text);
        painter.setPen(
            QPen(colour, which == model.moving() ? 2 : 1, which == Cursor::a ? Qt::SolidLine : Qt::DashLine));
        painter.drawLine(QPointF(at, canvas.top()), QPointF(at, canvas.bottom()));
        const QFontMetrics metrics(painter.font());
        QRectF letter(0, 0, metrics.height(), metrics.height());
        letter.moveBottomLeft({std::min(at + 1, canvas.right() - letter.width()), canvas.bottom()});
        painter.fillRect(letter, colour);
        painter.setPen(palette.color(QPalette::Base));
        painter.drawText(letter, Qt::AlignCenter, QLatin1String(which == Cursor::a ? "A" : "B"));
        if (model.focused() < 0)
            return;
        const Curve& curve = model.curves()[model.focused()];
        const double value = model.valueAt(curve, record);
        if (!std::isnan(value))
            paintCurveShape(painter, model.focused(), {at, mapOf(curve.axis, left).transform(value)}, colour);
    }

    CurvesPlot& plot_;
};

CurvesPlot::CurvesPlot(CurvesModel* model, QWidget* parent, std::optional<TimeSpan> span)
    : QwtPlot(parent), model_(model), ownSpan_(span),
      outerLeft_(new QwtScaleWidget(QwtScaleDraw::LeftScale, this)),
      outerRight_(new QwtScaleWidget(QwtScaleDraw::RightScale, this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAutoReplot(false);
    auto* const canvas = new QwtPlotCanvas(this);
    canvas->setObjectName(QStringLiteral("canvas_Curves"));
    canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    canvas->setFrameShape(QFrame::Box);
    canvas->setFrameShadow(QFrame::Plain);
    canvas->setFocusPolicy(Qt::NoFocus);
    canvas->installEventFilter(this);
    setCanvas(canvas);
    setAxisScaleDraw(xBottom, new TimeScaleDraw(&tickStep_, model->records()));
    plotLayout()->setAlignCanvasToScales(true);
    plotLayout()->setSpacing(2);
    auto* const grid = new QwtPlotGrid;
    grid->attach(this);
    (new Drawing(*this))->attach(this);
    dress();
    connect(model, &CurvesModel::changed, this, &CurvesPlot::refresh);
    connect(model, &CurvesModel::cursorsChanged, this, [this] { this->canvas()->update(); });
    if (!ownSpan_)
        connect(&model->records(), &ShownRecords::inSightChanged, this, &CurvesPlot::refresh);
    refresh();
}

TimeSpan CurvesPlot::span() const
{
    return ownSpan_.value_or(model_->records().inSight());
}

QRect CurvesPlot::canvasPlace() const
{
    const auto* const frame = static_cast<const QFrame*>(canvas());
    return frame->contentsRect().translated(frame->pos());
}

double CurvesPlot::xOf(double time) const
{
    return canvasMap(xBottom).transform(time) + canvas()->x();
}

double CurvesPlot::timeAtPixel(double x) const
{
    return canvasMap(xBottom).invTransform(x - canvas()->x());
}

void CurvesPlot::setLeftWidth(int width)
{
    leftWidth_ = width;
    fitMargins();
}

void CurvesPlot::refresh()
{
    setAxes();
    fitMargins();
    replot();
    Q_EMIT laidOut();
}

// The labels of an axis are kept as long as its scale: those with another decimal sign must not stay.
void CurvesPlot::retranslate()
{
    for (QwtScaleWidget* const axis : {axisWidget(yLeft), axisWidget(yRight), outerLeft_, outerRight_})
        axis->setScaleDraw(new QwtScaleDraw);
    refresh();
}

void CurvesPlot::setAxes()
{
    TimeSpan span = this->span();
    if (span.to <= span.from)
        span = {span.from - 1, span.from + 1};
    const QFontMetrics metrics(axisFont(xBottom));
    const int labelWidth = metrics.horizontalAdvance(QStringLiteral("00.00. 00:00")) + 24;
    const TimeTicks ticks = timeTicks(span, canvas()->width() / labelWidth, model_->records().utcOffset());
    tickStep_ = ticks.step;
    QList<double> marks[QwtScaleDiv::NTickTypes];
    marks[QwtScaleDiv::MinorTick] = QList<double>(ticks.minor.begin(), ticks.minor.end());
    marks[QwtScaleDiv::MajorTick] = QList<double>(ticks.major.begin(), ticks.major.end());
    setAxisScaleDiv(xBottom, QwtScaleDiv(span.from, span.to, marks));
    for (int axis = 0; axis < CurvesModel::kMostAxes; ++axis)
        setValueAxis(axis);
}

void CurvesPlot::setValueAxis(int axis)
{
    const bool isUsed = axis < model_->axes().size();
    const QFontMetrics metrics(font());
    const int most = std::clamp(canvas()->height() / (3 * metrics.height()), 2, 2 * kValueTicks);
    const QwtScaleDiv division = valueDivision(isUsed ? model_->extremesAt(axis, span()) : Extremes(), most);
    const QString name = isUsed ? model_->axes()[axis] : QString();
    const bool hasRoom =
        canvas()->height() >= kLeastTitleRoom || metrics.horizontalAdvance(name) <= canvas()->height();
    QwtText title(hasRoom ? metrics.elidedText(name, Qt::ElideRight, canvas()->height()) : QString());
    title.setFont(font());
    if (axis < 2) {
        const int id = axis == 0 ? yLeft : yRight;
        enableAxis(id, isUsed);
        setAxisScaleDiv(id, division);
        setAxisTitle(id, title);
        return;
    }
    QwtScaleWidget* const outer = axis == 2 ? outerLeft_ : outerRight_;
    outer->setVisible(isUsed);
    outer->setScaleDiv(division);
    outer->setTitle(title);
}

const QwtScaleDiv& CurvesPlot::divisionOf(int axis) const
{
    switch (axis) {
    case 0:
        return axisScaleDiv(yLeft);
    case 1:
        return axisScaleDiv(yRight);
    case 2:
        return outerLeft_->scaleDraw()->scaleDiv();
    default:
        return outerRight_->scaleDraw()->scaleDiv();
    }
}

void CurvesPlot::fitMargins()
{
    const auto widthOf = [](const QwtScaleWidget* axis) {
        return axis->isVisibleTo(axis->parentWidget()) ? axis->sizeHint().width() : 0;
    };
    const int outer = widthOf(outerLeft_);
    const int inner = axisEnabled(yLeft) ? axisWidget(yLeft)->sizeHint().width() : 0;
    setContentsMargins(std::max(outer, leftWidth_ - inner), 0, widthOf(outerRight_), 0);
    updateLayout();
}

void CurvesPlot::updateLayout()
{
    QwtPlot::updateLayout();
    placeOuterAxes();
    Q_EMIT laidOut();
}

// As the axes of the plot itself, but further out.
void CurvesPlot::placeOuterAxes()
{
    const QRect canvas = this->canvas()->geometry();
    const int left = axisEnabled(yLeft) ? axisWidget(yLeft)->x() : canvas.left();
    const int right = axisEnabled(yRight) ? axisWidget(yRight)->geometry().right() : canvas.right();
    const int frame = static_cast<const QFrame*>(this->canvas())->frameWidth();
    const QwtScaleWidget* const inner = axisWidget(yLeft);
    for (QwtScaleWidget* const outer : {outerLeft_, outerRight_}) {
        const int width = outer->sizeHint().width();
        const int x = outer == outerLeft_ ? left - width : right + 1;
        if (axisEnabled(yLeft)) {
            outer->setBorderDist(inner->startBorderDist(), inner->endBorderDist());
            outer->setGeometry(x, inner->y(), width, inner->height());
        } else {
            outer->setBorderDist(0, 0);
            outer->setGeometry(x, canvas.top() + frame, width, canvas.height() - 2 * frame);
        }
    }
}

void CurvesPlot::dress()
{
    const QPalette colours = palette();
    setCanvasBackground(colours.brush(QPalette::Base));
    for (int axis = 0; axis < axisCnt; ++axis)
        setAxisFont(axis, font());
    outerLeft_->setFont(font());
    outerRight_->setFont(font());
    QPalette ofCanvas = colours;
    ofCanvas.setColor(QPalette::WindowText,
                      between(colours.color(QPalette::WindowText), colours.color(QPalette::Window)));
    canvas()->setPalette(ofCanvas);
    for (QwtPlotItem* const item : itemList(QwtPlotItem::Rtti_PlotGrid)) {
        const QColor faint = between(between(colours.color(QPalette::Text), colours.color(QPalette::Base)),
                                     colours.color(QPalette::Base));
        static_cast<QwtPlotGrid*>(item)->setMajorPen(faint, 0, Qt::DotLine);
    }
}

void CurvesPlot::changeEvent(QEvent* event)
{
    QwtPlot::changeEvent(event);
    const bool changesLook = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (!changesLook || canvas() == nullptr)
        return;
    dress();
    refresh();
}

void CurvesPlot::keyPressEvent(QKeyEvent* event)
{
    ShownRecords& records = model_->records();
    const TimeSpan whole = records.wholeTime();
    const int current = records.current();
    const double moment = current >= 0 ? records.columns().times()[current] : 0;
    const double round = span().contains(moment) ? moment : (span().from + span().to) / 2;
    const bool isControl = event->modifiers().testFlag(Qt::ControlModifier);
    const auto lookAt = [&](const TimeSpan& next) { records.setInSight(next); };
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int way = event->key() == Qt::Key_Left ? -1 : 1;
        return isControl ? lookAt(moved(span(), way * kPanStep, whole)) : step(way);
    }
    case Qt::Key_PageUp:
        return lookAt(moved(span(), -1, whole));
    case Qt::Key_PageDown:
        return lookAt(moved(span(), 1, whole));
    case Qt::Key_Up:
    case Qt::Key_Down:
        return model_->setFocused(model_->focused() + (event->key() == Qt::Key_Up ? -1 : 1));
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return lookAt(zoomed(span(), kZoomStep, round, whole));
    case Qt::Key_Minus:
        return lookAt(zoomed(span(), 1 / kZoomStep, round, whole));
    case Qt::Key_0:
        if (isControl)
            return lookAt(whole);
        break;
    case Qt::Key_Home:
        return goTo(0);
    case Qt::Key_End:
        return goTo(records.byTime().size() - 1);
    case Qt::Key_A:
        return model_->setMoving(Cursor::a);
    case Qt::Key_B:
        return model_->setMoving(Cursor::b);
    case Qt::Key_Escape:
        if (model_->cursor(Cursor::b) >= 0)
            return model_->endCursorB();
        break;
    default:
        break;
    }
    QwtPlot::keyPressEvent(event);
}

void CurvesPlot::goTo(std::size_t place)
{
    ShownRecords& records = model_->records();
    if (place < records.byTime().size())
        records.setCurrent(records.byTime()[place]);
}

// By time; records of one moment follow each other as in the file.
void CurvesPlot::step(int way)
{
    ShownRecords& records = model_->records();
    const std::vector<int>& byTime = records.byTime();
    const std::vector<quint32>& times = records.columns().times();
    if (byTime.empty())
        return;
    const auto key = [&](int record) { return std::pair(times[record], record); };
    const auto place = std::ranges::lower_bound(byTime, key(records.current()), {}, key);
    const auto next = place - byTime.begin() + way;
    goTo(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, std::ssize(byTime) - 1)));
}

bool CurvesPlot::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != canvas() || (ownSpan_ && event->type() != QEvent::Resize))
        return QwtPlot::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
        return drag(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return release(static_cast<QMouseEvent&>(*event));
    case QEvent::Resize:
        // More room, more ticks.
        setAxes();
        return QwtPlot::eventFilter(watched, event);
    case QEvent::Wheel:
        return turn(static_cast<QWheelEvent&>(*event));
    case QEvent::ToolTip: {
        const auto& help = static_cast<QHelpEvent&>(*event);
        return showTip(help.pos(), help.globalPos());
    }
    default:
        return QwtPlot::eventFilter(watched, event);
    }
}

bool CurvesPlot::press(const QMouseEvent& event)
{
    const bool isPan = event.button() == Qt::MiddleButton ||
                       (event.button() == Qt::LeftButton && event.modifiers() & Qt::ShiftModifier);
    if (!isPan && event.button() != Qt::LeftButton)
        return false;
    setFocus(Qt::MouseFocusReason);
    drag_ = isPan ? Drag::pan : Drag::zoom;
    dragFrom_ = event.pos();
    dragSpan_ = span();
    return true;
}

bool CurvesPlot::drag(const QMouseEvent& event)
{
    if (drag_ == Drag::none)
        return false;
    const int way = event.x() - dragFrom_.x();
    if (drag_ == Drag::pan) {
        const double share = -double(way) / std::max(canvas()->width(), 1);
        model_->records().setInSight(moved(dragSpan_, share, model_->records().wholeTime()));
    } else if (rubber_ != nullptr || std::abs(way) >= QApplication::startDragDistance()) {
        if (rubber_ == nullptr)
            rubber_ = new QRubberBand(QRubberBand::Rectangle, canvas());
        rubber_->setGeometry(
            QRect(dragFrom_.x(), 0, way, canvas()->height()).normalized().intersected(canvas()->rect()));
        rubber_->show();
    }
    return true;
}

bool CurvesPlot::release(const QMouseEvent& event)
{
    const Drag ended = std::exchange(drag_, Drag::none);
    ShownRecords& records = model_->records();
    if (ended == Drag::zoom && rubber_ != nullptr) {
        const auto [from, to] =
            std::minmax({timeAtPixel(dragFrom_.x() + canvas()->x()), timeAtPixel(event.x() + canvas()->x())});
        records.setInSight(zoomed({from, to}, 1, (from + to) / 2, records.wholeTime()));
    } else if (ended == Drag::zoom) {
        records.setCurrent(records.nearestTo(timeAtPixel(event.x() + canvas()->x())));
    }
    delete std::exchange(rubber_, nullptr);
    return ended != Drag::none;
}

bool CurvesPlot::turn(const QWheelEvent& event)
{
    ShownRecords& records = model_->records();
    const QPoint angle = event.angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / kWheelNotch;
    const bool isPan = event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier) || angle.y() == 0;
    if (isPan)
        records.setInSight(moved(span(), -notches * kPanStep, records.wholeTime()));
    else
        records.setInSight(zoomed(span(), std::pow(kZoomStep, notches),
                                  timeAtPixel(event.position().x() + canvas()->x()), records.wholeTime()));
    return true;
}

bool CurvesPlot::showTip(const QPoint& place, const QPoint& global)
{
    constexpr int reach = 6;
    const std::vector<quint32>& times = model_->records().columns().times();
    const QwtScaleMap x = canvasMap(xBottom);
    QStringList texts;
    for (const FoundEvent& event : model_->records().found()) {
        if (std::abs(x.transform(times[event.record]) - place.x()) <= reach)
            texts << event.text;
    }
    QToolTip::showText(global, texts.join(QLatin1Char('\n')), canvas());
    return true;
}

} // namespace vlk
