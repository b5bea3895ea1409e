#include "dialog/form_config_light.h"

#include "ui_VLK_Designer_Form_Config_Light.h"

#include "base/shown_text.h"
#include "dialog/quick_help.h"
#include "link/device.h"
#include "pages/form_auto_apn_list_new.h"
#include "settings/quick_settings.h"
#include "windows/help_icon.h"
#include "windows/server_test.h"
#include "windows/way_to.h"

#include <QEvent>

namespace {

void showHelp(vlk::QuickHelp help)
{
    if (vlkDevice)
        vlkDevice->showText(vlk::quickHelpTitle(help), vlk::quickHelpText(help));
}

} // namespace

VLK_Form_Config_Light::VLK_Form_Config_Light(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Light>()),
      settings_(vlk::kQuickSettings, nullptr)
{
    ui_->setupUi(this);
    apnList_ = new VLK_FormAutoApnListNew(this);
    vlk::leadsTo(apnList_, ui_->pushButton_AutoAPN_1);
    settings_.bind({this, apnList_});
    connectWidgets();
    showHelpIcons();
    retranslate();
    setDefaults();
}

VLK_Form_Config_Light::~VLK_Form_Config_Light() = default;

void VLK_Form_Config_Light::connectWidgets()
{
    using This = VLK_Form_Config_Light;
    const std::pair<QPushButton*, void (This::*)()> buttons[] = {
        {ui_->pushButton_AutoAPN_1, &This::slot_pressedBtnListApn},
        {ui_->pushButton_Wnd_Help_Psw, &This::slot_pressed_BtnWndHelp_Psw},
        {ui_->pushButton_Wnd_Help_GPRS, &This::slot_pressed_BtnWndHelp_GPRS},
        {ui_->pushButton_Wnd_Help_Server, &This::slot_pressed_BtnWndHelp_Server},
        {ui_->pushButton_Wnd_Help_Track, &This::slot_pressed_BtnWndHelp_Track},
        {ui_->pushButton_Wnd_Help_Sensors, &This::slot_pressed_BtnWndHelp_Sensors},
    };
    for (const auto& [button, slot] : buttons)
        connect(button, &QPushButton::clicked, this, slot);
    connect(ui_->GPRSSrv_toolButton_Test_Main, &QToolButton::clicked, this, &This::slot_pressed_BtnTestMain);
}

// The icons have the colour of the palette's text.
void VLK_Form_Config_Light::showHelpIcons()
{
    for (QPushButton* button :
         {ui_->pushButton_Wnd_Help_Psw, ui_->pushButton_Wnd_Help_GPRS, ui_->pushButton_Wnd_Help_Server,
          ui_->pushButton_Wnd_Help_Track, ui_->pushButton_Wnd_Help_Sensors}) {
        button->setIcon(vlk::helpIcon());
        button->setIconSize(button->maximumSize());
    }
}

void VLK_Form_Config_Light::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showHelpIcons();
}

void VLK_Form_Config_Light::retranslate()
{
    ui_->retranslateUi(this);
    apnList_->retranslate();
    settings_.retranslate();
    settings_.selectFirstItems();
    for (QGroupBox* sim : {ui_->Transfer_groupBox_GSM_1, ui_->groupBox_RSim_1})
        sim->setTitle(QStringLiteral("%1 1").arg(tr("cfgt1_025")));
    ui_->label_Psw_Warning->setText(QStringLiteral("%1!\r\n%2.").arg(tr("wrd_005"), tr("cfgt4_008")));
    const std::pair<QPushButton*, QGroupBox*> helped[] = {
        {ui_->pushButton_Wnd_Help_Psw, ui_->Settings_groupBox_Psw},
        {ui_->pushButton_Wnd_Help_GPRS, ui_->groupBox_GPRS},
        {ui_->pushButton_Wnd_Help_Server, ui_->GPRSSrv_groupBox},
        {ui_->pushButton_Wnd_Help_Track, ui_->groupBox_Track},
        {ui_->pushButton_Wnd_Help_Sensors, ui_->groupBox_Sensors},
    };
    for (const auto& [button, box] : helped) {
        const QString name = vlk::inOneLine(tr("wrd_027")) + QStringLiteral(": ") + box->title();
        button->setAccessibleName(name);
        button->setToolTip(name);
    }
}

void VLK_Form_Config_Light::setDefaults()
{
    apnList_->setDefaults();
    settings_.setDefaults();
}

void VLK_Form_Config_Light::focusFirstField()
{
    ui_->Transfer_comboBox_GSM_Operator_1->setFocus();
}

QWidget* VLK_Form_Config_Light::lastField() const
{
    return ui_->pushButton_Wnd_Help_Psw;
}

void VLK_Form_Config_Light::slot_pressedBtnListApn()
{
    apnList_->showExpanded();
}

void VLK_Form_Config_Light::slot_pressed_BtnTestMain()
{
    if (!serverTest_) {
        serverTest_ = new vlk_Socket(this);
        connect(serverTest_, &vlk_Socket::testConnected, this, &VLK_Form_Config_Light::slot_testConnected);
    }
    serverTest_->test(settings_.value("TRANS/SRV1/addr"), settings_.number("TRANS/SRV1/port"));
}

void VLK_Form_Config_Light::slot_testConnected(const QString& /*peerIp*/, const QString& /*hostName*/,
                                               bool ok)
{
    vlk::showServerAnswer(this, ok, tr(ok ? "cfgwl_037" : "cfgwl_036"));
    // The address that failed is what the user looks at next.
    if (!ok)
        ui_->GPRSSrv_lineEdit_IP_DNS_Main->setFocus();
}

void VLK_Form_Config_Light::slot_pressed_BtnWndHelp_Psw()
{
    showHelp(vlk::QuickHelp::Passwords);
}

void VLK_Form_Config_Light::slot_pressed_BtnWndHelp_GPRS()
{
    showHelp(vlk::QuickHelp::AccessPoint);
}

void VLK_Form_Config_Light::slot_pressed_BtnWndHelp_Server()
{
    showHelp(vlk::QuickHelp::Server);
}

void VLK_Form_Config_Light::slot_pressed_BtnWndHelp_Track()
{
    showHelp(vlk::QuickHelp::Track);
}

void VLK_Form_Config_Light::slot_pressed_BtnWndHelp_Sensors()
{
    showHelp(vlk::QuickHelp::Sensors);
}

void VLK_Form_Config_Light::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    apnList_->close();
    if (serverTest_)
        serverTest_->deleteLater();
    serverTest_.clear();
}
