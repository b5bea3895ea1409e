#include "telemetry/view/form_tmi_f3_tab_accel.h"

using namespace vlk;

namespace {

constexpr ValueSeries kShocks[] = {
    {"label_SH_Value_1", "tmizta_232", item("VAccelState.0")},
    {"label_SH_Value_2", "tmizta_233", item("VAccelState.1")},
    {"label_SH_Value_3", "tmizta_234", item("VAccelState.2")},
    {"label_SH_Value_4", "tmizta_235", item("VAccelState.3")},
};

constexpr ValueSeries kAccelDevice[] = {
    {"label_Accel_State_Value", "tmift1_019", item("Module2.4")},
    {"label_Accel_Calibr_Value", "tmift3_003", item("State.7")},
};

constexpr ValueSeries kAccelMotion[] = {
    {"label_AccelLinear_Value", "tmift3_005", item("AccelLinearX.axes")},
    {"label_VAccelVertical_Value", "tmizta_237", item("VAccelVertical")},
    {"label_VAccelLineTang_Value", "tmizta_238", item("VAccelLineTang")},
    {"label_VAccelLineRoll_Value", "tmizta_239", item("VAccelLineRoll")},
};

constexpr ValueSeries kExtremes[] = {
    {"label_EcoDrivingSpeedMax_Value", "tmizta_242", item("EcoDrvSpeedMax")},
    {"label_AccelAngularPlus_Value", "tmizta_208", item("AccelAngularPlus")},
    {"label_AccelAngularMinus_Value", "tmizta_209", item("AccelAngularMinus")},
    {"label_AccelAngularCorner_Value", "tmizta_210", item("AccelAngularCorner")},
    {"label_EcoDrivingAccelMax_Value", "tmizta_241", item("EcoDrvAccelMax")},
    {"label_AccelDelta_Value", "tmizta_204", item("AccelDelta")},
    {"label_AccelModule_Value", "tmizta_207", item("AccelModule")},
};

constexpr ValueSeries kThresholds[] = {
    {"label_EcoDriving_Speed_Value_%1", "tmift3_008", item("EcoDrvSpeedState.0"), 6},
    {"label_EcoDriving_Accel_Value_%1", "tmift3_009", item("EcoDrvAccel1.0"), 4},
    {"label_EcoDriving_Braking_Value_%1", "tmift3_010", item("EcoDrvAccel1.4"), 4},
    {"label_EcoDriving_Left_Value_%1", "tmift3_011", item("EcoDrvAccel2.0"), 4},
    {"label_EcoDriving_Right_Value_%1", "tmift3_012", item("EcoDrvAccel2.4"), 4},
    {"label_EcoDriving_Vertical_Value_%1", "tmift3_013", item("EcoDrvAccel3.0"), 4},
};

} // namespace

VLK_Form_Tmi_F3_Tab_Accel::VLK_Form_Tmi_F3_Tab_Accel(QWidget* parent)
    : VLK_Form_Tmi_F3_Tab("tmift3_001", parent)
{
    addGroup(0, "groupBox_Accel", "tmizta_142")->addList(kAccelDevice);
    addGroup(0, "groupBox_SH", "tmift3_002")->addList(kShocks);
    addGroup(1, "groupBox_AccelMotion", "tmift3_004")->addList(kAccelMotion);
    addGroup(1, "groupBox_EcoDriving", "tmift3_006")->addList(kExtremes);
    addWideGroup("groupBox_EcoDrivingThresholds", "tmift3_007")->addColumns(kThresholds);
}
