#include "window/tracker_panel.h"

#include "tracker/configuration_values.h"
#include "tracker/simulated_tracker.h"
#include "window/tank_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>

using tracker::Faults;
using tracker::Protocol;

namespace {

struct ProtocolRow
{
    Protocol protocol;
    const char* key;
};

constexpr ProtocolRow protocols[] = {{Protocol::Protocol3, "wb_protocol_3"},
                                     {Protocol::Protocol2, "wb_protocol_2"},
                                     {Protocol::Protocol1, "wb_protocol_1"}};

constexpr int longestDelayMs = 60'000;

} // namespace

TrackerPanel::TrackerPanel(tracker::SimulatedTracker& tracker, QWidget* parent)
    : QWidget(parent), tracker_(tracker), cable_(new QPushButton(this)), protocol_(new QComboBox(this)),
      delay_(new QSpinBox(this)), filter_(new QLineEdit(this)), keys_(new QTableWidget(0, 2, this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 6, 6, 6);
    row->addWidget(buildControls());
    auto* right = new QVBoxLayout;
    right->addWidget(new TankPanel(tracker_, this));
    right->addWidget(buildKeys(), 1);
    row->addLayout(right, 1);
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, &TrackerPanel::refresh);
    connect(&tracker_, &tracker::SimulatedTracker::configurationWritten, this, &TrackerPanel::refresh);
    refresh();
}

QWidget* TrackerPanel::buildControls()
{
    auto* controls = new QWidget(this);
    auto* column = new QVBoxLayout(controls);
    column->setContentsMargins(0, 0, 0, 0);
    cable_->setObjectName(QStringLiteral("pushButton_Cable"));
    connect(cable_, &QPushButton::clicked, this,
            [this] { tracker_.attached() ? tracker_.detach() : tracker_.attach(); });
    column->addWidget(cable_);

    protocol_->setObjectName(QStringLiteral("comboBox_Protocol"));
    for (const ProtocolRow& row : protocols)
        protocol_->addItem(vlk::text(row.key));
    texts_.bind([this] {
        for (int i = 0; i < protocol_->count(); ++i)
            protocol_->setItemText(i, vlk::text(protocols[i].key));
    });
    connect(protocol_, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { tracker_.setProtocol(protocols[index].protocol); });
    auto* protocolLabel = texts_.bind(new QLabel(this), "wb_protocol");
    protocolLabel->setBuddy(protocol_);
    column->addWidget(protocolLabel);
    column->addWidget(protocol_);

    auto* everything = texts_.bind(new QCheckBox(this), "wb_full_data_set");
    everything->setObjectName(QStringLiteral("checkBox_FullDataSet"));
    everything->setChecked(tracker_.fullDataSet());
    connect(everything, &QCheckBox::toggled, this, [this](bool on) { tracker_.setFullDataSet(on); });
    column->addWidget(everything);

    auto* faults = texts_.bind(new QGroupBox(this), "wb_faults");
    auto* list = new QVBoxLayout(faults);
    addFault(list, "checkBox_Silence", "wb_fault_silence", &Faults::silence);
    addFault(list, "checkBox_Short", "wb_fault_short", &Faults::shortAnswers);
    addFault(list, "checkBox_Garbled", "wb_fault_garbled", &Faults::garbledAnswers);
    addFault(list, "checkBox_BadBoard", "wb_fault_board", &Faults::badBoard);
    addFault(list, "checkBox_Unplug", "wb_fault_unplug", &Faults::unplug);
    delay_->setObjectName(QStringLiteral("spinBox_Delay"));
    delay_->setRange(0, longestDelayMs);
    delay_->setSingleStep(100);
    texts_.bind([this] { delay_->setSuffix(QLatin1Char(' ') + vlk::text("abbr_040")); });
    connect(delay_, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int ms) { tracker_.faults().delayMs = ms; });
    auto* delayLabel = texts_.bind(new QLabel(this), "wb_fault_delay");
    delayLabel->setBuddy(delay_);
    auto* delayRow = new QFormLayout;
    delayRow->addRow(delayLabel, delay_);
    list->addLayout(delayRow);
    column->addWidget(faults);
    column->addStretch(1);
    return controls;
}

void TrackerPanel::addFault(QVBoxLayout* column, const char* name, const char* key, bool Faults::*fault)
{
    auto* box = texts_.bind(new QCheckBox(this), key);
    box->setObjectName(QLatin1String(name));
    connect(box, &QCheckBox::toggled, this, [this, fault](bool on) { tracker_.faults().*fault = on; });
    faultStates_.bind([this, box, fault] { box->setChecked(tracker_.faults().*fault); });
    column->addWidget(box);
}

QWidget* TrackerPanel::buildKeys()
{
    auto* group = texts_.bind(new QGroupBox(this), "wb_tracker_keys");
    filter_->setObjectName(QStringLiteral("lineEdit_KeyFilter"));
    filter_->setClearButtonEnabled(true);
    texts_.bind([this] {
        filter_->setPlaceholderText(vlk::text("wb_tracker_filter"));
        filter_->setAccessibleName(vlk::text("wb_tracker_filter"));
        keys_->setAccessibleName(vlk::text("wb_tracker_keys"));
        keys_->setHorizontalHeaderLabels({vlk::text("wb_report_key"), vlk::text("wb_tracker_value")});
    });
    connect(filter_, &QLineEdit::textChanged, this, &TrackerPanel::filterKeys);

    keys_->setObjectName(QStringLiteral("tableWidget_Keys"));
    keys_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    keys_->setSelectionBehavior(QAbstractItemView::SelectRows);
    keys_->setAlternatingRowColors(true);
    keys_->setShowGrid(false);
    keys_->setWordWrap(false);
    keys_->setTabKeyNavigation(false);
    keys_->verticalHeader()->hide();
    keys_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    keys_->horizontalHeader()->setHighlightSections(false);
    keys_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    keys_->horizontalHeader()->setStretchLastSection(true);
    keys_->setColumnWidth(0, fontMetrics().averageCharWidth() * 26);

    auto* column = new QVBoxLayout(group);
    column->addWidget(filter_);
    column->addWidget(keys_, 1);
    return group;
}

void TrackerPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void TrackerPanel::refresh()
{
    cable_->setText(vlk::text(tracker_.attached() ? "wb_detach" : "wb_attach"));
    faultStates_.apply();
    if (isVisible())
        showKeys();
}

void TrackerPanel::showKeys()
{
    // A detached tracker shows nothing; what was read last stays on view. A look must not use a fault up.
    if (tracker_.faults().unplug)
        return;
    const QTemporaryDir folder;
    QFile file(tracker_.readConfiguration(folder.path()));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const tracker::ConfigurationValues values(file.readAll());
    keys_->setRowCount(int(values.paths().size()));
    for (int row = 0; row < keys_->rowCount(); ++row) {
        const QString& path = values.paths().at(row);
        keys_->setItem(row, 0, new QTableWidgetItem(path));
        keys_->setItem(row, 1, new QTableWidgetItem(values.text(path)));
    }
    filterKeys();
}

void TrackerPanel::filterKeys()
{
    const QString wanted = filter_->text().trimmed();
    for (int row = 0; row < keys_->rowCount(); ++row) {
        const bool shown = keys_->item(row, 0)->text().contains(wanted, Qt::CaseInsensitive) ||
                           keys_->item(row, 1)->text().contains(wanted, Qt::CaseInsensitive);
        keys_->setRowHidden(row, !shown);
    }
}

void TrackerPanel::retranslate()
{
    texts_.apply();
    refresh();
}
