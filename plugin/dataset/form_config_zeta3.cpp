#include "dataset/form_config_zeta3.h"

#include "dataset/data_set_tabs.h"
#include "dataset/form_config_set_zeta3_tab_accel.h"
#include "dataset/form_config_set_zeta3_tab_main.h"
#include "dataset/form_config_set_zeta3_tab_more.h"
#include "dataset/form_config_set_zeta3_tab_navi.h"
#include "dataset/form_config_set_zeta3_tab_rs.h"

#include <QCheckBox>

namespace {

// Places among the tabs.
constexpr int kMain = 1;
constexpr int kNavi = 2;
constexpr int kRs = 3;
constexpr int kAccel = 6;
constexpr int kMore = 9;

} // namespace

VLK_Form_Config_Zeta3::VLK_Form_Config_Zeta3(QWidget* parent) : VLK_Form_Config_Set_Zeta3(parent)
{
    VLK_Form_Config_Zeta3::applyModelProfile();
    finish();
    VLK_Form_Config_Zeta3::applyModelLabels();
}

void VLK_Form_Config_Zeta3::retranslate()
{
    VLK_Form_Config_Set_Zeta3::retranslate();
    applyModelLabels();
}

// The other texts of this model stand in the table of the boxes.
void VLK_Form_Config_Zeta3::applyModelLabels()
{
    if (auto* power = findChild<QCheckBox*>(QStringLiteral("checkBox_Power")))
        power->setText({});
    tabs().setTitle(tabs().at(kAccel), tr("cfgt2f_082"));
}

void VLK_Form_Config_Zeta3::applyModelProfile()
{
    auto* main = new VLK_Form_Config_Set_Zeta3_Tab_Main(0);
    main->setEngineHoursOffered(false);
    tabs().add(kMain, main);
    tabs().add(kNavi, new VLK_Form_Config_Set_Zeta3_Tab_Navi(1));
    tabs().add(kRs,
               new VLK_Form_Config_Set_Zeta3_Tab_RS(2, {.rs232 = false, .rs485 = true, .bluetooth = true}));
    tabs().add(kAccel, new VLK_Form_Config_Set_Zeta3_Tab_Accel(3));
    tabs().add(kMore, new VLK_Form_Config_Set_Zeta3_Tab_More(4));
}
