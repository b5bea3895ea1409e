#pragma once

// The form of the passenger counters: up to seven counters with addresses of their own, or one counter for up
// to six doors, whose values are user parameters. The families that are offered, and the lines that can begin
// and end a count, are those of the table of settings.

#include "peripherals/form_config_rs_param.h"

#include <memory>

class VLK_UserParams;

namespace Ui {
class VLK_Designer_Form_Config_RS_Param_Pcnt;
}

class VLK_Form_Config_RS_Param_Pcnt : public VLK_Form_Config_RS_Param
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Pcnt(QWidget* parent = nullptr);
    ~VLK_Form_Config_RS_Param_Pcnt() override;

    void retranslate() override;

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_currentIndexChanged_Type(const QString& type);
    void slot_stateChanged_Passager_1(int) {}
    void slot_stateChanged_Passager_2(int) {}
    void slot_stateChanged_Passager_3(int) {}
    void slot_stateChanged_Passager_4(int) {}
    void slot_stateChanged_Passager_5(int) {}
    void slot_stateChanged_Passager_6(int) {}
    void slot_stateChanged_Passager_7(int) {}
    void slot_toggled_Passager_Event_In(bool) {}
    void slot_stateChanged_ACode_Door_1(int) {}
    void slot_stateChanged_ACode_Door_2(int) {}
    void slot_stateChanged_ACode_Door_3(int) {}
    void slot_stateChanged_ACode_Door_4(int) {}
    void slot_stateChanged_ACode_Door_5(int) {}
    void slot_stateChanged_ACode_Door_6(int) {}
    void slot_stateChanged_ACore_SM_SendNavi(int) {}

private:
    bool hasDoors() const;
    QList<vlk::UserParam> offers() const;

    std::unique_ptr<Ui::VLK_Designer_Form_Config_RS_Param_Pcnt> ui_;
    std::unique_ptr<VLK_UserParams> params_; // with names in the present language
};
