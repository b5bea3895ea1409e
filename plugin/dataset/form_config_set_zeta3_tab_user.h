#pragma once

// The User tab of the data-set page: what the tracker puts into the 49 free slots of a record. Forms offer
// and withdraw the values; the user chooses. In the file a slot holds a key of the vocabulary of user
// parameters (settings/user_param_settings.h), which the full window looks up in the forms.
//
// This tracker's page has no such tab.

#include "dataset/form_config_set_zeta3_tab.h"
#include "dataset/user_param_group.h"
#include "settings/params/user_param.h"

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
    // Slots are counted from 1 in each width.
    void slot_currentIndexChanged_User(int bytes, int slot);
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
