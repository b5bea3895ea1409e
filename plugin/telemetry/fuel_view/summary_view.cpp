#include "telemetry/fuel_view/summary_view.h"

#include "telemetry/curves/hand_over.h"
#include "telemetry/fuel_view/list_buttons.h"
#include "telemetry/fuel_view/summary_model.h"
#include "typing/empty_note.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "windows/named_widget.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include <algorithm>

namespace vlk {

namespace {

constexpr const char* kOver[] = {"rec_271", "rec_272", "rec_410", "rec_273"};

} // namespace

SummaryView::SummaryView(ShownRecords* records, QWidget* parent, NoticeBar* bar)
    : QWidget(parent), records_(*records), model_(new SummaryModel(this)), overLabel_(new QLabel(this)),
      over_(namedWidget<QComboBox>("comboBox_SummaryOver", this)),
      buttons_(new ListButtons("Summary", new HandOver(this, bar), this)),
      table_(namedWidget<QTableView>("tableView_Summary", this)), empty_(nullptr)
{
    setObjectName(QStringLiteral("widget_Summary"));
    overLabel_->setBuddy(over_);
    for (const char* key : kOver)
        over_->addItem(QLatin1String(key));
    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    dressTable(table_, TableUse::Read);
    empty_ = new EmptyNote(table_);
    auto* head = new QHBoxLayout;
    head->setSpacing(vlk::grid::kColumn);
    head->addWidget(overLabel_);
    head->addWidget(over_);
    head->addStretch();
    head->addWidget(buttons_);
    buttons_->setList(table_, [this] { return model_->csv(); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(vlk::grid::kAroundWindow);
    layout->setSpacing(vlk::grid::kRow);
    layout->addLayout(head);
    layout->addWidget(table_, 1);

    connect(records, &ShownRecords::contentsChanged, this, [this] {
        litres_.clear();
        events_.clear();
        forget();
    });
    connect(records, &ShownRecords::inSightChanged, this, &SummaryView::refresh);
    connect(records, &ShownRecords::passingChanged, this, &SummaryView::refresh);
    connect(records, &ShownRecords::chosenChanged, this, &SummaryView::refresh);
    connect(over_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &SummaryView::refresh);
    retranslate();
}

void SummaryView::setFuel(const NumberColumn& litres, const std::vector<FuelEvent>& events)
{
    // None as before: what was summed up of the same records stays, half a second of work on a million.
    const bool isNone = litres.empty() && litres_.empty() && events.empty() && events_.empty();
    if (isNone && summedUp_ == records_.records().size())
        return;
    litres_ = litres;
    events_ = events;
    forget();
}

void SummaryView::forget()
{
    journey_.reset();
    making_.reset();
    refresh();
}

void SummaryView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

// From the earliest to the latest of them.
TimeSpan SummaryView::spanOf(const std::vector<int>& records) const
{
    const std::vector<quint32>& times = records_.columns().times();
    TimeSpan span{1, 0};
    for (const int record : records) {
        const double time = times[static_cast<std::size_t>(record)];
        if (time != 0)
            span = span.from > span.to ? TimeSpan{time, time}
                                       : TimeSpan{std::min(span.from, time), std::max(span.to, time)};
    }
    return span;
}

void SummaryView::tellEmpty()
{
    const bool isToBeChosen = over_->currentIndex() == Chosen && records_.chosen().empty();
    empty_->tell(tr(records_.isBeingRead() || making_ ? "rec_371" : isToBeChosen ? "rec_411" : "rec_293"));
}

// Shown once it is made, unless another one is asked for meanwhile.
void SummaryView::makeJourney()
{
    if (making_)
        return;
    making_ = std::make_shared<Journey>();
    summedUp_ = records_.records().size();
    model_->setSelection({}, records_.utcOffset());
    tellEmpty();
    for (auto& step : making_->stepsToMake(records_.columns(), litres_, events_))
        records_.later([making = std::weak_ptr(making_), step = std::move(step)] {
            if (const auto journey = making.lock())
                step();
        });
    records_.later([this, making = std::weak_ptr(making_)] {
        if (const auto journey = making.lock()) {
            journey_ = std::exchange(making_, nullptr);
            refresh();
        }
    });
}

void SummaryView::refresh()
{
    if (!isVisible())
        return;
    tellEmpty();
    if (!journey_)
        return makeJourney();
    const int over = over_->currentIndex();
    if (over == Days) {
        model_->setDays(journey_->days(records_.utcOffset()), records_.utcOffset());
    } else {
        const TimeSpan span = over == Passing  ? spanOf(records_.passing())
                              : over == Chosen ? spanOf(records_.chosen())
                                               : records_.inSight();
        model_->setSelection(journey_->summary(span.from, span.to), records_.utcOffset());
    }
    table_->resizeColumnsToContents();
    buttons_->refresh();
}

void SummaryView::setTitle(const QString& title)
{
    buttons_->setTitle(title);
}

void SummaryView::retranslate()
{
    overLabel_->setText(tr("rec_270"));
    for (int i = 0; i < over_->count(); ++i)
        over_->setItemText(i, tr(kOver[i]));
    buttons_->retranslate(tr("rec_292"));
    table_->setAccessibleName(tr("rec_292"));
    tellEmpty();
    model_->retranslate();
    table_->resizeColumnsToContents();
}

} // namespace vlk
