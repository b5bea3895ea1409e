#pragma once

// The User tab of the data-set page: what the tracker puts into the 49 free slots of a record. Forms offer
// and withdraw the values; the user chooses. In the file a slot holds a key of the vocabulary of user
// parameters (absent/params/user_param_settings.h), which the full window looks up in the forms.
//
// This tracker's page has no such tab.

#include "absent/forms/user_param_group.h"
#include "absent/params/user_param.h"
#include "dataset/form_config_set_zeta3_tab.h"

namespace vlk {
struct ParamChoice;
}

class QPushButton;

class VLK_Form_Config_Set_Zeta3_Tab_User : public VLK_Form_Config_Set_Zeta3_Tab
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab_User(int index, QWidget* parent = nullptr);

    void retranslate() override;
    // Empties all slots.
    void afterDefaults() override;
    int bytesBesideMask() const override;

    // Sizes other than 1, 2, 4 and 8 bytes change nothing.
    void userParamAdded(const QString& code, const QString& name, const QString& third, int size) override;
    void userParamDeleted(const QString& code, const QString& name, const QString& third, int size) override;
    void loadUserParams(CXmlSection* root) override;
    void saveUserParams(CXmlSection* root) override;

    // Let the user choose what of the CAN bus, and which of the Modbus rows in use, is on offer.
    virtual void chooseCan();
    virtual void chooseModbus();

public Q_SLOTS:
    // An empty one names an edit that the tab takes from its widget itself.
    void slot_currentIndexChanged_User_1Byte_1(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_2(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_3(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_4(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_5(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_6(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_7(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_8(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_9(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_10(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_11(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_12(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_13(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_14(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_15(const QString&) {}
    void slot_currentIndexChanged_User_1Byte_16(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_1(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_2(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_3(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_4(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_5(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_6(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_7(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_8(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_9(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_10(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_11(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_12(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_13(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_14(const QString&) {}
    void slot_currentIndexChanged_User_2Byte_15(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_1(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_2(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_3(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_4(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_5(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_6(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_7(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_8(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_9(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_10(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_11(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_12(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_13(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_14(const QString&) {}
    void slot_currentIndexChanged_User_4Byte_15(const QString&) {}
    void slot_currentIndexChanged_User_8Byte_1(const QString&) {}
    void slot_currentIndexChanged_User_8Byte_2(const QString&) {}
    void slot_currentIndexChanged_User_8Byte_3(const QString&) {}
    void slot_pressed_Set_CAN();
    void slot_pressed_Set_MODBUS();

private:
    vlk::UserParamGroup* groupOf(int bytes);
    void offer(const vlk::UserParam& param);
    void withdraw(const vlk::UserParam& param);
    QString keyOf(const QString& text) const;
    QString textOf(const QString& key) const;
    void chooseFrom(const QString& title, QList<vlk::ParamChoice> choices);

    std::vector<vlk::UserParamGroup> groups_;
    QList<vlk::UserParam> modbusRows_; // those in use, whether on offer or not
    QPushButton* can_;
    QPushButton* modbus_;
};
