#include "window/tracker_panel.h"

#include "check/plugin_names.h"
#include "tracker/configuration_values.h"
#include "tracker/simulated_tracker.h"
#include "typing/empty_note.h"
#include "typing/grid.h"
#include "typing/table_look.h"
#include "window/faults_panel.h"
#include "window/find_field.h"
#include "window/tank_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QVBoxLayout>

namespace workbench {

using tracker::Protocol;

namespace {

struct ProtocolRow
{
    Protocol protocol;
    const char* key;
};

constexpr ProtocolRow kProtocols[] = {{Protocol::AsConfigured, "wb_protocol_0"},
                                      {Protocol::Protocol3, "wb_protocol_3"},
                                      {Protocol::Protocol2, "wb_protocol_2"},
                                      {Protocol::Protocol1, "wb_protocol_1"}};

} // namespace

TrackerPanel::TrackerPanel(tracker::SimulatedTracker& tracker, QWidget* parent)
    : QWidget(parent), tracker_(tracker), faults_(new FaultsPanel(tracker, this)),
      protocol_(new QComboBox(this)), filter_(new QLineEdit(this)), keys_(new QTableWidget(0, 2, this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(vlk::grid::kAroundWindow);
    row->addWidget(buildControls());
    auto* right = new QVBoxLayout;
    right->addWidget(new TankPanel(tracker_, this));
    right->addWidget(buildKeys(), 1);
    row->addLayout(right, 1);
    connect(&tracker_, &tracker::SimulatedTracker::configurationWritten, this, &TrackerPanel::showKeys);
    showKeys();
}

QWidget* TrackerPanel::buildControls()
{
    auto* controls = new QWidget(this);
    auto* column = new QVBoxLayout(controls);
    column->setContentsMargins(0, 0, 0, 0);
    protocol_->setObjectName(QStringLiteral("comboBox_Protocol"));
    for (const ProtocolRow& row : kProtocols)
        protocol_->addItem(text(row.key));
    texts_.bind([this] {
        for (int i = 0; i < protocol_->count(); ++i)
            protocol_->setItemText(i, text(kProtocols[i].key));
    });
    connect(protocol_, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { tracker_.setProtocol(kProtocols[index].protocol); });
    auto* protocolLabel = texts_.bind(new QLabel(this), "wb_protocol");
    protocolLabel->setBuddy(protocol_);
    column->addWidget(protocolLabel);
    column->addWidget(protocol_);

    auto* everything = texts_.bind(new QCheckBox(this), "wb_full_data_set");
    everything->setObjectName(QStringLiteral("checkBox_FullDataSet"));
    everything->setChecked(tracker_.fullDataSet());
    connect(everything, &QCheckBox::toggled, this, [this](bool on) { tracker_.setFullDataSet(on); });
    column->addWidget(everything);

    column->addWidget(faults_);
    column->addStretch(1);
    return controls;
}

QWidget* TrackerPanel::buildKeys()
{
    auto* group = texts_.bind(new QGroupBox(this), "wb_tracker_keys");
    filter_->setObjectName(QStringLiteral("lineEdit_KeyFilter"));
    filter_->setClearButtonEnabled(true);
    texts_.bind([this] {
        filter_->setPlaceholderText(text("wb_tracker_filter"));
        filter_->setAccessibleName(text("wb_tracker_filter"));
        keys_->setAccessibleName(plainText("wb_tracker_keys"));
        keys_->setHorizontalHeaderLabels({text("wb_report_key"), text("wb_tracker_value")});
    });
    connect(filter_, &QLineEdit::textChanged, this, &TrackerPanel::filterKeys);

    keys_->setObjectName(QStringLiteral("tableWidget_Keys"));
    keys_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    keys_->setSelectionBehavior(QAbstractItemView::SelectRows);
    vlk::dressTable(keys_, TableUse::Read);
    vlk::elideInTheMiddle(keys_, 0);
    empty_ = new EmptyNote(keys_);
    texts_.bind([this] { empty_->tell(text("wb_nothing_matches"), text("wb_clear_filter")); });
    connect(empty_, &EmptyNote::pressed, filter_, &QLineEdit::clear);
    joinFindField(filter_, keys_);
    keys_->horizontalHeader()->setStretchLastSection(true);
    keys_->setColumnWidth(0, fontMetrics().averageCharWidth() * 26);

    auto* column = new QVBoxLayout(group);
    column->addWidget(filter_);
    column->addWidget(keys_, 1);
    return group;
}

void TrackerPanel::showKeys()
{
    const tracker::ConfigurationValues& values = tracker_.configuration();
    keys_->setRowCount(static_cast<int>(values.paths().size()));
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
    empty_->refresh();
}

void TrackerPanel::retranslate()
{
    texts_.apply();
    faults_->retranslate();
}

} // namespace workbench
