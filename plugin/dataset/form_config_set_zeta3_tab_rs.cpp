#include "dataset/form_config_set_zeta3_tab_rs.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace {

QString portNames(VLK_Form_Config_Set_Zeta3_Tab_RS::Ports ports)
{
    if (!ports.rs232 && !ports.rs485)
        return ports.bluetooth ? QStringLiteral("Bluetooth") : QString();
    QStringList names;
    if (ports.rs232)
        names << QStringLiteral("RS-232");
    if (ports.rs485)
        names << QStringLiteral("RS-485");
    if (ports.bluetooth)
        names << QStringLiteral("BT");
    return names.join(QStringLiteral(" / "));
}

} // namespace

VLK_Form_Config_Set_Zeta3_Tab_RS::VLK_Form_Config_Set_Zeta3_Tab_RS(int index, Ports ports, QWidget* parent)
    : DataSetBoxesTab(vlk::DataSetTab::Rs, index, nullptr, parent), ports_(ports)
{
    findChild<QGroupBox*>(QStringLiteral("groupBox_RS232"))->setVisible(ports.rs232);
    auto* group = findChild<QGroupBox*>(QStringLiteral("groupBox_RS485"));
    group->setVisible(ports.rs485 || ports.bluetooth);
    auto* grid = static_cast<QGridLayout*>(group->layout());
    levels_ = new QLabel(group);
    levels_->setObjectName(QStringLiteral("label_RS485_Level"));
    grid->addWidget(levels_, 0, 0);
    frequencies_ = new QLabel(group);
    frequencies_->setObjectName(QStringLiteral("label_RS485_Frequency"));
    grid->addWidget(frequencies_, 0, 1);
}

void VLK_Form_Config_Set_Zeta3_Tab_RS::retranslate()
{
    DataSetBoxesTab::retranslate();
    setTitle(portNames(ports_));
    findChild<QGroupBox*>(QStringLiteral("groupBox_RS485"))->setTitle(portNames(ports_));
    levels_->setText(tr(withTemperatures_ ? "cfgt2f_050" : "cfgt2f_049"));
    frequencies_->setText(tr("cfgt2f_051"));
}

void VLK_Form_Config_Set_Zeta3_Tab_RS::enableFormat20(bool on)
{
    DataSetBoxesTab::enableFormat20(on);
    withTemperatures_ = on;
    retranslate();
}
