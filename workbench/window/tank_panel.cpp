#include "window/tank_panel.h"

#include "tracker/simulated_tracker.h"
#include "tracker/tank.h"
#include "typing/grid.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace workbench {

namespace {

constexpr int kRefreshMs = 500;
constexpr int kPourLitres[] = {10, 20, 50};

// By TankShape.
constexpr const char* kShapes[] = {"wb_tank_box", "wb_tank_cylinder", "wb_tank_saddle"};

} // namespace

TankPanel::TankPanel(tracker::SimulatedTracker& tracker, QWidget* parent)
    : QGroupBox(parent), tracker_(tracker), tank_(new QComboBox(this)), shape_(new QLabel(this)),
      filling_(new QProgressBar(this)), litres_(new QLabel(this)), reading_(new QLabel(this))
{
    texts_.bind(static_cast<QGroupBox*>(this), "wb_tanks");
    auto* grid = new QGridLayout(this);
    tank_->setObjectName(QStringLiteral("comboBox_Tank"));
    for (const tracker::Tank& tank : tracker::kTanks)
        tank_->addItem(QLatin1String(tank.sensor));
    texts_.bind([this] { tank_->setAccessibleName(text("wb_tank_choice")); });
    filling_->setTextVisible(false);
    filling_->setMaximumHeight(fontMetrics().height());
    reading_->setObjectName(QStringLiteral("label_TankReading"));
    // The panel must not widen the window beyond small screens.
    for (QLabel* label : {shape_, litres_, reading_})
        label->setMinimumWidth(1);
    auto* kind = new QHBoxLayout;
    kind->setSpacing(vlk::grid::kColumn);
    kind->addWidget(tank_);
    kind->addWidget(shape_, 1);
    grid->addLayout(kind, 0, 0, 1, 2);
    grid->addWidget(filling_, 1, 0, 1, 2);
    grid->addWidget(litres_, 2, 0, 1, 2);
    grid->addWidget(reading_, 3, 0, 1, 2);

    constexpr int firstButtons = 4;
    int place = 0;
    const auto addButton = [&](const QString& name) {
        auto* button = new QPushButton(this);
        button->setObjectName(name);
        // Enter in a field of the faults beside it pours nothing.
        button->setAutoDefault(false);
        grid->addWidget(button, firstButtons + place / 2, place % 2);
        ++place;
        return button;
    };
    for (const int litres : kPourLitres) {
        auto* button = addButton(QStringLiteral("pushButton_Pour_%1").arg(litres));
        texts_.bind([button, litres] { button->setText(text("wb_tank_pour").arg(litres)); });
        connect(button, &QPushButton::clicked, this, [this, litres] { pour(litres); });
    }
    auto* drain = texts_.bind(addButton(QStringLiteral("pushButton_Drain")), "wb_tank_drain");
    connect(drain, &QPushButton::clicked, this, [this] { pour(-tracker::kTanks[chosen()].litres); });

    connect(tank_, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TankPanel::refresh);
    connect(&timer_, &QTimer::timeout, this, &TankPanel::refresh);
}

int TankPanel::tank() const
{
    return tank_->currentIndex();
}

void TankPanel::setTank(int tank)
{
    if (tank >= 0 && tank < tank_->count())
        tank_->setCurrentIndex(tank);
}

std::size_t TankPanel::chosen() const
{
    return static_cast<std::size_t>(tank_->currentIndex());
}

void TankPanel::pour(double litres)
{
    tracker_.pour(chosen(), litres);
    refresh();
}

void TankPanel::refresh()
{
    const tracker::Tank& tank = tracker::kTanks[chosen()];
    const double litres = tracker_.fuelIn(chosen());
    shape_->setText(text(kShapes[static_cast<int>(tank.shape)]));
    filling_->setMaximum(qRound(tank.litres));
    filling_->setValue(qRound(litres));
    litres_->setText(text("wb_tank_litres").arg(litres, 0, 'f', 0).arg(tank.litres));
    reading_->setText(text(tank.analogue ? "wb_tank_volts" : "wb_tank_code")
                          .arg(tracker_.fuelReading(chosen()), 0, 'f', 0));
    for (QLabel* label : {shape_, litres_, reading_})
        label->setToolTip(label->text());
}

void TankPanel::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        texts_.apply();
        if (isVisible())
            refresh();
    }
}

void TankPanel::showEvent(QShowEvent* event)
{
    QGroupBox::showEvent(event);
    refresh();
    timer_.start(kRefreshMs);
}

void TankPanel::hideEvent(QHideEvent* event)
{
    QGroupBox::hideEvent(event);
    timer_.stop();
}

} // namespace workbench
