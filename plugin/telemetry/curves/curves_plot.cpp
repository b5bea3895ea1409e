#include "telemetry/curves/curves_plot.h"

#include "telemetry/curves/curves_drawing.h"
#include "telemetry/curves/curves_navigation.h"
#include "telemetry/curves/time_scale.h"
#include "telemetry/files/record_gaps.h"
#include "typing/kept_palette.h"

#include <QCursor>
#include <QEvent>
#include <QLocale>
#include <QToolTip>

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

constexpr int kValueTicks = 5;
constexpr int kLeastTitleRoom = 80; // less cuts titles to nothing

// The title of an axis, in two lines where one is too long for the room.
QString titleIn(int room, const QString& title, const QFontMetrics& metrics)
{
    const auto fits = [&](const QString& line) { return metrics.horizontalAdvance(line) <= room; };
    if (fits(title))
        return title;
    if (room < kLeastTitleRoom)
        return {};
    for (int blank = title.lastIndexOf(QLatin1Char(' ')); blank > 0;
         blank = title.lastIndexOf(QLatin1Char(' '), blank - 1)) {
        if (fits(title.left(blank)) && fits(title.mid(blank + 1)))
            return title.left(blank) + QLatin1Char('\n') + title.mid(blank + 1);
    }
    return metrics.elidedText(title, Qt::ElideRight, room);
}

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
    // What is 0 all the time stands at the foot, not in the middle of values that a speed cannot have.
    if (least == 0 && greatest == 0)
        greatest = 1;
    QwtLinearScaleEngine engine;
    engine.setMargins(0, 0);
    double step = 0;
    engine.autoScale(most, least, greatest, step);
    return engine.divideScale(least, greatest, most, 2, step);
}

} // namespace

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
    setCanvas(canvas);
    canvas->installEventFilter(this);
    if (!isPaper())
        new CurvesNavigation(model, this);
    setAxisScaleDraw(xBottom, new TimeScaleDraw(&tickStep_, model->records()));
    plotLayout()->setAlignCanvasToScales(true);
    plotLayout()->setSpacing(2);
    auto* const grid = new QwtPlotGrid;
    grid->attach(this);
    (new CurvesDrawing(*this))->attach(this);
    dress();
    connect(model, &CurvesModel::changed, this, &CurvesPlot::refresh);
    connect(model, &CurvesModel::cursorsChanged, this, [this] { this->canvas()->update(); });
    if (!isPaper())
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

void CurvesPlot::goToPixel(double x)
{
    ShownRecords& records = model_->records();
    const int record = records.nearestInSight(timeAtPixel(x));
    if (record >= 0)
        return records.setCurrent(record);
    if (const auto round = recordsRound(span().from))
        QToolTip::showText(QCursor::pos(), noRecordsText(*round), this);
}

std::optional<CurvesPlot::Between> CurvesPlot::recordsRound(double time) const
{
    ShownRecords& records = model_->records();
    const std::vector<int>& byTime = records.byTime();
    const auto timeOf = [&](int each) { return static_cast<double>(records.columns().times()[each]); };
    const auto behind = std::ranges::lower_bound(byTime, time, {}, timeOf);
    if (behind == byTime.begin() || behind == byTime.end())
        return {};
    return Between{behind[-1], *behind};
}

QString CurvesPlot::noRecordsText(const Between& records) const
{
    const qint32 offset = model_->records().utcOffset();
    const RecordGaps gaps(model_->records().columns());
    const quint32 from = gaps.times()[records.before];
    const quint32 to = gaps.times()[records.behind];
    QString text = tr("rec_450").arg(momentText(from, offset), momentText(to, from, offset));
    if (const quint32 missing = gaps.missingBetween(records.before, records.behind); missing > 0)
        text += QLatin1Char(' ') + tr("rec_600").arg(QLocale().toString(missing));
    return text;
}

QString CurvesPlot::gapText(double x) const
{
    const auto round = recordsRound(timeAtPixel(x));
    const bool isGap =
        round && RecordGaps(model_->records().columns()).areApart(round->before, round->behind);
    return isGap ? noRecordsText(*round) : QString();
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
    TimeTicks ticks;
    // Without a moment there is no time to tell.
    if (!model_->records().byTime().empty())
        ticks = timeTicks(span, canvas()->width() / labelWidth, model_->records().utcOffset());
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
    QString name = isUsed ? model_->axes()[axis] : QString();
    // Turned aside, a lone letter "l" would be a dash.
    if (name == tr("abbr_026"))
        name = tr("rec_246");
    QwtText title(titleIn(canvas()->height(), name, metrics));
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
    setContentsMargins(fittingMargins());
    updateLayout();
}

QMargins CurvesPlot::fittingMargins() const
{
    const auto widthOf = [](const QwtScaleWidget* axis) {
        return axis->isVisibleTo(axis->parentWidget()) ? axis->sizeHint().width() : 0;
    };
    const int outer = widthOf(outerLeft_);
    const int inner = axisEnabled(yLeft) ? axisWidget(yLeft)->sizeHint().width() : 0;
    return {std::max(outer, leftWidth_ - inner), 0, widthOf(outerRight_), 0};
}

void CurvesPlot::updateLayout()
{
    QwtPlot::updateLayout();
    placeOuterAxes();
    Q_EMIT laidOut();
}

// Lays these axes out like those of the plot itself, but further out.
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
    // Labels end at their digits, but a comma hangs lower: cut off at the end of an axis it would be a point.
    const QFontMetrics metrics(font());
    const int room = metrics.ascent() / 2 + metrics.descent();
    for (const int axis : {yLeft, yRight})
        axisWidget(axis)->setMinBorderDist(room, room);
    outerLeft_->setFont(font());
    outerRight_->setFont(font());
    QPalette ofCanvas = colours;
    // The frame tells where keys go.
    ofCanvas.setColor(QPalette::WindowText, hasFocus() ? colours.color(QPalette::Highlight)
                                                       : between(colours.color(QPalette::WindowText),
                                                                 colours.color(QPalette::Window)));
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
    if (!changesLook || !canvas())
        return;
    dress();
    refresh();
}

void CurvesPlot::focusInEvent(QFocusEvent* event)
{
    QwtPlot::focusInEvent(event);
    dress();
}

void CurvesPlot::focusOutEvent(QFocusEvent* event)
{
    QwtPlot::focusOutEvent(event);
    dress();
}

// More room, more ticks, and titles that leave other room on the left.
bool CurvesPlot::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == canvas() && event->type() == QEvent::Resize) {
        setAxes();
        if (fittingMargins() != contentsMargins())
            fitMargins();
    }
    return QwtPlot::eventFilter(watched, event);
}

} // namespace vlk
