#include "telemetry/view/form_tmi_f3_tab_fuel.h"

using namespace vlk;

namespace {

constexpr ValueSeries kRs232[] = {
    {"label_RS232_Level_Fuel_1", "tmift1_056", item("LevelRS232")},
};

constexpr ValueSeries kRs485[] = {
    {"label_RS485_Level_Fuel_%1", "tmift1_056", item("LevelRS485_1"), 16},
    {"label_RS485_Temp_Fuel_%1", "tmift4_004", item("TempRS485_1"), 16},
    {"label_RS485_Freq_Fuel_%1", "tmift4_005", item("RS485Freq1"), 16},
};

constexpr ValueSeries kFlow[] = {
    {"label_Ffs_Main_ModeEngine_Value", "tmizta_255", item("FfsState.engine")},
    {"label_Ffs_Main_PowerState_Value", "tmizta_256", item("FfsState.power")},
    {"label_Ffs_Main_Error_Value", "tmizta_258", item("FfsError")},
    {"label_Ffs_Main_Fuel_Value", "tmizta_259", item("FfsFuel")},
    {"label_Ffs_Main_FuelTrip_Value", "tmizta_260", item("FfsFuelTrip")},
    {"label_Ffs_Main_Speed_Value", "tmizta_261", item("FfsSpeed")},
};

constexpr std::array kChambers = {"tmift4_007", "tmift4_008"};
constexpr ValueTableRow<2> kChamberRows[] = {
    {"tmizta_128",
     {{{"label_Ffs_Submis_Mode_Value", item("FfsState.supply")},
       {"label_Ffs_Revers_Mode_Value", item("FfsState.return")}}}},
    {"tmift4_009",
     {{{"label_Ffs_Submis_Volume_Value", item("FfsSubmisVolume")},
       {"label_Ffs_Revers_Volume_Value", item("FfsReversVolume")}}}},
    {"tmizta_261",
     {{{"label_Ffs_Submis_Speed_Value", item("FfsSubmisSpeed")},
       {"label_Ffs_Revers_Speed_Value", item("FfsReversSpeed")}}}},
    {"tmift4_004",
     {{{"label_Ffs_Submis_Temp_Value", item("FfsSubmisTemp")},
       {"label_Ffs_Revers_Temp_Value", item("FfsReversTemp")}}}},
};

} // namespace

VLK_Form_Tmi_F3_Tab_Fuel::VLK_Form_Tmi_F3_Tab_Fuel(QWidget* parent)
    : VLK_Form_Tmi_F3_Tab("tmift4_001", parent)
{
    addGroup(0, "groupBox_RS485_Fuel", "tmift4_003")->addColumns(kRs485);
    addGroup(1, "groupBox_RS232_Fuel", "tmift4_002")->addList(kRs232);
    addGroup(1, "groupBox_Ffs_Main", "tmizta_252")->addList(kFlow);
    addGroup(1, "groupBox_Ffs_Chambers", "tmift4_006")
        ->addTable(kChambers, std::span<const ValueTableRow<2>>(kChamberRows));
}
