#include "peripherals/form_config_rs_param_pcnt.h"

#include "ui_VLK_Designer_Form_Config_RS_Param_Pcnt.h"

#include "absent/params/user_param_can.h"
#include "absent/params/user_params.h"
#include "settings/rs_settings.h"
#include "windows/named_widget.h"
#include "windows/tab_order.h"

#include <QCheckBox>

namespace {

// Counters and doors stand in two columns, the first ones in the left one.
template <class Input>
void addLines(QGridLayout* lines, const char* box, const char* input, int count)
{
    const int left = (count + 1) / 2;
    for (int number = 1; number <= count; ++number) {
        const int row = (number - 1) % left;
        const int column = number > left ? 3 : 0;
        lines->addWidget(vlk::numberedWidget<QCheckBox>(box, number), row, column);
        lines->addWidget(vlk::numberedWidget<Input>(input, number), row, column + 1);
    }
    lines->setColumnMinimumWidth(2, 24);
    lines->setColumnStretch(5, 1);
}

} // namespace

VLK_Form_Config_RS_Param_Pcnt::VLK_Form_Config_RS_Param_Pcnt(QWidget* parent)
    : VLK_Form_Config_RS_Param(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_RS_Param_Pcnt>()),
      params_(std::make_unique<VLK_UserParams>())
{
    ui_->setupUi(this);
    addLines<QSpinBox>(ui_->gridLayout_Passager, "checkBox_Passager_%1", "spinBox_Passager_%1",
                       vlk::kRsCounters);
    addLines<QComboBox>(ui_->gridLayout_ACode_Door, "checkBox_ACode_Door_%1", "comboBox_ACode_Door_%1",
                        vlk::kRsDoors);
    // The Tab key goes as one reads: from the type and the address into the lines below.
    vlk::tabThrough(ui_->comboBox_Type, ui_->groupBox_Passager);
    vlk::tabThrough(ui_->spinBox_ACode_Passager_1, ui_->groupBox_ACode_Door);
    connect(ui_->comboBox_Type, &QComboBox::currentTextChanged, this,
            &VLK_Form_Config_RS_Param_Pcnt::slot_currentIndexChanged_Type);
}

VLK_Form_Config_RS_Param_Pcnt::~VLK_Form_Config_RS_Param_Pcnt() = default;

void VLK_Form_Config_RS_Param_Pcnt::retranslate()
{
    ui_->retranslateUi(this);
    params_ = std::make_unique<VLK_UserParams>();
    slot_currentIndexChanged_Type(ui_->comboBox_Type->currentText());
}

bool VLK_Form_Config_RS_Param_Pcnt::hasDoors() const
{
    return ui_->stackedWidget->currentWidget() == ui_->page_ACode;
}

void VLK_Form_Config_RS_Param_Pcnt::slot_currentIndexChanged_Type(const QString& type)
{
    if (type == QLatin1String("ACOND"))
        ui_->stackedWidget->setCurrentWidget(ui_->page_ACode);
    else if (type == QLatin1String("PP01"))
        ui_->stackedWidget->setCurrentWidget(ui_->page_PP01);
    tellOffers(offers());
}

QList<vlk::UserParam> VLK_Form_Config_RS_Param_Pcnt::offers() const
{
    QList<vlk::UserParam> offers;
    if (!hasDoors())
        return offers;
    for (const VLK_UserParam_CAN* param : params_->counterList())
        offers.append({QStringLiteral("CO"), param->name(), {}, params_->typeCodeSize(param->type())});
    return offers;
}
