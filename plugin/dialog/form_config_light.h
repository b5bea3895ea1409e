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
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_currentStrIndexChanged_Operator1(const QString&) {}
    void slot_currentIndexChanged_Operator2(int) {}
    void slot_pressedBtnListApn();
    void slot_currentIndexChanged_RModeSim1(int) {}
    void slot_currentIndexChanged_RModeSim2(int) {}
    void slot_textChanged_DNSMain(const QString&) {}
    void slot_pressed_BtnTestMain();
    void slot_testConnected(const QString& peerIp, const QString& hostName, bool ok);
    void slot_currentIndexChanged_Protocol_Format_Main(int) {}
    void slot_toggled_TypeTrack(bool) {}
    void slot_stateChanged_Track_Corner(int) {}
    void slot_stateChanged_Track_Direction(int) {}
    void slot_stateChanged_Track_Metr(int) {}
    void slot_stateChanged_Track_Sec(int) {}
    void slot_stateChanged_Fuel_RS485_Use(int) {}
    void slot_stateChanged_Fuel_RS485_Use_1(int) {}
    void slot_stateChanged_Fuel_RS485_Use_2(int) {}
    void slot_stateChanged_BT_Use(int) {}
    void slot_stateChanged_BT_Use_1(int) {}
    void slot_stateChanged_BT_Use_2(int) {}
    void slot_currentTextChanged_BT_Type_1(const QString&) {}
    void slot_currentTextChanged_BT_Type_2(const QString&) {}
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
