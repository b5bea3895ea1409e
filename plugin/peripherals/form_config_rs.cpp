#include "peripherals/form_config_rs.h"

#include "ui_VLK_Designer_Form_Config_RS.h"

#include "peripherals/form_config_rs_param_canlog.h"
#include "peripherals/rs_owner_forms.h"
#include "settings/rs_settings.h"
#include "windows/tab_order.h"
#include "windows/wnd_config_full.h"
#include "xml/xml_section.h"

#include <utility>

namespace {

constexpr char kOwner[] = "OPTIONS/owner1";

} // namespace

VLK_Form_Config_RS::VLK_Form_Config_RS(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_RS>()),
      settings_(vlk::kRsSettings, "cfgt6_001")
{
    ui_->setupUi(this);
    // Trackers with two devices or two interfaces have these.
    for (QWidget* widget :
         std::initializer_list<QWidget*>{ui_->groupBox_RS232, ui_->label_RS485_Owner_2,
                                         ui_->comboBox_RS485_Owner_2, ui_->label_RS485_Owner_PS_2})
        widget->hide();
    settings_.bind({this});
    using This = VLK_Form_Config_RS;
    connect(&settings_, &vlk::PageSettings::changed, this, &This::takeChange);
    connect(&settings_, &vlk::PageSettings::shown, this, &This::showForm);
    retranslate();
    setDefaults();
}

VLK_Form_Config_RS::~VLK_Form_Config_RS() = default;

void VLK_Form_Config_RS::retranslate()
{
    ui_->retranslateUi(this);
    ui_->label_RS485_Owner_PS_1->setText(QStringLiteral("* %1").arg(tr("cfgt6_005")));
    settings_.retranslate();
    for (const MadeForm& made : std::as_const(made_))
        made.form->retranslate();
}

void VLK_Form_Config_RS::setDefaults()
{
    for (const MadeForm& made : std::as_const(made_))
        made.form->setDefaults();
    settings_.setDefaults();
}

void VLK_Form_Config_RS::loadFromXml(CXmlSection* root)
{
    settings_.load(root);
    const CXmlSectionPtr section = root && shown_ ? root->existing(QStringLiteral("RS485")) : nullptr;
    if (section)
        shown_->form->loadFromXml(section.get());
}

void VLK_Form_Config_RS::saveToXml(CXmlSection* root)
{
    settings_.save(root);
    const CXmlSectionPtr section = root && shown_ ? root->child(QStringLiteral("RS485")) : nullptr;
    if (section)
        shown_->form->saveToXml(section.get());
}

void VLK_Form_Config_RS::setConnected(bool connected)
{
    connected_ = connected;
    for (const MadeForm& made : std::as_const(made_))
        connected ? made.form->deviceConnected() : made.form->deviceDisconnected();
}

QString VLK_Form_Config_RS::userParamCode(const QString& text) const
{
    QString code;
    for (const MadeForm& made : made_) {
        if (made.entry->keyOfName && code.isEmpty())
            code = made.entry->keyOfName(*made.form, text);
    }
    return code;
}

QString VLK_Form_Config_RS::userParamText(const QString& code) const
{
    QString text;
    for (const MadeForm& made : made_) {
        if (made.entry->nameOfKey && text.isEmpty())
            text = made.entry->nameOfKey(*made.form, code);
    }
    return text;
}

void VLK_Form_Config_RS::setCanLogProgram(int program)
{
    settings_.edit("CNLG/program", QString::number(program));
}

void VLK_Form_Config_RS::slot_SetRS485_Settings(const QString& speed, const QString& parity,
                                                const QString& stop)
{
    // Values that come on show have their line settings with them.
    if (settings_.binder().isShowing())
        return;
    for (const auto& [box, text] :
         {std::pair(ui_->comboBox_RS485_Boudrate, speed), std::pair(ui_->comboBox_RS485_Parity, parity),
          std::pair(ui_->comboBox_RS485_StopBit, stop)}) {
        if (const int item = box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive); item >= 0)
            box->setCurrentIndex(item);
    }
}

void VLK_Form_Config_RS::slot_CanLogProgramm_Get()
{
    if (vlkConfigFull)
        vlkConfigFull->getCanLogProgram();
}

void VLK_Form_Config_RS::slot_CanLogProgramm_Set(int program)
{
    if (vlkConfigFull)
        vlkConfigFull->setCanLogProgram(program);
}

void VLK_Form_Config_RS::slot_UserParam_Add(const QString& code, const QString& name, const QString& third,
                                            int size)
{
    if (vlkConfigFull)
        vlkConfigFull->addUserParam(code, name, third, size);
}

void VLK_Form_Config_RS::slot_UserParam_Del(const QString& code, const QString& name, const QString& third,
                                            int size)
{
    if (vlkConfigFull)
        vlkConfigFull->deleteUserParam(code, name, third, size);
}

void VLK_Form_Config_RS::takeChange(const QString& path)
{
    if (path != QLatin1String(kOwner))
        return;
    showForm();
    if (shown_)
        shown_->form->applyLineSettings();
}

void VLK_Form_Config_RS::connectForm(VLK_Form_Config_RS_Param* form)
{
    using Form = VLK_Form_Config_RS_Param;
    using CanLog = VLK_Form_Config_RS_Param_CanLog;
    using Page = VLK_Form_Config_RS;
    connect(form, &Form::changeRs_Settings, this, &Page::slot_SetRS485_Settings);
    connect(form, &Form::signal_UserParam_Add, this, &Page::slot_UserParam_Add);
    connect(form, &Form::signal_UserParam_Del, this, &Page::slot_UserParam_Del);
    if (auto* canLog = qobject_cast<CanLog*>(form)) {
        connect(canLog, &CanLog::getCanLogProgramm, this, &Page::slot_CanLogProgramm_Get);
        connect(canLog, &CanLog::setCanLogProgramm, this, &Page::slot_CanLogProgramm_Set);
    }
}

const VLK_Form_Config_RS::MadeForm* VLK_Form_Config_RS::madeFor(const QString& owner)
{
    auto made = made_.find(owner);
    if (made == made_.end()) {
        const vlk::RsOwnerForm* entry = vlk::formOfOwner(owner);
        if (!entry)
            return nullptr;
        VLK_Form_Config_RS_Param* form = entry->make(this);
        // The rows of the device name its widgets by this.
        form->setObjectName(owner);
        form->setSettings(&settings_);
        connectForm(form);
        made = made_.insert(owner, {entry, form});
        settings_.join(form);
        // Last, as after a change of language: some forms shorten what the settings call a widget.
        form->retranslate();
        connected_ ? form->deviceConnected() : form->deviceDisconnected();
    }
    return &*made;
}

// The form of the owner comes in the place of the one before, which stays as it is.
void VLK_Form_Config_RS::showForm()
{
    showNotice();
    const QString owner = settings_.value(kOwner);
    if (shown_ && owner == shown_->form->objectName())
        return;
    if (shown_) {
        if (shown_->entry->withdrawAll)
            shown_->entry->withdrawAll(*shown_->form);
        shown_->form->close();
        ui_->formLayout_RS485->removeWidget(shown_->form);
        ui_->formLayout_RS485->removeRow(0);
    }
    shown_ = madeFor(owner);
    if (!shown_)
        return;
    ui_->stackedWidget_RS485_Param->setCurrentWidget(ui_->page_RS485);
    ui_->formLayout_RS485->insertRow(0, shown_->form);
    shown_->form->show();
    // It is made later than all else of the window.
    vlk::tabThrough(ui_->comboBox_RS485_StopBit, shown_->form);
    if (shown_->entry->offerAll)
        shown_->entry->offerAll(*shown_->form);
}

void VLK_Form_Config_RS::showNotice()
{
    const QString owner = settings_.value(kOwner);
    for (const vlk::RsOwner& known : vlk::kRsOwners) {
        if (owner == QLatin1String(known.code))
            ui_->label_RS485_Owner_PS_1->setVisible(known.needsConverter);
    }
}
