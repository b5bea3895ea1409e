#pragma once

// The Transfer page: how the tracker reaches its telematics servers. Access point of the SIM, three servers
// with protocol and transport, connection rules, encryption key, roaming, remote service. Its section of the
// file is TRANS. It owns the dialogs with the two lists of operators and the server test.

#include "windows/key_section.h"

#include <QWidget>

#include <array>
#include <memory>

class QGroupBox;
class QLineEdit;
class QSpinBox;
class QToolButton;
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

    QString title() const { return title_; }
    int tabIndex() const { return tabIndex_; }
    void setTabIndex(int index) { tabIndex_ = index; }
    // Name of the configured object, from which file names are made.
    QString objectName() const;

    // Leaves every combo box at its first item.
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root);
    void saveToXml(CXmlSection* root);

    const vlk::KeySection& keys() const { return keys_; }

public Q_SLOTS:
    void slot_testConnected(const QString& peerIp, const QString& hostName, bool ok);
    void slot_pressedBtnListApn();
    void slot_currentStrIndexChanged_Operator1(const QString& label);
    void slot_toggled_ServerMain(bool on) { toggleServer(0, on); }
    void slot_toggled_ServerReserv1(bool on) { toggleServer(1, on); }
    void slot_toggled_ServerReserv2(bool on) { toggleServer(2, on); }
    void slot_currentIndexChanged_SelectMain(int item) { selectServer(0, item); }
    void slot_currentIndexChanged_SelectReserv1(int item) { selectServer(1, item); }
    void slot_currentIndexChanged_SelectReserv2(int item) { selectServer(2, item); }
    void slot_textChanged_DNSMain(const QString&) { enableTest(0); }
    void slot_textChanged_DNSReserv1(const QString&) { enableTest(1); }
    void slot_textChanged_DNSReserv2(const QString&) { enableTest(2); }
    void slot_pressed_BtnTestMain() { testServer(0); }
    void slot_pressed_BtnTestReserv1() { testServer(1); }
    void slot_pressed_BtnTestReserv2() { testServer(2); }
    void slot_currentIndexChanged_ServerType(int item);
    void slot_currentIndexChanged_TypeConnect(int item);
    void slot_pressed_Btn_Crypto();
    void slot_pressed_Btn_Crypto_Clear();
    void slot_stateChanged_Crypto(int state);
    void slot_currentIndexChanged_RModeSim1(int mode);
    void slot_pressed_RListOperSim1();
    void slot_valueChanged_RBlockH(int hours);
    void slot_stateChanged_GrpTimer(int state);
    void slot_valueChanged_QSP_dd(int days);
    void slot_valueChanged_QSP_hh(int hours);
    // Reserved: no widget of this page calls them.
    void slot_textChanged_RFU(const QString&) {}
    void slot_pressed_BtnUpdate() {}

private:
    struct Server
    {
        QGroupBox* use;
        QComboBox* selector; // never on show
        QLineEdit* address;
        QSpinBox* port;
        QComboBox* protocol;
        QComboBox* transport;
        QCheckBox* crypto;
        QToolButton* test;
    };
    static constexpr int kServers = 3;

    void connectServers();
    void connectWidgets();
    void declareKeys();
    template <class SpinBox>
    static vlk::KeyGroup serverKeys(const char* element, const Server& server, SpinBox* objectId,
                                    SpinBox* centreId, bool usedAfterReset);
    vlk::KeyGroup accessPointKeys() const;
    vlk::KeyGroup rulesKeys() const;
    vlk::KeyGroup simRoamingKeys() const;
    vlk::KeyGroup cryptoKeys() const;

    void fillLists();
    void labelPeriods();
    void refreshEnabled();
    void applyOperator(int item);
    // Selects the operator list's item that the texts of the access point belong to.
    void recogniseOperator();
    void toggleServer(int index, bool on);
    void selectServer(int index, int item);
    void enableTest(int index);
    void testServer(int index);
    void limitRemoteServiceMinutes();

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Transfer> ui_;
    std::array<Server, kServers> servers_;
    VLK_FormAutoApnListNew* apnList_;
    VLK_Form_List_Oper_Roaming* roamingList_;
    vlk_Socket* serverTest_ = nullptr; // made for the first test
    int serverUnderTest_ = 0;          // 1 to 3, 0 for none
    vlk::KeySection keys_{"TRANS"};
    QString title_;
    int tabIndex_ = -1;
};
