#include "pages/form_config_transfer.h"

#include "ui_VLK_Designer_Form_Config_Transfer.h"

#include "pages/form_auto_apn_list_new.h"
#include "pages/form_list_oper_roaming.h"
#include "pages/operators.h"
#include "pages/transfer_choices.h"
#include "windows/aligned_columns.h"
#include "windows/server_test.h"

#include <QMessageBox>
#include <QRandomGenerator>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int kPermanentConnection = 0; // item of the connection types

constexpr int kDefaultPort = 4000;

constexpr int kCryptoKeyBytes = 16;
constexpr quint32 kCryptoByteLimit = 254; // no byte of a key is 254 or 255

constexpr int kGroupTimerLimit = 300;
constexpr int kGroupTimerDefault = 30;
constexpr int kShortestBlockMinutes = 5;
constexpr int kShortestRemoteServiceMinutes = 10;

} // namespace

VLK_Form_Config_Transfer::VLK_Form_Config_Transfer(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Transfer>())
{
    ui_->setupUi(this);
    servers_ = {{
        {ui_->GPRSSrv_groupBox_Main, ui_->comboBox_typeServer_1, ui_->GPRSSrv_lineEdit_IP_DNS_Main,
         ui_->GPRSSrv_spinBox_Port_Main, ui_->Transfer_comboBox_Protocol_Format_Main,
         ui_->Transfer_comboBox_Protocol_Trans_Main, ui_->Transfer_checkBox_Protocol_Crypto_Main,
         ui_->GPRSSrv_toolButton_Test_Main},
        {ui_->GPRSSrv_groupBox_Reserv_1, ui_->comboBox_typeServer_2, ui_->GPRSSrv_lineEdit_IP_DNS_Reserv_1,
         ui_->GPRSSrv_spinBox_Port_Reserv_1, ui_->Transfer_comboBox_Protocol_Format_Reserv_1,
         ui_->Transfer_comboBox_Protocol_Trans_Reserv_1, ui_->Transfer_checkBox_Protocol_Crypto_Reserv_1,
         ui_->GPRSSrv_toolButton_Test_Reserv_1},
        {ui_->GPRSSrv_groupBox_Reserv_2, ui_->comboBox_typeServer_3, ui_->GPRSSrv_lineEdit_IP_DNS_Reserv_2,
         ui_->GPRSSrv_spinBox_Port_Reserv_2, ui_->Transfer_comboBox_Protocol_Format_Reserv_2,
         ui_->Transfer_comboBox_Protocol_Trans_Reserv_2, ui_->Transfer_checkBox_Protocol_Crypto_Reserv_2,
         ui_->GPRSSrv_toolButton_Test_Reserv_2},
    }};
    apnList_ = new VLK_FormAutoApnListNew(this);
    roamingList_ = new VLK_Form_List_Oper_Roaming(this);
    declareKeys();
    connectServers();
    connectWidgets();
    retranslate();
    setDefaults();
}

VLK_Form_Config_Transfer::~VLK_Form_Config_Transfer() = default;

void VLK_Form_Config_Transfer::connectServers()
{
    using This = VLK_Form_Config_Transfer;
    struct Slots
    {
        void (This::*toggled)(bool);
        void (This::*selected)(int);
        void (This::*addressChanged)(const QString&);
        void (This::*testPressed)();
    };
    constexpr Slots slotsOf[kServers] = {
        {&This::slot_toggled_ServerMain, &This::slot_currentIndexChanged_SelectMain,
         &This::slot_textChanged_DNSMain, &This::slot_pressed_BtnTestMain},
        {&This::slot_toggled_ServerReserv1, &This::slot_currentIndexChanged_SelectReserv1,
         &This::slot_textChanged_DNSReserv1, &This::slot_pressed_BtnTestReserv1},
        {&This::slot_toggled_ServerReserv2, &This::slot_currentIndexChanged_SelectReserv2,
         &This::slot_textChanged_DNSReserv2, &This::slot_pressed_BtnTestReserv2},
    };
    for (std::size_t i = 0; i < servers_.size(); ++i) {
        const Server& server = servers_[i];
        connect(server.use, &QGroupBox::toggled, this, slotsOf[i].toggled);
        connect(server.selector, qOverload<int>(&QComboBox::currentIndexChanged), this, slotsOf[i].selected);
        connect(server.address, &QLineEdit::textChanged, this, slotsOf[i].addressChanged);
        connect(server.test, &QToolButton::clicked, this, slotsOf[i].testPressed);
        connect(server.crypto, &QCheckBox::stateChanged, this, &This::slot_stateChanged_Crypto);
    }
}

void VLK_Form_Config_Transfer::connectWidgets()
{
    using This = VLK_Form_Config_Transfer;
    const auto indexChanged = qOverload<int>(&QComboBox::currentIndexChanged);
    const auto valueChanged = qOverload<int>(&QSpinBox::valueChanged);
    connect(ui_->Transfer_comboBox_GSM_Operator_1, &QComboBox::currentTextChanged, this,
            &This::slot_currentStrIndexChanged_Operator1);
    connect(ui_->pushButton_AutoAPN_1, &QPushButton::clicked, this, &This::slot_pressedBtnListApn);
    connect(ui_->comboBox_ServerType, indexChanged, this, &This::slot_currentIndexChanged_ServerType);
    connect(ui_->Srv_Operation_comboBox_TypeConnect, indexChanged, this,
            &This::slot_currentIndexChanged_TypeConnect);
    connect(ui_->checkBox_GrpTimer, &QCheckBox::stateChanged, this, &This::slot_stateChanged_GrpTimer);
    connect(ui_->pushButton_Crypto, &QPushButton::clicked, this, &This::slot_pressed_Btn_Crypto);
    connect(ui_->pushButton_Crypto_Clear, &QPushButton::clicked, this, &This::slot_pressed_Btn_Crypto_Clear);
    connect(ui_->comboBox_RModeSim_1, indexChanged, this, &This::slot_currentIndexChanged_RModeSim1);
    connect(ui_->pushButton_RListOperSim_1, &QPushButton::clicked, this, &This::slot_pressed_RListOperSim1);
    connect(ui_->spinBox_RBlockH, valueChanged, this, &This::slot_valueChanged_RBlockH);
    connect(ui_->spinBox_QSP_CnctTimer_dd, valueChanged, this, &This::slot_valueChanged_QSP_dd);
    connect(ui_->spinBox_QSP_CnctTimer_hh, valueChanged, this, &This::slot_valueChanged_QSP_hh);
}

QString VLK_Form_Config_Transfer::objectName() const
{
    return ui_->lineEdit_Name->text();
}

void VLK_Form_Config_Transfer::retranslate()
{
    title_ = tr("cfgt1_001");
    ui_->retranslateUi(this);
    fillLists();
    labelPeriods();
    apnList_->retranslate();
    roamingList_->retranslate();
    vlk::alignColumns({ui_->gridLayout_Name, ui_->gridLayout_GSM_1, ui_->gridLayout_Servers,
                       ui_->gridLayout_Main, ui_->gridLayout_Reserv_1, ui_->gridLayout_Reserv_2,
                       ui_->gridLayout_Srv_Operation, ui_->gridLayout_Permanent_Connect,
                       ui_->gridLayout_Periodic_Connect, ui_->gridLayout_Crypto, ui_->gridLayout_Roaming,
                       ui_->gridLayout_RConnectPeriod, ui_->gridLayout_RPerion, ui_->gridLayout_RBlock,
                       ui_->gridLayout_QSP},
                      4);
}

void VLK_Form_Config_Transfer::fillLists()
{
    ui_->Transfer_comboBox_GSM_Operator_1->clear();
    ui_->Transfer_comboBox_GSM_Operator_1->addItems(vlk::operatorLabels());
    for (const Server& server : servers_) {
        vlk::fillChoices(server.protocol, vlk::kProtocols);
        vlk::fillChoices(server.transport, vlk::kTransports);
        // Selecting its first item would drop the address; nobody sees this list, so nobody selects.
        const QSignalBlocker blocker(server.selector);
        vlk::fillChoices(server.selector, vlk::kServerSelections);
    }
    vlk::fillChoices(ui_->comboBox_ServerType, vlk::kServerTypes);
    vlk::fillChoices(ui_->Srv_Operation_comboBox_TypeConnect, vlk::kConnectTypes);
    vlk::fillChoices(ui_->comboBox_RModeSim_1, vlk::kRoamingModes);
    vlk::fillChoices(ui_->comboBox_QSP_TransProto, vlk::kTransports);
}

void VLK_Form_Config_Transfer::labelPeriods()
{
    struct Period
    {
        QSpinBox* box;
        const char* unit;
        const char* name;
    };
    const Period periods[] = {
        {ui_->spinBox_RegTimer, "abbr_003", "cfgt1_022"},
        {ui_->Srv_Operation_spinBox_Permanent_Connect_Period, "abbr_003", "cfgt1_038"},
        {ui_->Srv_Operation_spinBox_Periodic_Connect_Period_H, "abbr_001", "cfgt1_040"},
        {ui_->Srv_Operation_spinBox_Periodic_Connect_Period_M, "abbr_002", "cfgt1_040"},
        {ui_->Srv_Operation_spinBox_Block_H, "abbr_001", "cfgt1_044"},
        {ui_->Srv_Operation_spinBox_Block_M, "abbr_002", "cfgt1_044"},
        {ui_->spinBox_GrpTimer, "abbr_003", "cfgt1_046"},
        {ui_->spinBox_RConnectPeriod, "abbr_002", "cfgt1_040"},
        {ui_->spinBox_RRunPeriod, "abbr_002", "cfgt1_053"},
        {ui_->spinBox_RParkingPeriod, "abbr_002", "cfgt1_054"},
        {ui_->spinBox_RBlockH, "abbr_001", "cfgt1_044"},
        {ui_->spinBox_RBlockM, "abbr_002", "cfgt1_044"},
        {ui_->spinBox_QSP_CnctTimer_dd, "abbr_004", "cfgt1_040"},
        {ui_->spinBox_QSP_CnctTimer_hh, "abbr_001", "cfgt1_040"},
        {ui_->spinBox_QSP_CnctTimer_mm, "abbr_002", "cfgt1_040"},
    };
    for (const Period& period : periods) {
        period.box->setSuffix(QLatin1Char(' ') + tr(period.unit));
        period.box->setAccessibleName(QStringLiteral("%1, %2").arg(tr(period.name), tr(period.unit)));
    }
}

void VLK_Form_Config_Transfer::setDefaults()
{
    ui_->comboBox_ServerType->setCurrentIndex(0);
    keys_.reset();
    refreshEnabled();
}

void VLK_Form_Config_Transfer::loadFromXml(CXmlSection* root)
{
    keys_.load(root);
    refreshEnabled();
}

void VLK_Form_Config_Transfer::saveToXml(CXmlSection* root)
{
    keys_.save(root);
}

void VLK_Form_Config_Transfer::refreshEnabled()
{
    for (int i = 0; i < kServers; ++i)
        enableTest(i);
    slot_currentIndexChanged_TypeConnect(ui_->Srv_Operation_comboBox_TypeConnect->currentIndex());
    slot_stateChanged_Crypto(0);
    slot_currentIndexChanged_RModeSim1(ui_->comboBox_RModeSim_1->currentIndex());
}

void VLK_Form_Config_Transfer::slot_pressedBtnListApn()
{
    apnList_->showExpanded();
}

void VLK_Form_Config_Transfer::slot_currentStrIndexChanged_Operator1(const QString& label)
{
    applyOperator(ui_->Transfer_comboBox_GSM_Operator_1->findText(label));
}

void VLK_Form_Config_Transfer::applyOperator(int item)
{
    const vlk::MobileOperator* preset = vlk::operatorPreset(item);
    const auto apply = [&](QLineEdit* edit, const char* vlk::MobileOperator::*field) {
        edit->setText(preset ? QString::fromLatin1(preset->*field) : QString());
        edit->setEnabled(item == vlk::kOtherOperator);
    };
    apply(ui_->Transfer_lineEdit_GSM_APN_1, &vlk::MobileOperator::apn);
    apply(ui_->Transfer_lineEdit_GSM_Login_1, &vlk::MobileOperator::login);
    apply(ui_->Transfer_lineEdit_GSM_Psw_1, &vlk::MobileOperator::password);
    ui_->pushButton_AutoAPN_1->setEnabled(item == vlk::kAutomaticOperator);
}

void VLK_Form_Config_Transfer::recogniseOperator()
{
    const QString apn = ui_->Transfer_lineEdit_GSM_APN_1->text();
    const QString login = ui_->Transfer_lineEdit_GSM_Login_1->text();
    const QString password = ui_->Transfer_lineEdit_GSM_Psw_1->text();
    int item = vlk::presetWith(apn, login, password);
    if (item < 0) {
        const bool empty = apn.isEmpty() && login.isEmpty() && password.isEmpty();
        item = empty ? vlk::kAutomaticOperator : vlk::kOtherOperator;
    }
    ui_->Transfer_comboBox_GSM_Operator_1->setCurrentIndex(item);
    // Selecting an item other than a preset has emptied them.
    ui_->Transfer_lineEdit_GSM_APN_1->setText(apn);
    ui_->Transfer_lineEdit_GSM_Login_1->setText(login);
    ui_->Transfer_lineEdit_GSM_Psw_1->setText(password);
}

void VLK_Form_Config_Transfer::toggleServer(int index, bool on)
{
    const Server& server = servers_.at(index);
    if (on) {
        server.port->setValue(kDefaultPort);
        server.address->setText(QLatin1String(vlk::kNoServer));
    } else {
        server.selector->setCurrentIndex(0);
        server.port->setValue(0);
        server.address->clear();
    }
    enableTest(index);
}

void VLK_Form_Config_Transfer::selectServer(int index, int item)
{
    if (item != 0)
        return;
    servers_.at(index).port->setValue(0);
    servers_.at(index).address->clear();
}

void VLK_Form_Config_Transfer::enableTest(int index)
{
    const Server& server = servers_.at(index);
    server.test->setEnabled(server.use->isChecked() && !server.address->text().isEmpty());
}

void VLK_Form_Config_Transfer::testServer(int index)
{
    if (!serverTest_) {
        serverTest_ = new vlk_Socket(this);
        connect(serverTest_, &vlk_Socket::testConnected, this, &VLK_Form_Config_Transfer::slot_testConnected);
    }
    serverUnderTest_ = index + 1;
    const Server& server = servers_.at(index);
    serverTest_->test(server.address->text(), server.port->value());
}

void VLK_Form_Config_Transfer::slot_testConnected(const QString& /*peerIp*/, const QString& /*hostName*/,
                                                  bool ok)
{
    if (ok)
        serverUnderTest_ = 0;
    QMessageBox box(QMessageBox::Warning, tr(ok ? "wrd_005" : "wrd_004"), tr(ok ? "cfgt1_109" : "cfgt1_108"),
                    QMessageBox::NoButton, this);
    box.addButton(tr("wrd_003"), QMessageBox::AcceptRole);
    box.exec();
    // The address that failed is what the user looks at next.
    if (serverUnderTest_ > 0)
        servers_.at(serverUnderTest_ - 1).address->setFocus();
}

void VLK_Form_Config_Transfer::slot_currentIndexChanged_ServerType(int item)
{
    ui_->stackedWidget_Server->setCurrentIndex(item);
}

void VLK_Form_Config_Transfer::slot_currentIndexChanged_TypeConnect(int item)
{
    const bool permanent = item == kPermanentConnection;
    ui_->Srv_Operation_frame_Permanent_Connect->setEnabled(permanent);
    ui_->Srv_Operation_frame_Periodic_Connect->setEnabled(!permanent);
}

void VLK_Form_Config_Transfer::slot_stateChanged_GrpTimer(int state)
{
    const bool on = state != Qt::Unchecked;
    ui_->spinBox_GrpTimer->setEnabled(on);
    ui_->spinBox_GrpTimer->setRange(on ? 1 : 0, on ? kGroupTimerLimit : 0);
    ui_->spinBox_GrpTimer->setValue(on ? kGroupTimerDefault : 0);
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

void VLK_Form_Config_Transfer::slot_stateChanged_Crypto(int /*state*/)
{
    const bool used = std::any_of(servers_.begin(), servers_.end(),
                                  [](const Server& server) { return server.crypto->isChecked(); });
    ui_->frame_Crypto->setEnabled(used);
}

void VLK_Form_Config_Transfer::slot_currentIndexChanged_RModeSim1(int mode)
{
    // No item is current while the list is filled anew.
    if (mode < 0)
        return;
    const vlk::RoamingRule& rule = vlk::kRoamingRules[mode];
    ui_->checkBox_RNoCallSim_1->setEnabled(rule.bans);
    ui_->checkBox_RNoSmsSim_1->setEnabled(rule.bans);
    ui_->frame_RPerion->setEnabled(rule.recordPeriods);
    ui_->frame_RConnectPeriod->setEnabled(rule.connectPeriod);
    ui_->frame_RBlock->setEnabled(rule.block);
}

void VLK_Form_Config_Transfer::slot_pressed_RListOperSim1()
{
    roamingList_->show();
}

void VLK_Form_Config_Transfer::slot_valueChanged_RBlockH(int hours)
{
    ui_->spinBox_RBlockM->setMinimum(hours != 0 ? 0 : kShortestBlockMinutes);
}

void VLK_Form_Config_Transfer::slot_valueChanged_QSP_dd(int /*days*/)
{
    limitRemoteServiceMinutes();
}

void VLK_Form_Config_Transfer::slot_valueChanged_QSP_hh(int /*hours*/)
{
    limitRemoteServiceMinutes();
}

void VLK_Form_Config_Transfer::limitRemoteServiceMinutes()
{
    const bool minutesOnly =
        ui_->spinBox_QSP_CnctTimer_dd->value() == 0 && ui_->spinBox_QSP_CnctTimer_hh->value() == 0;
    ui_->spinBox_QSP_CnctTimer_mm->setMinimum(minutesOnly ? kShortestRemoteServiceMinutes : 0);
}
