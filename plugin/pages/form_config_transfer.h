#pragma once

// The Transfer page: how the tracker reaches its telematics servers. Its settings are those of the section
// TRANS (settings/transfer_settings.h). It owns the dialogs with the two lists of operators and the server
// test; none of them outlives the window that the page stands in.

#include "windows/binder/page_settings.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class VLK_FormAutoApnListNew;
class VLK_Form_List_Oper_Roaming;
class vlk_Socket;

namespace Ui {
class VLK_Designer_Form_Config_Transfer;
}

class VLK_Form_Config_Transfer : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Transfer(QWidget* parent = nullptr);
    ~VLK_Form_Config_Transfer() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    // Name of the configured object, from which file names are made.
    QString objectName() const;

    // Leaves every combo box at its first item.
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root) { settings_.load(root); }
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_testConnected(const QString& peerIp, const QString& hostName, bool ok);
    void slot_pressedBtnListApn();
    void slot_currentStrIndexChanged_Operator1(const QString&) {}
    void slot_toggled_ServerMain(bool) {}
    void slot_toggled_ServerReserv1(bool) {}
    void slot_toggled_ServerReserv2(bool) {}
    void slot_currentIndexChanged_SelectMain(int item) { selectServer(0, item); }
    void slot_currentIndexChanged_SelectReserv1(int item) { selectServer(1, item); }
    void slot_currentIndexChanged_SelectReserv2(int item) { selectServer(2, item); }
    void slot_textChanged_DNSMain(const QString&) {}
    void slot_textChanged_DNSReserv1(const QString&) {}
    void slot_textChanged_DNSReserv2(const QString&) {}
    void slot_pressed_BtnTestMain() { testServer(0); }
    void slot_pressed_BtnTestReserv1() { testServer(1); }
    void slot_pressed_BtnTestReserv2() { testServer(2); }
    void slot_currentIndexChanged_ServerType(int item);
    void slot_currentIndexChanged_TypeConnect(int) {}
    void slot_pressed_Btn_Crypto();
    void slot_pressed_Btn_Crypto_Clear();
    void slot_stateChanged_Crypto(int) {}
    void slot_currentIndexChanged_RModeSim1(int) {}
    void slot_pressed_RListOperSim1();
    void slot_valueChanged_RBlockH(int) {}
    void slot_stateChanged_GrpTimer(int) {}
    void slot_valueChanged_QSP_dd(int) {}
    void slot_valueChanged_QSP_hh(int) {}
    // Reserved: no widget of this page calls them.
    void slot_textChanged_RFU_1(const QString&) {}
    void slot_textChanged_RFU_2(const QString&) {}
    void slot_textChanged_RFU_3(const QString&) {}
    void slot_textChanged_RFU_4(const QString&) {}
    void slot_pressed_BtnUpdate() {}

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void connectWidgets();
    void fillServerLists();
    void selectServer(int index, int item);
    void testServer(int index);

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Transfer> ui_;
    VLK_FormAutoApnListNew* apnList_;
    VLK_Form_List_Oper_Roaming* roamingList_;
    QPointer<vlk_Socket> serverTest_; // made for the first test
    int serverUnderTest_ = 0;         // 1 to 3, 0 for none
    vlk::PageSettings settings_;
};
