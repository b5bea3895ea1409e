#include "telemetry/track/track_view.h"

#include "telemetry/curves/hand_over.h"
#include "telemetry/curves/time_scale.h"
#include "telemetry/track/track_canvas.h"
#include "telemetry/track/track_model.h"
#include "typing/grid.h"
#include "windows/named_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineF>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kPlaceDecimals = 6;
constexpr int kTitleHeight = 30;
constexpr const char* kMinutes = "dd.MM.yyyy HH:mm";
// Metres. A part of the track within less shows how the vehicle came there and left, up to so far away.
constexpr double kLeastSurroundings = 1000;
constexpr double kWidestSurroundings = 3000;

struct TrackPart
{
    TimeSpan around; // with the way there and from there
    QRectF bounds;
};

TrackPart partIn(const TrackPath& path, const TimeSpan& span)
{
    const TrackPath::Points points = path.points();
    const auto count = static_cast<int>(points.size());
    TrackPart part{span, {}};
    const auto take = [&](int point, bool isFirst) {
        unite(part.bounds, path.place(point), isFirst);
        const double time = points[point].time;
        part.around = {std::min(part.around.from, time), std::max(part.around.to, time)};
    };
    if (count == 0)
        return part;
    int byThen = 0;
    int first = -1;
    int last = -1;
    for (int point = 0; point < count; ++point) {
        const double time = points[point].time;
        if (time <= span.to)
            byThen = point;
        if (!span.contains(time))
            continue;
        take(point, last < 0);
        first = first < 0 ? point : first;
        last = point;
    }
    if (last < 0)
        take(first = last = byThen, true);
    const auto extent = [&part] { return std::max(part.bounds.width(), part.bounds.height()); };
    if (extent() >= kLeastSurroundings)
        return part;
    const QPointF middle = part.bounds.center();
    for (const int step : {-1, 1}) {
        double away = 0;
        for (int point = step < 0 ? first - 1 : last + 1;
             point >= 0 && point < count && away < kLeastSurroundings / 2; point += step) {
            away = QLineF(middle, path.place(point)).length();
            if (away > kWidestSurroundings)
                break;
            take(point, false);
        }
    }
    const double missing = std::max(kLeastSurroundings - extent(), 0.0) / 2;
    part.bounds.adjust(-missing, -missing, missing, missing);
    return part;
}

} // namespace

TrackView::TrackView(ShownRecords* records, QWidget* parent, NoticeBar* bar)
    : QWidget(parent), records_(records), model_(new TrackModel(records, this)),
      handOver_(new HandOver(this, bar)), columnsLabel_(new QLabel(this)),
      columns_(namedWidget<QComboBox>("comboBox_TrackValue", this)),
      spanOnly_(namedWidget<QCheckBox>("checkBox_TrackSpanOnly", this)),
      fit_(namedWidget<QPushButton>("pushButton_FitTrack", this)),
      handOverMenu_(namedWidget<QPushButton>("pushButton_HandOverTrack", this)),
      canvas_(new TrackCanvas(model_, this)), place_(namedWidget<QLabel>("label_TrackPlace", this))
{
    canvas_->setObjectName(QStringLiteral("canvas_Track"));
    columnsLabel_->setBuddy(columns_);
    columns_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    place_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (QPushButton* const button : {fit_, handOverMenu_})
        button->setAutoDefault(false);
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(vlk::grid::kAroundWindow);
    layout->setHorizontalSpacing(vlk::grid::kColumn);
    layout->setVerticalSpacing(vlk::grid::kRow);
    layout->addWidget(columnsLabel_, 0, 0);
    layout->addWidget(columns_, 0, 1);
    layout->addWidget(fit_, 0, 2);
    layout->addWidget(handOverMenu_, 0, 3);
    layout->addWidget(canvas_, 1, 0, 1, 4);
    auto* const below = new QHBoxLayout;
    below->setSpacing(vlk::grid::kColumn);
    below->addWidget(place_, 1);
    below->addWidget(spanOnly_);
    layout->addLayout(below, 2, 0, 1, 4);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);
    setFocusProxy(canvas_);
    setTabOrder(canvas_, spanOnly_);

    connect(columns_, qOverload<int>(&QComboBox::activated), this, &TrackView::showColumn);
    connect(spanOnly_, &QCheckBox::toggled, model_, &TrackModel::setSpanOnly);
    connect(fit_, &QPushButton::clicked, canvas_, &TrackCanvas::fit);
    connect(model_, &TrackModel::restarted, this, &TrackView::fillColumns);
    connect(records, &ShownRecords::computedChanged, this, &TrackView::fillColumns);
    connect(records, &ShownRecords::currentChanged, this, &TrackView::showPlace);
    connect(model_, &TrackModel::restarted, this, &TrackView::showPlace);
    connect(model_, &TrackModel::changed, this, &TrackView::showPlace);
    retranslate();
}

void TrackView::setTitle(const QString& title)
{
    title_ = title;
}

void TrackView::retranslate()
{
    columnsLabel_->setText(tr("rec_196"));
    spanOnly_->setText(tr("rec_197"));
    fit_->setText(tr("rec_198"));
    handOverMenu_->setText(tr("rec_182"));
    canvas_->setAccessibleName(tr("rec_199"));
    canvas_->setWhatsThis(tr("rec_200"));
    delete handOverMenu_->menu();
    auto* const menu = new QMenu(handOverMenu_);
    const auto painted = [this](QPainter& painter, const QSize& size) { paintInSight(painter, size); };
    menu->addAction(tr("rec_187"), this, [this, painted] {
        handOver_->askPicture(QStringLiteral("%1 %2").arg(title_, tr("rec_199")).trimmed(), painted);
    });
    menu->addAction(tr("rec_189"), this, [this, painted] { handOver_->print(painted); });
    handOverMenu_->setMenu(menu);
    model_->retranslate();
    fillColumns();
    showPlace();
    canvas_->update();
}

void TrackView::fillColumns()
{
    columns_->clear();
    for (const CurveColumn& column : curveColumns(*records_))
        columns_->addItem(withUnit(column), column.name);
    columns_->setCurrentIndex(model_->column() ? columns_->findData(model_->column()->name) : -1);
}

void TrackView::showColumn(int index)
{
    model_->setColumn(curveColumns(*records_)[index]);
}

// "55.123456 37.123456  62 km/h" of the record that is looked at.
void TrackView::showPlace()
{
    QString text;
    const int record = records_->current();
    const int point = model_->path().pointOf(record);
    if (point >= 0 && model_->path().points()[point].record == record) {
        const TrackPoint& at = model_->path().points()[point];
        text = QLocale::c().toString(at.latitude, 'f', kPlaceDecimals) + QLatin1String(", ") +
               QLocale::c().toString(at.longitude, 'f', kPlaceDecimals);
        if (model_->column())
            text += QLatin1String("   ") + valueText(*model_->column(), model_->valueAt(record));
    } else if (record >= 0) {
        text = tr(model_->isBeingMade() ? "rec_371" : "rec_201");
    }
    place_->setText(text);
    canvas_->setAccessibleDescription(text);
}

void TrackView::paintInSight(QPainter& painter, const QSize& size) const
{
    const TimeSpan span = model_->isSpanOnly() ? records_->inSight() : records_->wholeTime();
    const qint32 offset = records_->utcOffset();
    painter.setPen(Qt::black);
    painter.drawText(
        QRect(0, 0, size.width(), kTitleHeight), Qt::AlignCenter,
        QStringLiteral("%1   %2 – %3, %4")
            .arg(title_, momentText(span.from, offset), momentText(span.to, offset), zoneText(offset))
            .trimmed());
    painter.translate(0, kTitleHeight);
    const QSizeF room(size.width(), size.height() - kTitleHeight);
    const TimeSpan shown = model_->shownTime();
    paintTrack(painter, room, *model_, canvas_->sightIn(room), shown, shown, paperPalette());
}

void TrackView::paint(QPainter& painter, const QSize& size, const TimeSpan& span) const
{
    const TrackPart part = partIn(model_->path(), span);
    paintTrack(painter, size, *model_, sightOf(part.bounds, size), span, part.around, paperPalette());
}

QString TrackView::caption(const TimeSpan& span) const
{
    const qint32 offset = records_->utcOffset();
    const auto told = [offset](const TimeSpan& time) {
        const auto minute = [offset](double moment, const char* form) {
            return momentText(static_cast<qint64>(moment), offset, form);
        };
        const bool isOneDay = minute(time.from, "dd.MM.yyyy") == minute(time.to, "dd.MM.yyyy");
        return QStringLiteral("%1 – %2").arg(minute(time.from, kMinutes),
                                             minute(time.to, isOneDay ? "HH:mm" : kMinutes));
    };
    QString text = QStringLiteral("%1: %2, %3").arg(tr("rec_199"), told(span), zoneText(offset));
    const TimeSpan around = partIn(model_->path(), span).around;
    if (around == span)
        return text;
    const std::vector<quint32>& times = records_->columns().times();
    QStringList stands;
    for (const Stop& stop : model_->stops()) {
        const TimeSpan stood{static_cast<double>(times[stop.first]), static_cast<double>(times[stop.last])};
        if (stood.to >= span.from && stood.from <= span.to)
            stands << told(stood);
    }
    if (!stands.empty())
        text += QLatin1String("; ") + tr("rec_740").arg(stands.join(QLatin1String(", ")));
    return text + QLatin1String("; ") + tr("rec_741").arg(told(around));
}

void TrackView::saveTo(const QString& path)
{
    handOver_->savePicture(path,
                           [this](QPainter& painter, const QSize& size) { paintInSight(painter, size); });
}

} // namespace vlk
