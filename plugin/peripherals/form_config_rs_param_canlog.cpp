#include "peripherals/form_config_rs_param_canlog.h"

#include "typing/grid.h"
#include "windows/binder/page_settings.h"
#include "windows/disabled_reason.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSpinBox>

VLK_Form_Config_RS_Param_CanLog::VLK_Form_Config_RS_Param_CanLog(QWidget* parent)
    : RsRowsForm("CNLG", "CAN-LOG", parent), get_(new QPushButton), set_(new QPushButton)
{
    group_->setObjectName(QStringLiteral("groupBox_CAN"));
    group_->setEnabled(false);
    get_->setObjectName(QStringLiteral("pushButton_Programm_Get"));
    set_->setObjectName(QStringLiteral("pushButton_Programm_Set"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(vlk::grid::kColumn);
    for (QPushButton* button : {get_, set_}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    lines_->addLayout(buttons, lines_->rowCount(), 1, 1, 2);
    vlk::tellWhyDisabled(group_, "cfgt6_450");
    using This = VLK_Form_Config_RS_Param_CanLog;
    connect(get_, &QPushButton::clicked, this, &This::slot_pressed_Btn_Programm_Get);
    connect(set_, &QPushButton::clicked, this, &This::slot_pressed_Btn_Programm_Set);
}

void VLK_Form_Config_RS_Param_CanLog::deviceConnected()
{
    group_->setEnabled(true);
}

void VLK_Form_Config_RS_Param_CanLog::deviceDisconnected()
{
    group_->setEnabled(false);
}

void VLK_Form_Config_RS_Param_CanLog::retranslate()
{
    RsRowsForm::retranslate();
    get_->setText(tr("cfgt6_076"));
    set_->setText(tr("cfgt6_077"));
}

void VLK_Form_Config_RS_Param_CanLog::slot_pressed_Btn_Programm_Get()
{
    Q_EMIT getCanLogProgramm();
}

void VLK_Form_Config_RS_Param_CanLog::slot_pressed_Btn_Programm_Set()
{
    Q_EMIT setCanLogProgramm(settings_->number("CNLG/program"));
}
