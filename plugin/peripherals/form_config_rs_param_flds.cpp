#include "peripherals/form_config_rs_param_flds.h"

#include "fuel/form_fuel_view.h"
#include "review/value_text.h"
#include "settings/rs_settings.h"
#include "typing/grid.h"
#include "windows/binder/row_inputs.h"
#include "windows/column_head.h"
#include "windows/named_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kLevelCode = 1; // kind of the sensors' values in the calibration dialog

std::vector<const vlk::Setting*> rowsOfSensor(int sensor)
{
    return vlk::rowsOfForm(vlk::kRsSettings, "FLDS", {static_cast<std::uint8_t>(sensor)});
}

// A sensor has one column a row of the settings, the first one with the box that puts it into use; behind
// them stand a line and the calibration.
int lineColumn()
{
    static const int column = static_cast<int>(rowsOfSensor(1).size());
    return column;
}

int fuelColumn()
{
    return lineColumn() + 1;
}

QString sensorName(std::size_t place)
{
    return QStringLiteral("D%1").arg(place + 1);
}

} // namespace

VLK_Form_Config_RS_Param_Flds_RS485::VLK_Form_Config_RS_Param_Flds_RS485(bool sixRows, QWidget* parent)
    : VLK_Form_Config_RS_Param(parent), table_(new QGridLayout)
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(vlk::grid::kRow);
    auto* type = new QHBoxLayout;
    type->setSpacing(vlk::grid::kColumn);
    auto* label = new QLabel;
    auto* types = new QComboBox;
    label->setObjectName(QStringLiteral("label_FuelType"));
    types->setObjectName(QStringLiteral("comboBox_FuelType"));
    label->setBuddy(types);
    type->addWidget(label);
    type->addWidget(types);
    type->addStretch(1);
    whole->addLayout(type);
    whole->addLayout(table_);
    whole->addStretch(1);
    table_->setHorizontalSpacing(vlk::grid::kColumn);
    table_->setVerticalSpacing(vlk::grid::kRow);
    addHead();
    for (int sensor = 1; sensor <= vlk::kRsFuelSensors; ++sensor)
        addRow(sensor);
    if (!sixRows)
        return;
    for (int row = kCalibrated + 1; row < table_->rowCount(); ++row) {
        for (int column = 0; column < table_->columnCount(); ++column) {
            if (QLayoutItem* cell = table_->itemAtPosition(row, column))
                cell->widget()->hide();
        }
    }
}

void VLK_Form_Config_RS_Param_Flds_RS485::addHead()
{
    const auto head = [this](int column) {
        QLabel* label = vlk::columnHead();
        label->setWordWrap(true);
        table_->addWidget(label, 0, column);
        heads_ << label;
    };
    for (int column = 0; column < lineColumn(); ++column) {
        head(column);
        table_->setColumnStretch(column, 1);
    }
    head(fuelColumn());
    heads_.last()->setObjectName(QStringLiteral("label_Fuel"));
    auto* line = new QFrame;
    line->setObjectName(QStringLiteral("line_8"));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    table_->addWidget(line, 0, lineColumn(), kCalibrated + 1, 1);
}

void VLK_Form_Config_RS_Param_Flds_RS485::addRow(int sensor)
{
    int column = 0;
    for (const vlk::Setting* setting : rowsOfSensor(sensor)) {
        const Qt::Alignment place = column == 0 ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignVCenter;
        table_->addWidget(vlk::makeInput(*setting), sensor, column++, place);
    }
    if (sensor <= kCalibrated)
        table_->addWidget(calibrationCell(sensor), sensor, fuelColumn());
}

QWidget* VLK_Form_Config_RS_Param_Flds_RS485::calibrationCell(int sensor)
{
    auto* frame = vlk::numberedWidget<QFrame>("frame_Fuel_D%1", sensor);
    auto* cell = new QHBoxLayout(frame);
    cell->setContentsMargins(0, 0, 0, 0);
    auto* held = vlk::numberedWidget<QCheckBox>("checkBox_Fuel_D%1", sensor);
    held->setEnabled(false);
    auto* button = vlk::numberedWidget<QPushButton>("pushButton_Fuel_D%1", sensor);
    button->setText(QStringLiteral("..."));
    button->setMaximumWidth(28);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, sensor] { editCalibration(sensor); });
    cell->addWidget(held);
    cell->addWidget(button);
    cell->addStretch(1);
    held_[sensor - 1] = held;
    return frame;
}

void VLK_Form_Config_RS_Param_Flds_RS485::hideCalibration()
{
    for (int row = 0; row <= kCalibrated; ++row)
        table_->itemAtPosition(row, fuelColumn())->widget()->hide();
    table_->itemAtPosition(0, lineColumn())->widget()->hide();
}

void VLK_Form_Config_RS_Param_Flds_RS485::setDefaults()
{
    for (std::size_t place = 0; place < calibrations_.size(); ++place)
        hold(place, {});
}

void VLK_Form_Config_RS_Param_Flds_RS485::retranslate()
{
    const auto columns = rowsOfSensor(1);
    heads_[0]->setText(tr("cfgt6_219"));
    for (int column = 1; column < lineColumn(); ++column)
        heads_[column]->setText(vlk::captionParts(columns[column]->shown()->captionKey).before);
    heads_.last()->setText(tr("cfgt6_218"));
    // The heads of the columns say what the boxes of a row are.
    for (int sensor = 1; sensor <= vlk::kRsFuelSensors; ++sensor) {
        auto* use = qobject_cast<QCheckBox*>(table_->itemAtPosition(sensor, 0)->widget());
        const QString row = use->accessibleName();
        use->setText(QString::number(sensor));
        for (int column = 1; column < lineColumn(); ++column) {
            QWidget* input = table_->itemAtPosition(sensor, column)->widget();
            input->setAccessibleName(QStringLiteral("%1: %2").arg(row, heads_[column]->text()));
            if (auto* box = qobject_cast<QCheckBox*>(input))
                box->setText({});
        }
        if (sensor <= kCalibrated) {
            for (auto* button :
                 table_->itemAtPosition(sensor, fuelColumn())->widget()->findChildren<QAbstractButton*>())
                button->setAccessibleName(QStringLiteral("%1: %2").arg(row, heads_.last()->text()));
        }
    }
    if (view_)
        view_->retranslate();
}

void VLK_Form_Config_RS_Param_Flds_RS485::editCalibration(int sensor)
{
    if (!view_) {
        view_ = new VLK_Form_Fuel_View(this);
        using This = VLK_Form_Config_RS_Param_Flds_RS485;
        connect(view_, &VLK_Form_Fuel_View::signal_GetFuelData, this, &This::slot_GetFuelData);
        connect(view_, &VLK_Form_Fuel_View::signal_SetNewFuelData, this, &This::slot_SetNewFuelData);
    }
    const auto place = static_cast<std::size_t>(sensor) - 1;
    view_->setSensor(kLevelCode, sensorName(place));
    view_->setData(QStringLiteral("ConfigFuelfile"), calibrations_.at(place));
    view_->open();
}

void VLK_Form_Config_RS_Param_Flds_RS485::slot_GetFuelData(bool on)
{
    Q_EMIT signal_GetCurrentFuelData(on);
}

void VLK_Form_Config_RS_Param_Flds_RS485::slot_SetNewFuelData()
{
    for (std::size_t place = 0; view_ && place < calibrations_.size(); ++place) {
        if (view_->sensorName() != sensorName(place))
            continue;
        QMap<double, int> table;
        view_->getData(table);
        hold(place, table);
    }
}

void VLK_Form_Config_RS_Param_Flds_RS485::hold(std::size_t place, const QMap<double, int>& table)
{
    calibrations_[place] = table;
    held_[place]->setChecked(!table.isEmpty());
}
