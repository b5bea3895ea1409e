#include "window/faults_panel.h"

#include "check/plugin_names.h"
#include "tracker/simulated_tracker.h"
#include "typing/number_entry.h"
#include "typing/title_style.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace workbench {

using tracker::Faults;
using tracker::SimulatedTracker;

namespace {

struct FaultRow
{
    const char* name;
    const char* key;
    bool Faults::*fault;
};

constexpr FaultRow kFaultRows[] = {
    {"checkBox_Silence", "wb_fault_silence", &Faults::silence},
    {"checkBox_Short", "wb_fault_short", &Faults::shortAnswers},
    {"checkBox_Garbled", "wb_fault_garbled", &Faults::garbledAnswers},
    {"checkBox_BadBoard", "wb_fault_board", &Faults::badBoard},
    {"checkBox_NoBluetooth", "wb_fault_bluetooth", &Faults::noBluetooth},
    {"checkBox_SkipsPage", "wb_fault_page", &Faults::skipsPage},
    {"checkBox_PowerLoss", "wb_fault_power", &Faults::powerLoss},
    {"checkBox_Unplug", "wb_fault_unplug", &Faults::unplug},
};

constexpr int kLongestDelayMs = 60'000;

} // namespace

FaultsPanel::FaultsPanel(SimulatedTracker& tracker, QWidget* parent)
    : QWidget(parent), tracker_(tracker), cable_(new QPushButton(this))
{
    cable_->setObjectName(QStringLiteral("pushButton_Cable"));
    cable_->setAutoDefault(false);
    connect(cable_, &QPushButton::clicked, this,
            [this] { tracker_.attached() ? tracker_.detach() : tracker_.attach(); });

    auto* faults = texts_.bind(new QGroupBox(this), "wb_faults");
    auto* list = new QVBoxLayout(faults);
    vlk::dressGroup(faults);
    for (const FaultRow& row : kFaultRows)
        addFault(list, row.name, row.key, row.fault);
    addDelay(list);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(cable_);
    column->addWidget(faults);
    connect(&tracker_, &SimulatedTracker::attachedChanged, this, &FaultsPanel::refresh);
    connect(&tracker_, &SimulatedTracker::faultsChanged, this, &FaultsPanel::refresh);
    refresh();
}

template <class Value>
void FaultsPanel::change(Value Faults::*fault, Value value)
{
    Faults faults = tracker_.faults();
    faults.*fault = value;
    tracker_.setFaults(faults);
}

void FaultsPanel::addFault(QVBoxLayout* column, const char* name, const char* key, bool Faults::*fault)
{
    auto* box = texts_.bind(new QCheckBox(this), key);
    box->setObjectName(QLatin1String(name));
    connect(box, &QCheckBox::toggled, this, [this, fault](bool on) { change(fault, on); });
    states_.emplace_back([this, box, fault] { box->setChecked(tracker_.faults().*fault); });
    column->addWidget(box);
}

void FaultsPanel::addDelay(QVBoxLayout* column)
{
    auto* delay = new QSpinBox(this);
    delay->setObjectName(QStringLiteral("spinBox_Delay"));
    delay->setRange(0, kLongestDelayMs);
    delay->setSingleStep(100);
    vlk::NumberEntry::join(delay);
    texts_.bind([delay] { delay->setSuffix(QLatin1Char(' ') + text("abbr_040")); });
    connect(delay, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int ms) { change(&Faults::delayMs, ms); });
    states_.emplace_back([this, delay] {
        // Another fault that changes is no reason to drop what is being typed.
        if (delay->value() != tracker_.faults().delayMs)
            delay->setValue(tracker_.faults().delayMs);
    });
    auto* label = texts_.bind(new QLabel(this), "wb_fault_delay");
    label->setBuddy(delay);
    auto* row = new QFormLayout;
    row->addRow(label, delay);
    column->addLayout(row);
}

void FaultsPanel::refresh()
{
    // Without a letter: the panel also stands in a window over others that have letters of their own.
    cable_->setText(plainText(tracker_.attached() ? "wb_detach" : "wb_attach"));
    for (const auto& set : states_)
        set();
}

void FaultsPanel::retranslate()
{
    texts_.apply();
    refresh();
}

} // namespace workbench
