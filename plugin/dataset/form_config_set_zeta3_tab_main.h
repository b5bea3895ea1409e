#pragma once

// The tab of what every record has and of the states, lines, voltages and temperatures of the tracker.

#include "dataset/data_set_boxes_tab.h"

class VLK_Form_Config_Set_Zeta3_Tab_Main : public vlk::DataSetBoxesTab
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab_Main(int index, QWidget* parent = nullptr);

    void enableFormat30(bool on) override;

    // Whether the engine hours under load and without load are there to choose.
    void setEngineHoursOffered(bool offered);

public Q_SLOTS:
    // Other programs know them by these names; the boxes themselves do all.
    void slot_stateChanged_NumPage(int) {}
    void slot_stateChanged_Code(int) {}
    void slot_stateChanged_Time(int) {}
    void slot_stateChanged_State(int) {}
    void slot_stateChanged_State_2(int) {}
    void slot_stateChanged_Module(int) {}
    void slot_stateChanged_Module_2(int) {}
    void slot_stateChanged_Module_3(int) {}
    void slot_stateChanged_GSM(int) {}
    void slot_stateChanged_GSM_State(int) {}
    void slot_stateChanged_StateOut(int) {}
    void slot_stateChanged_StateOut_2(int) {}
    void slot_stateChanged_StateIn(int) {}
    void slot_stateChanged_StateIn_2(int) {}
    void slot_stateChanged_StateIn_3(int) {}
    void slot_stateChanged_Power(int) {}
    void slot_stateChanged_Reserv(int) {}
    void slot_stateChanged_Imp_1(int) {}
    void slot_stateChanged_Imp_2(int) {}
    void slot_stateChanged_Imp_3(int) {}
    void slot_stateChanged_Imp_4(int) {}
    void slot_stateChanged_Imp_5(int) {}
    void slot_stateChanged_Imp_6(int) {}
    void slot_stateChanged_Imp_7(int) {}
    void slot_stateChanged_Imp_8(int) {}
    void slot_stateChanged_Ain_1(int) {}
    void slot_stateChanged_Ain_2(int) {}
    void slot_stateChanged_Ain_3(int) {}
    void slot_stateChanged_Ain_4(int) {}
    void slot_stateChanged_Ain_5(int) {}
    void slot_stateChanged_Ain_6(int) {}
    void slot_stateChanged_Ain_7(int) {}
    void slot_stateChanged_Ain_8(int) {}
    void slot_stateChanged_Frequency_1(int) {}
    void slot_stateChanged_Frequency_2(int) {}
    void slot_stateChanged_Frequency_3(int) {}
    void slot_stateChanged_Frequency_4(int) {}
    void slot_stateChanged_Frequency_5(int) {}
    void slot_stateChanged_Frequency_6(int) {}
    void slot_stateChanged_Frequency_7(int) {}
    void slot_stateChanged_Frequency_8(int) {}
    void slot_stateChanged_Motochas(int) {}
    void slot_stateChanged_Motochas_2(int) {}
    void slot_stateChanged_Motochas_3(int) {}
    void slot_stateChanged_Temp_1(int) {}
    void slot_stateChanged_Temp_2(int) {}
    void slot_stateChanged_Temp_3(int) {}
    void slot_stateChanged_Temp_4(int) {}
    void slot_stateChanged_Temp_5(int) {}
    void slot_stateChanged_Temp_6(int) {}
    void slot_stateChanged_Temp_7(int) {}
    void slot_stateChanged_Temp_8(int) {}

private:
    bool engineHoursOffered_ = true;
};
