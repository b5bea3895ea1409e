#include "pages/form_config_transfer.h"

#include "ui_VLK_Designer_Form_Config_Transfer.h"

#include "pages/form_auto_apn_list_new.h"
#include "pages/form_list_oper_roaming.h"
#include "settings/transfer_settings.h"
#include "windows/server_test.h"
#include "windows/way_to.h"

#include <QRandomGenerator>
#include <QSignalBlocker>

namespace {

constexpr int kCryptoKeyBytes = 16;
constexpr quint32 kCryptoByteLimit = 254; // no byte of a key is 254 or 255

// The keys of each server.
constexpr const char* kAddresses[] = {"SRV1/addr", "SRV2/addr", "SRV3/addr"};
constexpr const char* kPorts[] = {"SRV1/port", "SRV2/port", "SRV3/port"};

} // namespace

VLK_Form_Config_Transfer::VLK_Form_Config_Transfer(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Transfer>()),
      settings_(vlk::kTransferSettings, "cfgt1_001")
{
    ui_->setupUi(this);
    apnList_ = new VLK_FormAutoApnListNew(this);
    roamingList_ = new VLK_Form_List_Oper_Roaming(this);
    settings_.bind({this, apnList_, roamingList_});
    connectWidgets();
    vlk::leadsTo(ui_->stackedWidget_Server, ui_->comboBox_ServerType);
    vlk::leadsTo(apnList_, ui_->pushButton_AutoAPN_1);
    vlk::leadsTo(roamingList_, ui_->pushButton_RListOperSim_1);
    retranslate();
    setDefaults();
}

VLK_Form_Config_Transfer::~VLK_Form_Config_Transfer() = default;

void VLK_Form_Config_Transfer::connectWidgets()
{
    using This = VLK_Form_Config_Transfer;
    const auto indexChanged = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(ui_->comboBox_ServerType, indexChanged, this, &This::slot_currentIndexChanged_ServerType);
    connect(ui_->comboBox_typeServer_1, indexChanged, this, &This::slot_currentIndexChanged_SelectMain);
    connect(ui_->comboBox_typeServer_2, indexChanged, this, &This::slot_currentIndexChanged_SelectReserv1);
    connect(ui_->comboBox_typeServer_3, indexChanged, this, &This::slot_currentIndexChanged_SelectReserv2);
    connect(ui_->GPRSSrv_toolButton_Test_Main, &QToolButton::clicked, this, &This::slot_pressed_BtnTestMain);
    connect(ui_->GPRSSrv_toolButton_Test_Reserv_1, &QToolButton::clicked, this,
            &This::slot_pressed_BtnTestReserv1);
    connect(ui_->GPRSSrv_toolButton_Test_Reserv_2, &QToolButton::clicked, this,
            &This::slot_pressed_BtnTestReserv2);
    connect(ui_->pushButton_AutoAPN_1, &QPushButton::clicked, this, &This::slot_pressedBtnListApn);
    connect(ui_->pushButton_RListOperSim_1, &QPushButton::clicked, this, &This::slot_pressed_RListOperSim1);
    connect(ui_->pushButton_Crypto, &QPushButton::clicked, this, &This::slot_pressed_Btn_Crypto);
    connect(ui_->pushButton_Crypto_Clear, &QPushButton::clicked, this, &This::slot_pressed_Btn_Crypto_Clear);
}

QString VLK_Form_Config_Transfer::objectName() const
{
    return settings_.value("OBJECT/name");
}

void VLK_Form_Config_Transfer::retranslate()
{
    ui_->retranslateUi(this);
    fillServerLists();
    apnList_->retranslate();
    roamingList_->retranslate();
    settings_.retranslate();
    settings_.selectFirstItems();
}

// The lists that choose what is seen of the servers; no file knows them.
void VLK_Form_Config_Transfer::fillServerLists()
{
    ui_->comboBox_ServerType->clear();
    ui_->comboBox_ServerType->addItems({tr("cfgt1_010"), QStringLiteral("%1 1").arg(tr("cfgt1_011")),
                                        QStringLiteral("%1 2").arg(tr("cfgt1_011"))});
    for (QComboBox* selector :
         {ui_->comboBox_typeServer_1, ui_->comboBox_typeServer_2, ui_->comboBox_typeServer_3}) {
        // Selecting its first item would drop the address; nobody sees this list, so nobody selects.
        const QSignalBlocker blocker(selector);
        selector->clear();
        selector->addItems({tr("cfgt1_008"), tr("cfgt1_009")});
    }
}

void VLK_Form_Config_Transfer::setDefaults()
{
    ui_->comboBox_ServerType->setCurrentIndex(0);
    apnList_->setDefaults();
    settings_.setDefaults();
    roamingList_->setDefaults();
}

void VLK_Form_Config_Transfer::slot_pressedBtnListApn()
{
    apnList_->showExpanded();
}

void VLK_Form_Config_Transfer::selectServer(int index, int item)
{
    if (item != 0)
        return;
    settings_.edit(kPorts[index], QStringLiteral("0"));
    settings_.edit(kAddresses[index], QString());
}

void VLK_Form_Config_Transfer::testServer(int index)
{
    if (!serverTest_) {
        serverTest_ = new vlk_Socket(this);
        connect(serverTest_, &vlk_Socket::testConnected, this, &VLK_Form_Config_Transfer::slot_testConnected);
    }
    serverUnderTest_ = index + 1;
    serverTest_->test(settings_.value(kAddresses[index]), settings_.number(kPorts[index]));
}

void VLK_Form_Config_Transfer::slot_testConnected(const QString& /*peerIp*/, const QString& /*hostName*/,
                                                  bool ok)
{
    if (ok)
        serverUnderTest_ = 0;
    vlk::showServerAnswer(this, ok, tr(ok ? "cfgt1_109" : "cfgt1_108"));
    // The address that failed is what the user looks at next.
    QLineEdit* const addresses[] = {ui_->GPRSSrv_lineEdit_IP_DNS_Main, ui_->GPRSSrv_lineEdit_IP_DNS_Reserv_1,
                                    ui_->GPRSSrv_lineEdit_IP_DNS_Reserv_2};
    if (serverUnderTest_ > 0)
        addresses[serverUnderTest_ - 1]->setFocus();
}

void VLK_Form_Config_Transfer::slot_currentIndexChanged_ServerType(int item)
{
    ui_->stackedWidget_Server->setCurrentIndex(item);
}

void VLK_Form_Config_Transfer::slot_pressed_Btn_Crypto()
{
    QString key;
    for (int i = 0; i < kCryptoKeyBytes; ++i) {
        const quint32 byte = QRandomGenerator::system()->bounded(kCryptoByteLimit);
        key += QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0'));
    }
    ui_->lineEdit_Crypto->setText(key.toUpper());
}

void VLK_Form_Config_Transfer::slot_pressed_Btn_Crypto_Clear()
{
    ui_->lineEdit_Crypto->clear();
}

void VLK_Form_Config_Transfer::slot_pressed_RListOperSim1()
{
    roamingList_->show();
}

void VLK_Form_Config_Transfer::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // Another tab hides the page too; then the window is still there.
    if (window()->isVisible())
        return;
    apnList_->close();
    roamingList_->close();
    if (serverTest_)
        serverTest_->deleteLater();
    serverTest_.clear();
}
