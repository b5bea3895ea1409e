#include "telemetry/fuel_view/fuel_view.h"

#include "telemetry/fuel/level_noise.h"
#include "telemetry/fuel_view/fuel_sheet.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/fuel_view/list_buttons.h"
#include "telemetry/fuel_view/tank_button.h"
#include "typing/empty_note.h"
#include "typing/field_mark.h"
#include "typing/grid.h"
#include "typing/number_entry.h"
#include "typing/table_look.h"
#include "windows/named_widget.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr double kLeastLitres = 0.5;
constexpr double kMostLitres = 5000;
constexpr double kRoundEvent = 15 * 60; // seconds on either side
constexpr int kWidestVehicle = 160;

QDoubleSpinBox* litresBox(const char* name, QWidget* parent)
{
    auto* box = namedWidget<QDoubleSpinBox>(name, parent);
    box->setRange(kLeastLitres, kMostLitres);
    box->setDecimals(1);
    box->setKeyboardTracking(false);
    NumberEntry::join(box);
    return box;
}

QString shortText(double number)
{
    return numberText(number, number == std::trunc(number) ? 0 : 1);
}

} // namespace

FuelView::FuelView(ShownRecords* records, QWidget* parent, NoticeBar* bar)
    : QWidget(parent), records_(*records), model_(new FuelListModel(this)),
      handOver_(new HandOver(this, bar)), vehicleLabel_(new QLabel(this)),
      vehicle_(namedWidget<QLineEdit>("lineEdit_FuelVehicle", this)), tanks_(new TankButton(this)),
      riseLabel_(new QLabel(this)), rise_(litresBox("doubleSpinBox_FuelRise", this)),
      fallLabel_(new QLabel(this)), fall_(litresBox("doubleSpinBox_FuelFall", this)),
      buttons_(new ListButtons("Fuel", handOver_, this)),
      print_(namedWidget<QPushButton>("pushButton_PrintFuel", this)),
      news_(namedWidget<QLabel>("label_FuelNews", this)),
      table_(namedWidget<QTableView>("tableView_Fuel", this)), empty_(nullptr)
{
    setObjectName(QStringLiteral("widget_Fuel"));
    vehicle_->setMaximumWidth(kWidestVehicle);
    vehicleLabel_->setBuddy(vehicle_);
    riseLabel_->setBuddy(rise_);
    fallLabel_->setBuddy(fall_);
    news_->setWordWrap(true);
    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->installEventFilter(this);
    dressTable(table_, TableUse::Read);
    table_->horizontalHeader()->setStretchLastSection(true);
    empty_ = new EmptyNote(table_);
    const auto rowOf = [](const QWidgetList& left, const QWidgetList& right) {
        auto* row = new QHBoxLayout;
        row->setSpacing(vlk::grid::kColumn);
        for (QWidget* widget : left)
            row->addWidget(widget);
        row->addStretch();
        for (QWidget* widget : right)
            row->addWidget(widget);
        return row;
    };
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(vlk::grid::kAroundWindow);
    layout->setSpacing(vlk::grid::kRow);
    auto* tanks = new QHBoxLayout;
    tanks->setSpacing(vlk::grid::kColumn);
    tanks->addWidget(vehicleLabel_);
    tanks->addWidget(vehicle_);
    tanks->addWidget(tanks_, 1);
    layout->addLayout(tanks);
    layout->addLayout(rowOf({riseLabel_, rise_, fallLabel_, fall_}, {buttons_, print_}));
    layout->addWidget(news_);
    layout->addWidget(table_, 1);
    print_->setAutoDefault(false);
    buttons_->setList(table_, [this] { return model_->csv(); });

    connect(records, &ShownRecords::contentsChanged, this, [this] {
        table_->setCurrentIndex({});
        refreshLater();
    });
    connect(records, &ShownRecords::recordsAdded, this,
            [this] { tanks_->hasSensors() ? computeLitres() : refreshRecords(); });
    connect(vehicle_, &QLineEdit::editingFinished, this, &FuelView::readVehicle);
    connect(tanks_, &TankButton::chosen, this, &FuelView::computeLitres);
    connect(tanks_, &TankButton::tableSaved, handOver_, &HandOver::tellSaved);
    for (QDoubleSpinBox* box : {rise_, fall_})
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] {
            TankChoiceMemory choice = tanks_->memory().choice(vehicle_->text());
            choice.thresholds = {rise_->value(), fall_->value()};
            if (!isRefreshing_)
                tanks_->memory().setChoice(vehicle_->text(), choice);
            find();
        });
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& index) { look(index.row()); });
    connect(table_, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { zoom(index.row()); });
    connect(print_, &QPushButton::clicked, this,
            [this] { handOver_->print([this](QTextDocument& document) { writeSheet(document); }); });
    connect(empty_, &EmptyNote::pressed, tanks_, &QToolButton::showMenu);
    retranslate();
    refreshRecords();
}

void FuelView::setVehicle(const QString& vehicle)
{
    vehicle_->setText(vehicle);
    refreshLater();
}

void FuelView::setTitle(const QString& title)
{
    buttons_->setTitle(title);
}

void FuelView::setPictures(PaintSpan curve, PaintSpan track, CaptionOfSpan trackCaption)
{
    curve_ = std::move(curve);
    track_ = std::move(track);
    trackCaption_ = std::move(trackCaption);
}

void FuelView::readVehicle()
{
    if (!vehicle_->isModified())
        return;
    vehicle_->setModified(false);
    refreshRecords();
}

void FuelView::refreshRecords()
{
    takeSensors();
    computeLitres();
}

// Nothing was found while it is not looked for.
void FuelView::refreshLater()
{
    litres_.clear();
    beyond_.clear();
    medians_.clear();
    for (const LevelSensor& sensor : kLevelSensors)
        records_.later([this, &sensor] {
            if (records_.columns().areAny(sensor.item))
                records_.columns().numbers(sensor.item);
        });
    records_.later([this] { takeSensors(); });
    records_.later([this] { takeLitres(); });
    records_.later([this] { takeMedians(); });
    records_.later([this] { find(); });
}

void FuelView::takeSensors()
{
    isRefreshing_ = true;
    const FuelThresholds thresholds = tanks_->memory().choice(vehicle_->text()).thresholds;
    tanks_->setRecords(records_, vehicle_->text());
    rise_->setValue(thresholds.rise);
    fall_->setValue(thresholds.fall);
    isRefreshing_ = false;
}

void FuelView::computeLitres()
{
    takeLitres();
    takeMedians();
    find();
}

void FuelView::takeLitres()
{
    litres_ = tanks_->tanks().empty() ? NumberColumn() : tankLitres(records_.columns(), tanks_->tanks());
    beyond_.clear();
    for (const TankSensor& tank : tanks_->tanks())
        beyond_.push_back(readingsBeyond(records_.columns(), tank));
}

void FuelView::takeMedians()
{
    medians_ = litres_.empty() ? std::vector<LevelMedian>() : levelMedians(records_.columns(), litres_);
    noise_ = levelNoise(medians_);
}

void FuelView::find()
{
    if (isRefreshing_)
        return;
    std::vector<FuelEvent> events;
    if (!litres_.empty())
        events = findFuelEvents(records_.columns(), litres_, medians_, {rise_->value(), fall_->value()});
    setEvents(std::move(events));
    table_->resizeColumnsToContents();
    showState();
    Q_EMIT fuelChanged();
}

// The line that was chosen stays so, wherever the user has gone since.
void FuelView::setEvents(std::vector<FuelEvent> found)
{
    const QScopedValueRollback refreshing(isRefreshing_, true);
    const QModelIndex chosen = table_->currentIndex();
    const int record = chosen.isValid() ? events()[static_cast<std::size_t>(chosen.row())].record : -1;
    model_->set(std::move(found), tanks_->tanks(), records_.utcOffset());
    const auto line = std::ranges::find(events(), record, &FuelEvent::record);
    const bool isMoved = line != events().end() && line - events().begin() != table_->currentIndex().row();
    if (isMoved)
        table_->setCurrentIndex(model_->index(static_cast<int>(line - events().begin()), chosen.column()));
}

void FuelView::look(int line)
{
    if (line >= 0 && !isRefreshing_)
        records_.setCurrent(events()[static_cast<std::size_t>(line)].record);
}

void FuelView::zoom(int line)
{
    const FuelEvent& event = events()[static_cast<std::size_t>(line)];
    records_.setInSight({event.time - kRoundEvent, event.until + kRoundEvent});
    records_.setCurrent(event.record);
}

bool FuelView::eventFilter(QObject* watched, QEvent* event)
{
    const int line = table_->currentIndex().row();
    if (event->type() != QEvent::KeyPress || line < 0)
        return QWidget::eventFilter(watched, event);
    const auto& press = static_cast<const QKeyEvent&>(*event);
    const int key = press.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        zoom(line);
        return true;
    }
    // With Ctrl the table would go there and leave what is chosen, without it go along the line.
    if ((key == Qt::Key_Home || key == Qt::Key_End) && !press.modifiers().testFlag(Qt::ShiftModifier)) {
        const int end = key == Qt::Key_Home ? 0 : model_->rowCount() - 1;
        table_->selectionModel()->setCurrentIndex(model_->index(end, table_->currentIndex().column()),
                                                  QItemSelectionModel::ClearAndSelect |
                                                      QItemSelectionModel::Rows);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// Half an hour round the chosen event, or all that is in sight.
TimeSpan FuelView::spanOfSheet() const
{
    const int line = table_->currentIndex().row();
    if (line < 0)
        return records_.inSight();
    const FuelEvent& event = events()[static_cast<std::size_t>(line)];
    return {event.time - kRoundEvent, event.until + kRoundEvent};
}

void FuelView::writeSheet(QTextDocument& document) const
{
    const TimeSpan span = spanOfSheet();
    const TimeSpan whole = records_.wholeTime();
    writeFuelSheet(document, {vehicle_->text(),
                              tanks_->captions(),
                              {rise_->value(), fall_->value()},
                              news(),
                              events(),
                              records_.utcOffset(),
                              whole,
                              span,
                              curve_,
                              track_,
                              trackCaption_ ? trackCaption_(span) : QString()});
}

void FuelView::retranslate()
{
    vehicleLabel_->setText(tr("rec_257"));
    riseLabel_->setText(tr("rec_247"));
    fallLabel_->setText(tr("rec_248"));
    for (QDoubleSpinBox* box : {rise_, fall_}) {
        box->setLocale(QLocale());
        box->setSuffix(QLatin1Char(' ') + tr("abbr_026"));
    }
    buttons_->retranslate(tr("rec_263"));
    print_->setText(tr("rec_262"));
    table_->setAccessibleName(tr("rec_263"));
    tanks_->retranslate();
    model_->retranslate();
    table_->resizeColumnsToContents();
    showState();
}

QStringList FuelView::markLowThresholds() const
{
    QStringList texts;
    for (const auto& [label, box] : {std::pair(riseLabel_, rise_), std::pair(fallLabel_, fall_)}) {
        QString text;
        if (box->value() < noise_)
            text = tr("rec_400").arg(label->text(), numberText(box->value(), 1), numberText(noise_, 1));
        markField(box, MarkReason::Advice, Mark::Advice, text);
        if (!text.isEmpty())
            texts << text;
    }
    return texts;
}

// Readings for which the table of their tank has no volume of their own.
QStringList FuelView::tellReadingsBeyond() const
{
    QStringList texts;
    const std::vector<TankSensor>& tanks = tanks_->tanks();
    for (std::size_t i = 0; i < beyond_.size() && i < tanks.size(); ++i) {
        if (beyond_[i].beyond > 0)
            texts << tr("rec_473").arg(numberText(beyond_[i].beyond), numberText(beyond_[i].all),
                                       levelSensorCaption(*tanks[i].sensor));
    }
    return texts;
}

// Volumes that the table of their tank does not tell apart.
QStringList FuelView::tellBlindLevels() const
{
    QStringList texts;
    for (const TankSensor& tank : tanks_->tanks()) {
        QStringList blinds;
        for (const FuelCurve::Blind& blind : tank.blinds())
            blinds << QStringLiteral("%1: %2–%3")
                          .arg(shortText(blind.level), shortText(blind.least),
                               shortText(blind.most) + QChar::Nbsp + tr("abbr_026"));
        if (!blinds.isEmpty())
            texts << tr("rec_570").arg(levelSensorCaption(*tank.sensor), blinds.join(QLatin1String("; ")));
    }
    return texts;
}

// What is to be known of the list beside it.
QStringList FuelView::news() const
{
    QStringList news = tellReadingsBeyond() + tellBlindLevels() + markLowThresholds();
    if (const QString ofTable = tanks_->news(); !ofTable.isEmpty())
        news.prepend(ofTable);
    if (tanks_->tanks().empty())
        return news;
    if (const auto damaged = records_.columns().damaged().size(); damaged > 0)
        news << tr("rec_462").arg(QLocale().toString(static_cast<qulonglong>(damaged)));
    if (const auto strayed = records_.strayed().size(); strayed > 0)
        news << tr("rec_602").arg(QLocale().toString(static_cast<qulonglong>(strayed)));
    return news;
}

void FuelView::showState()
{
    const QStringList told = news();
    news_->setText(told.join(QLatin1Char('\n')));
    news_->setVisible(!told.isEmpty());
    const bool isAnyVolume = std::ranges::any_of(litres_, [](double each) { return !std::isnan(each); });
    if (!tanks_->tanks().empty())
        empty_->tell(tr(isAnyVolume ? "rec_256" : "rec_372"));
    else if (tanks_->hasSensors())
        empty_->tell(tr("rec_239"), tr("rec_251"));
    else
        empty_->tell(tr(records_.isBeingRead() ? "rec_371" : "rec_258"));
    buttons_->refresh();
    print_->setEnabled(model_->rowCount() > 0);
}

} // namespace vlk
