#include "pages/form_config_transfer.h"

#include "ui_VLK_Designer_Form_Config_Transfer.h"

#include "link/device.h"
#include "pages/form_auto_apn_list_new.h"
#include "pages/form_list_oper_roaming.h"
#include "pages/operators.h"
#include "pages/transfer_choices.h"

#include <QRegularExpressionValidator>

using vlk::KeyGroup;

namespace {

constexpr int kMinute = 60;
constexpr int kHour = 60 * kMinute;
constexpr int kDay = 24 * kHour;

QString defaultName()
{
    return QStringLiteral("%1_Config").arg(vlkDevice ? vlkDevice->model() : QString());
}

QByteArray numbered(const char* format, int number)
{
    return QByteArray(format).replace("%1", QByteArray::number(number));
}

} // namespace

// The element names of the groups and their order are those of the file.
void VLK_Form_Config_Transfer::declareKeys()
{
    const auto allow = [](QLineEdit* edit, const char* pattern) {
        edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QLatin1String(pattern)), edit));
    };
    allow(ui_->lineEdit_Name, "^.{0,64}$");
    allow(ui_->Transfer_lineEdit_GSM_Pin1, "^\\d{0,8}$");

    keys_.add(KeyGroup("OBJECT").text("name", ui_->lineEdit_Name, defaultName));
    keys_.add(serverKeys("SRV1", servers_[0], ui_->Transfer_spinBox_Protocol_ObjectID_Main,
                         ui_->Transfer_spinBox_Protocol_CentreID_Main, true));
    keys_.add(serverKeys("SRV2", servers_[1], ui_->Transfer_spinBox_Protocol_ObjectID_Reserv_1,
                         ui_->Transfer_spinBox_Protocol_CentreID_Reserv_1, false));
    keys_.add(serverKeys("SRV3", servers_[2], ui_->Transfer_spinBox_Protocol_ObjectID_Reserv_2,
                         ui_->Transfer_spinBox_Protocol_CentreID_Reserv_2, false));
    keys_.add(accessPointKeys());
    keys_.add(vlk::KeySection::Child{[this](CXmlSection&) { recogniseOperator(); },
                                     {},
                                     [this] {
                                         ui_->Transfer_comboBox_GSM_Operator_1->setCurrentIndex(
                                             vlk::kAutomaticOperator);
                                         applyOperator(vlk::kAutomaticOperator);
                                     }});
    keys_.add(rulesKeys());
    keys_.add(KeyGroup("ROAM")
                  .number("cnctTimer", ui_->spinBox_RConnectPeriod, 3600, kMinute)
                  .number("moveTimer", ui_->spinBox_RRunPeriod, 1800, kMinute)
                  .number("stopTimer", ui_->spinBox_RParkingPeriod, 3600, kMinute)
                  .period("blockTimer", {ui_->spinBox_RBlockH, ui_->spinBox_RBlockM}, {kHour, kMinute}, 300)
                  .flag("archSend", ui_->checkBox_RArchSend, 0));
    keys_.add(simRoamingKeys());
    keys_.add(vlk::KeySection::Child{{}, {}, [this] { roamingList_->setDefaults(); }});
    keys_.add(cryptoKeys());
    keys_.add(KeyGroup("SIMPRIOR").number("regTimer", ui_->spinBox_RegTimer, 90));
    keys_.add(KeyGroup("QSP")
                  .flag("use", ui_->groupBox_QSP, 1)
                  .period("cnctTimer",
                          {ui_->spinBox_QSP_CnctTimer_dd, ui_->spinBox_QSP_CnctTimer_hh,
                           ui_->spinBox_QSP_CnctTimer_mm},
                          {kDay, kHour, kMinute}, 86400)
                  .number("idQSP", ui_->spinBox_QSP_Id, 1)
                  .choice("transProto", ui_->comboBox_QSP_TransProto, vlk::kTransports,
                          vlk::kDefaultTransport, vlk::kDefaultTransport));
    keys_.add(vlk::KeySection::Child{[this](CXmlSection& trans) { apnList_->loadFromXml(&trans); },
                                     [this](CXmlSection& trans) { apnList_->saveToXml(&trans); },
                                     [this] { apnList_->setDefaults(); }});
}

template <class SpinBox>
KeyGroup VLK_Form_Config_Transfer::serverKeys(const char* element, const Server& server, SpinBox* objectId,
                                              SpinBox* centreId, bool usedAfterReset)
{
    const auto showAddress = [server](const QString& address) {
        // Switching a server on or off sets the address, so that comes first.
        server.use->setChecked(address != QLatin1String(vlk::kNoServer));
        server.address->setText(address);
    };
    const auto address = [server] {
        return server.use->isChecked() ? server.address->text() : QString::fromLatin1(vlk::kNoServer);
    };
    return KeyGroup(element)
        .customText("addr", QString::fromLatin1(vlk::kNoServer), showAddress, address,
                    {server.use, server.address},
                    {QStringLiteral("server.example"), QString::fromLatin1(vlk::kNoServer)})
        .resetBy([server, usedAfterReset] {
            server.use->setChecked(usedAfterReset);
            server.address->clear();
        })
        .number("port", server.port, 4000)
        .resetTo(0)
        .choice("protocol", server.protocol, vlk::kProtocols, vlk::kDefaultProtocol, vlk::kDefaultProtocol,
                vlk::kNoProtocol)
        .choice("transProto", server.transport, vlk::kTransports, vlk::kDefaultTransport,
                vlk::kDefaultTransport)
        .number("objID", objectId, 0)
        .number("dcID", centreId, 1);
}

KeyGroup VLK_Form_Config_Transfer::accessPointKeys() const
{
    // A reset selects an operator, which fills the first three.
    return KeyGroup("AP1")
        .text("name", ui_->Transfer_lineEdit_GSM_APN_1, QString())
        .keepOnReset()
        .text("login", ui_->Transfer_lineEdit_GSM_Login_1, QString())
        .keepOnReset()
        .text("pass", ui_->Transfer_lineEdit_GSM_Psw_1, QString())
        .keepOnReset()
        .text("pin", ui_->Transfer_lineEdit_GSM_Pin1, QString());
}

KeyGroup VLK_Form_Config_Transfer::rulesKeys() const
{
    QComboBox* type = ui_->Srv_Operation_comboBox_TypeConnect;
    return KeyGroup("RULES")
        .flag("noPriorMsg", ui_->checkBox_NoToGprs, 1)
        .custom(
            "cnctType", 1, [type](int value) { type->setCurrentIndex(value != 0 ? 0 : 1); },
            [type] { return type->currentIndex() == 1 ? 0 : 1; }, {type},
            {QStringLiteral("0"), QStringLiteral("1")})
        .number("pingTimer", ui_->Srv_Operation_spinBox_Permanent_Connect_Period, 90)
        .flag("telAddPing", ui_->Srv_Operation_checkBox_Permanent_Connect_AddToPing, 0)
        .period("cnctTimer",
                {ui_->Srv_Operation_spinBox_Periodic_Connect_Period_H,
                 ui_->Srv_Operation_spinBox_Periodic_Connect_Period_M},
                {kHour, kMinute}, 3600, kDay)
        .flag("useCmd", ui_->Srv_Operation_checkBox_UseCommand, 1)
        .period("blockTimer", {ui_->Srv_Operation_spinBox_Block_H, ui_->Srv_Operation_spinBox_Block_M},
                {kHour, kMinute}, 300, kDay)
        .flag("coercCnct", ui_->Srv_Operation_checkBox_Periodic_Connect_CoercionCnct, 0)
        // Older trackers kept seconds under this name: any number but 0 means on.
        .flag("noCur", ui_->checkBox_NoCur, 30)
        .keepOnReset()
        .optional("grpTimer", ui_->checkBox_GrpTimer, ui_->spinBox_GrpTimer, 0)
        .resetTo(30);
}

KeyGroup VLK_Form_Config_Transfer::simRoamingKeys() const
{
    VLK_Form_List_Oper_Roaming* list = roamingList_;
    KeyGroup keys("ROAMSIM1");
    keys.index("mode", ui_->comboBox_RModeSim_1, static_cast<int>(std::size(vlk::kRoamingModes)),
               vlk::kDefaultRoamingMode)
        .flag("noCall", ui_->checkBox_RNoCallSim_1, 0)
        .flag("noSms", ui_->checkBox_RNoSmsSim_1, 0)
        .custom(
            "dontCnct", 0, [list](int value) { list->setDontCnct(value); },
            [list] { return list->dontCnct(); }, {list}, {QStringLiteral("0"), QStringLiteral("1")})
        .keepOnReset();
    for (int row = 0; row < VLK_Form_List_Oper_Roaming::kRows; ++row) {
        keys.custom(
                numbered("opCode%1", row + 1).constData(), 0,
                [list, row](int code) { list->setOpCode(row, code); },
                [list, row] { return list->opCode(row); }, {list},
                {QStringLiteral("0"), QStringLiteral("25001")})
            .keepOnReset();
    }
    return keys;
}

KeyGroup VLK_Form_Config_Transfer::cryptoKeys() const
{
    KeyGroup keys("CRYPTO");
    keys.text("key", ui_->lineEdit_Crypto, QString());
    for (int i = 0; i < kServers; ++i)
        keys.flag(numbered("srv%1Mode", i + 1).constData(), servers_.at(i).crypto, 0);
    return keys;
}
