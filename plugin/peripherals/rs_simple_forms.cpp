#include "peripherals/rs_simple_forms.h"

#include "windows/binder/page_settings.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

VLK_Form_Config_RS_Param_NotUse::VLK_Form_Config_RS_Param_NotUse(QWidget* parent)
    : VLK_Form_Config_RS_Param(parent), label_(new QLabel(this))
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(label_);
    whole->addStretch(1);
}

void VLK_Form_Config_RS_Param_NotUse::retranslate()
{
    label_->setText(tr("cfgt6_160"));
}

VLK_Form_Config_RS_Param_Hrps::VLK_Form_Config_RS_Param_Hrps(QWidget* parent)
    : RsRowsForm("HRPS", "cfgt6_082", parent)
{
    connect(types_, &QComboBox::currentTextChanged, this,
            &VLK_Form_Config_RS_Param_Hrps::slot_currentIndexChanged_Hrps);
}

VLK_Form_Config_RS_Param_Refr::VLK_Form_Config_RS_Param_Refr(QWidget* parent)
    : RsRowsForm("REFR", "cfgt6_085", parent)
{
    connect(types_, &QComboBox::currentTextChanged, this,
            &VLK_Form_Config_RS_Param_Refr::slot_currentIndexChanged_Refr);
}

VLK_Form_Config_RS_Param_Tach::VLK_Form_Config_RS_Param_Tach(QWidget* parent)
    : RsRowsForm("TACH", "cfgt6_091", parent)
{
    connect(types_, &QComboBox::currentTextChanged, this,
            &VLK_Form_Config_RS_Param_Tach::slot_currentIndexChanged_Type);
}

VLK_Form_Config_RS_Param_Tpms::VLK_Form_Config_RS_Param_Tpms(QWidget* parent)
    : RsRowsForm("TPMS", "cfgt6_009", parent)
{
    connect(types_, &QComboBox::currentTextChanged, this,
            &VLK_Form_Config_RS_Param_Tpms::slot_currentIndexChanged_Tpms);
}
