#pragma once

// The form of the quick window: a selection of the settings that the pages of the full window own, each with
// a widget of the same name (settings/quick_settings.h). It owns a dialog with the list of access points and
// the server test; neither outlives the sight of the form.

#include "windows/binder/page_settings.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class VLK_FormAutoApnListNew;
class vlk_Socket;

namespace Ui {
class VLK_Designer_Form_Config_Light;
}

namespace vlk {
enum class QuickHelp;
}

class VLK_Form_Config_Light : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Light(QWidget* parent = nullptr);
    ~VLK_Form_Config_Light() override;

    // Leaves every combo box at its first item.
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root) { settings_.load(root); }
    // Over what the full window has saved.
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }
    void focusFirstField();
    // Where the order of focus leaves the form.
    QWidget* lastField() const;

public Q_SLOTS:
    void slot_currentStrIndexChanged_Operator1(const QString& label);
    void slot_currentIndexChanged_Operator2(int) {}
    void slot_pressedBtnListApn();
    void slot_currentIndexChanged_RModeSim1(int) { settings_.take("comboBox_RModeSim_1"); }
    void slot_currentIndexChanged_RModeSim2(int) { settings_.evaluateRules(); }
    void slot_textChanged_DNSMain(const QString&) { settings_.take("GPRSSrv_lineEdit_IP_DNS_Main"); }
    void slot_pressed_BtnTestMain();
    void slot_testConnected(const QString& peerIp, const QString& hostName, bool ok);
    void slot_currentIndexChanged_Protocol_Format_Main(int) {}
    void slot_toggled_TypeTrack(bool) { settings_.take("radioButton_Track_User"); }
    void slot_stateChanged_Track_Corner(int) { settings_.take("Additional_checkBox_Corner"); }
    void slot_stateChanged_Track_Direction(int) { settings_.take("Additional_checkBox_Direction"); }
    void slot_stateChanged_Track_Metr(int) { settings_.take("Additional_Direction_checkBox_Metr"); }
    void slot_stateChanged_Track_Sec(int) { settings_.take("Additional_Direction_checkBox_Sec"); }
    void slot_stateChanged_Fuel_RS485_Use(int) { settings_.take("checkBox_Fuel_RS485_Use"); }
    void slot_stateChanged_Fuel_RS485_Use_1(int) { settings_.take("checkBox_Fuel_RS485_Use_1"); }
    void slot_stateChanged_Fuel_RS485_Use_2(int) { settings_.take("checkBox_Fuel_RS485_Use_2"); }
    void slot_stateChanged_BT_Use(int) { settings_.take("checkBox_BT_Use"); }
    void slot_stateChanged_BT_Use_1(int) { settings_.take("checkBox_BT_1"); }
    void slot_stateChanged_BT_Use_2(int) { settings_.take("checkBox_BT_2"); }
    void slot_currentTextChanged_BT_Type_1(const QString&) { settings_.take("comboBox_BT_Type_1"); }
    void slot_currentTextChanged_BT_Type_2(const QString&) { settings_.take("comboBox_BT_Type_2"); }
    void slot_pressed_BtnWndHelp_Psw();
    void slot_pressed_BtnWndHelp_GPRS();
    void slot_pressed_BtnWndHelp_Server();
    void slot_pressed_BtnWndHelp_Track();
    void slot_pressed_BtnWndHelp_Sensors();

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void connectWidgets();
    void showHelpIcons();

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Light> ui_;
    VLK_FormAutoApnListNew* apnList_;
    QPointer<vlk_Socket> serverTest_; // made for the first test
    vlk::PageSettings settings_;
};
