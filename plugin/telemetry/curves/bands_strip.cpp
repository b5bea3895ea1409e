#include "telemetry/curves/bands_strip.h"

#include "link/requests.h"
#include "telemetry/curves/curve_looks.h"
#include "telemetry/curves/curves_model.h"
#include "telemetry/curves/curves_plot.h"
#include "telemetry/curves/time_scale.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr int kWidestName = 150;
constexpr int kWidestOnPaper = 260; // where no tip has it whole
constexpr int kNameMargin = 6;
constexpr int kMarkReach = 4;
constexpr int kRowPadding = 3;
constexpr int kFewestRows = 1;

} // namespace

BandsStrip::BandsStrip(CurvesModel* model, CurvesPlot* plot, QWidget* parent)
    : QWidget(parent), model_(model), plot_(plot)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(model, &CurvesModel::changed, this, &BandsStrip::refresh);
    connect(model, &CurvesModel::cursorsChanged, this, qOverload<>(&QWidget::update));
    connect(plot, &CurvesPlot::laidOut, this, qOverload<>(&QWidget::update));
    refresh();
}

int BandsStrip::rowHeight() const
{
    return fontMetrics().ascent() + kRowPadding;
}

int BandsStrip::rowsInRoom() const
{
    return std::max(mostHeight_ / rowHeight(), kFewestRows);
}

// The first band, the engine for one, has its room before the marks.
int BandsStrip::markRowCount() const
{
    const int bands = model_->bands().empty() ? 0 : 1;
    return std::min(static_cast<int>(model_->marks().size()), rowsInRoom() - bands);
}

int BandsStrip::bandCount() const
{
    return std::min(static_cast<int>(model_->bands().size()), rowsInRoom() - markRowCount());
}

QStringList BandsStrip::leftOut() const
{
    QStringList titles;
    for (std::size_t band = static_cast<std::size_t>(bandCount()); band < model_->bands().size(); ++band)
        titles << model_->bands()[band].title;
    for (auto row = static_cast<std::size_t>(markRowCount()); row < model_->marks().size(); ++row)
        titles << model_->marks()[row].title;
    return titles;
}

void BandsStrip::setMostHeight(int height)
{
    mostHeight_ = height;
    updateGeometry();
    update();
}

QSize BandsStrip::sizeHint() const
{
    return {0, (bandCount() + markRowCount()) * rowHeight()};
}

QSize BandsStrip::minimumSizeHint() const
{
    return sizeHint();
}

void BandsStrip::refresh()
{
    int width = 0;
    const auto fit = [&](const QString& name) {
        width = std::max(width, fontMetrics().horizontalAdvance(name));
    };
    for (const Band& band : model_->bands())
        fit(band.title);
    for (const MarkRow& row : model_->marks())
        fit(row.title);
    plot_->setLeftWidth(
        width == 0 ? 0 : std::min(width, plot_->isPaper() ? kWidestOnPaper : kWidestName) + kNameMargin);
    updateGeometry();
    update();
}

void BandsStrip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        refresh();
}

void BandsStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect canvas = plot_->canvasPlace();
    QRect row(canvas.left(), 0, canvas.width(), rowHeight());
    const QRect names(0, 0, canvas.left() - kNameMargin, rowHeight());
    const auto paintName = [&](const QString& name) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(names.translated(0, row.top()), Qt::AlignRight | Qt::AlignVCenter,
                         // Lines and sensors of a kind differ at the end.
                         fontMetrics().elidedText(name, Qt::ElideMiddle, names.width()));
    };
    for (int band = 0; band < bandCount(); ++band) {
        paintName(model_->bands()[band].title);
        paintBand(painter, row, band);
        row.translate(0, rowHeight());
    }
    for (std::size_t marks = 0; marks < static_cast<std::size_t>(markRowCount()); ++marks) {
        paintName(model_->marks()[marks].title);
        paintMarks(painter, row, marks);
        row.translate(0, rowHeight());
    }
    paintCursors(painter);
}

// A pixel is on where the state was on at some moment of it, so that no short one is lost.
void BandsStrip::paintBand(QPainter& painter, const QRect& row, int band) const
{
    const StateRuns& runs = *model_->bands()[band].runs;
    const QColor on = bandColor(palette());
    const QRect bar = row.adjusted(0, 3, 0, -3);
    const int middle = bar.center().y();
    const double perPixel = (plot_->span().to - plot_->span().from) / std::max(row.width(), 1);
    const auto isOn = [&](const std::vector<StateRuns::Run>& all, int x) {
        const double from = plot_->span().from + (x - row.left()) * perPixel;
        return StateRuns::isAny(all, from, from + perPixel);
    };
    const auto paintRuns = [&](const std::vector<StateRuns::Run>& all, int top, int height,
                               const QColor& colour) {
        for (int x = row.left(); x <= row.right();) {
            const int from = x;
            const bool state = isOn(all, x);
            while (x <= row.right() && isOn(all, x) == state)
                ++x;
            if (state)
                painter.fillRect(from, top, x - from, height, colour);
        }
    };
    paintRuns(runs.known, middle, 1, on);
    paintRuns(runs.on, bar.top(), bar.height(), on);
}

void BandsStrip::paintMarks(QPainter& painter, const QRect& row, std::size_t marks) const
{
    const std::vector<quint32>& times = model_->records().columns().times();
    const std::vector<int>& records = model_->marks()[marks].records;
    const auto timeOfRecord = [&](int record) { return static_cast<double>(times[record]); };
    painter.save();
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    painter.setBrush(palette().color(marks == 0 ? QPalette::WindowText : QPalette::Base));
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = row.center().y() + 0.5;
    auto record = std::ranges::lower_bound(records, plot_->span().from, {}, timeOfRecord);
    while (record != records.end() && timeOfRecord(*record) <= plot_->span().to) {
        const double x = std::round(plot_->xOf(timeOfRecord(*record))) + 0.5;
        if (marks > 0 || !foundAt(*record))
            painter.drawPolygon(QPolygonF({{x, middle - kMarkReach},
                                           {x + kMarkReach - 1, middle},
                                           {x, middle + kMarkReach},
                                           {x - kMarkReach + 1, middle}}));
        // The next one that is drawn at another pixel.
        record =
            std::ranges::lower_bound(record, records.end(), plot_->timeAtPixel(x + 0.5), {}, timeOfRecord);
    }
    painter.restore();
    if (marks == 0)
        paintFound(painter, row);
}

// Among the events, of which they are the first row.
void BandsStrip::paintFound(QPainter& painter, const QRect& row) const
{
    const std::vector<quint32>& times = model_->records().columns().times();
    for (const FoundEvent& event : model_->records().found()) {
        const double time = times[event.record];
        if (plot_->span().contains(time))
            paintFoundEvent(
                painter, event.isRise,
                {std::round(plot_->xOf(time)) + 0.5, event.isRise ? row.top() + 1.0 : row.bottom()},
                palette());
    }
}

const FoundEvent* BandsStrip::foundAt(int record) const
{
    const std::vector<FoundEvent>& all = model_->records().found();
    const auto event = std::ranges::find(all, record, &FoundEvent::record);
    return event == all.end() ? nullptr : &*event;
}

void BandsStrip::paintCursors(QPainter& painter) const
{
    const std::vector<quint32>& times = model_->records().columns().times();
    for (const Cursor which : {Cursor::A, Cursor::B}) {
        const int record = model_->cursor(which);
        if (record < 0 || times[record] == 0 || !plot_->span().contains(times[record]))
            continue;
        const double x = std::round(plot_->xOf(times[record]));
        painter.setPen(QPen(palette().color(QPalette::WindowText), which == model_->moving() ? 2 : 1,
                            which == Cursor::A ? Qt::SolidLine : Qt::DashLine));
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
    }
}

int BandsStrip::markAt(const QPoint& place) const
{
    const int row = place.y() / rowHeight() - bandCount();
    if (row < 0 || row >= markRowCount())
        return -1;
    const std::vector<quint32>& times = model_->records().columns().times();
    const std::vector<int>& records = model_->marks()[row].records;
    // The arrows lie on top, the last one highest.
    if (row == 0) {
        const std::vector<FoundEvent>& arrows = model_->records().found();
        const auto isHit = [&](const FoundEvent& event) {
            return std::abs(plot_->xOf(times[event.record]) - place.x()) <= kMarkReach;
        };
        const auto hit = std::find_if(arrows.rbegin(), arrows.rend(), isHit);
        if (hit != arrows.rend())
            return hit->record;
    }
    const double from = plot_->timeAtPixel(place.x() - kMarkReach);
    const auto found = std::ranges::lower_bound(
        records, from, {}, [&](int record) { return static_cast<double>(times[record]); });
    const bool isThere =
        found != records.end() && times[*found] <= plot_->timeAtPixel(place.x() + kMarkReach);
    return isThere ? *found : -1;
}

void BandsStrip::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || event->x() < plot_->canvasPlace().left())
        return QWidget::mousePressEvent(event);
    const int mark = markAt(event->pos());
    if (mark >= 0)
        model_->records().setCurrent(mark);
    else
        plot_->goToPixel(event->x());
    plot_->setFocus(Qt::MouseFocusReason);
}

QString BandsStrip::tipAt(const QPoint& place) const
{
    const std::vector<quint32>& times = model_->records().columns().times();
    const qint32 offset = model_->records().utcOffset();
    const int band = place.y() / rowHeight();
    if (place.x() < plot_->canvasPlace().left())
        return band < bandCount() ? model_->bands()[band].title : QString();
    if (const int mark = markAt(place); mark >= 0) {
        const FoundEvent* const found = foundAt(mark);
        const QString event =
            found ? found->text
                  : requests::eventText(static_cast<int>(model_->records().columns().codes()[mark]));
        return momentText(times[mark], offset) + QLatin1Char(' ') + event;
    }
    if (QString gap = plot_->gapText(place.x()); band >= bandCount() || !gap.isEmpty())
        return gap;
    const double moment = plot_->timeAtPixel(place.x());
    const std::vector<StateRuns::Run>& runs = model_->bands()[band].runs->on;
    const auto run = std::ranges::lower_bound(
        runs, moment, {}, [](const StateRuns::Run& each) { return static_cast<double>(each.to); });
    if (run == runs.end() || run->from > moment)
        return {};
    return QStringLiteral("%1: %2 – %3 (%4)")
        .arg(model_->bands()[band].title, momentText(run->from, offset),
             momentText(run->to, run->from, offset), durationText(static_cast<double>(run->to) - run->from));
}

bool BandsStrip::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    QToolTip::showText(help.globalPos(), tipAt(help.pos()), this);
    return true;
}

} // namespace vlk
