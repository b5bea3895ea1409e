#include "absent/forms/form_config_set_zeta3_tab_user.h"

#include "absent/forms/param_choice_dialog.h"
#include "absent/params/param_catalogues.h"
#include "absent/params/user_params.h"
#include "document/values_document.h"
#include "settings/values.h"
#include "typing/grid.h"
#include "windows/wnd_config_full.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>

#include <numeric>

namespace {

QString pathOf(const vlk::UserParamSlots& slots, int slot)
{
    return QStringLiteral("%1/p%2").arg(QLatin1String(slots.element)).arg(slot);
}

QList<vlk::ParamChoice> canChoices()
{
    QList<vlk::ParamChoice> choices;
    VLK_UserParams params;
    for (int i = 0; i < static_cast<int>(vlk::kCanCatalogues.size()); ++i) {
        const vlk::ParamCatalogue& catalogue = vlk::kCanCatalogues.at(static_cast<std::size_t>(i));
        for (const VLK_UserParam_CAN* entry : params.canList(i)) {
            vlk::ParamChoice choice;
            choice.group = QCoreApplication::translate("vlk", catalogue.title);
            choice.param = {QLatin1String(catalogue.code), entry->name(), params.typeText(entry->type()),
                            params.typeCodeSize(entry->type())};
            for (const VLK_UserParam_CAN_Bit* bit : entry->bits())
                choice.bits << bit->name();
            choices << choice;
        }
    }
    return choices;
}

} // namespace

VLK_Form_Config_Set_Zeta3_Tab_User::VLK_Form_Config_Set_Zeta3_Tab_User(int index, QWidget* parent)
    : VLK_Form_Config_Set_Zeta3_Tab(index, parent), can_(new QPushButton), modbus_(new QPushButton)
{
    auto* layout = new QVBoxLayout(this);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(vlk::grid::kColumn);
    can_->setObjectName(QStringLiteral("pushButton_Set_CAN"));
    modbus_->setObjectName(QStringLiteral("pushButton_Set_MODBUS"));
    for (QPushButton* button : {can_, modbus_}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
    for (const vlk::UserParamSlots& slots : vlk::kUserParamSlots) {
        const int bytes = slots.bytes;
        groups_.emplace_back(slots, [this, bytes](int slot) {
            groupOf(bytes)->takeChoice(slot);
            Q_EMIT bytesBesideMaskChanged();
        });
        layout->addWidget(groups_.back().box());
    }
    layout->addStretch();
    using This = VLK_Form_Config_Set_Zeta3_Tab_User;
    connect(can_, &QPushButton::clicked, this, &This::slot_pressed_Set_CAN);
    connect(modbus_, &QPushButton::clicked, this, &This::slot_pressed_Set_MODBUS);
    This::retranslate();
}

void VLK_Form_Config_Set_Zeta3_Tab_User::retranslate()
{
    setTitle(tr("cfgt5_007"));
    can_->setText(tr("cfgt5_008"));
    modbus_->setText(tr("cfgt5_009"));
    for (vlk::UserParamGroup& group : groups_)
        group.retranslate();
}

void VLK_Form_Config_Set_Zeta3_Tab_User::afterDefaults()
{
    for (vlk::UserParamGroup& group : groups_) {
        for (int slot = 1; slot <= group.slots().count; ++slot)
            group.choose(slot, {});
    }
}

int VLK_Form_Config_Set_Zeta3_Tab_User::bytesBesideMask() const
{
    return std::accumulate(
        groups_.begin(), groups_.end(), 0,
        [](int bytes, const vlk::UserParamGroup& group) { return bytes + group.bytesInUse(); });
}

vlk::UserParamGroup* VLK_Form_Config_Set_Zeta3_Tab_User::groupOf(int bytes)
{
    for (vlk::UserParamGroup& group : groups_) {
        if (group.slots().bytes == bytes)
            return &group;
    }
    return nullptr;
}

void VLK_Form_Config_Set_Zeta3_Tab_User::userParamAdded(const QString& code, const QString& name,
                                                        const QString& third, int size)
{
    const vlk::UserParam param{code, name, third, size};
    if (code == QLatin1String(vlk::kModbusCode) && !modbusRows_.contains(param))
        modbusRows_ << param;
    offer(param);
}

void VLK_Form_Config_Set_Zeta3_Tab_User::userParamDeleted(const QString& code, const QString& name,
                                                          const QString& third, int size)
{
    const vlk::UserParam param{code, name, third, size};
    modbusRows_.removeAll(param);
    withdraw(param);
}

void VLK_Form_Config_Set_Zeta3_Tab_User::offer(const vlk::UserParam& param)
{
    if (vlk::UserParamGroup* group = groupOf(param.bytes))
        group->add(param.display());
}

void VLK_Form_Config_Set_Zeta3_Tab_User::withdraw(const vlk::UserParam& param)
{
    if (vlk::UserParamGroup* group = groupOf(param.bytes))
        group->remove(param.display());
}

QString VLK_Form_Config_Set_Zeta3_Tab_User::keyOf(const QString& text) const
{
    if (text.isEmpty())
        return {};
    for (const vlk::FixedUserParam& fixed : vlk::kFixedUserParams) {
        if (text == tr(fixed.text))
            return QLatin1String(fixed.key);
    }
    return vlkConfigFull ? vlkConfigFull->userParamCode(text) : QString();
}

QString VLK_Form_Config_Set_Zeta3_Tab_User::textOf(const QString& key) const
{
    if (key.isEmpty())
        return {};
    for (const vlk::FixedUserParam& fixed : vlk::kFixedUserParams) {
        if (key == QLatin1String(fixed.key))
            return tr(fixed.text);
    }
    return vlkConfigFull ? vlkConfigFull->userParamText(key) : QString();
}

void VLK_Form_Config_Set_Zeta3_Tab_User::loadUserParams(CXmlSection* root)
{
    if (!root)
        return;
    vlk::Values keys(vlk::kUserParamSettings);
    readFrom(*root, keys);
    // A value that stood elsewhere before is free for its slot of the file.
    afterDefaults();
    for (vlk::UserParamGroup& group : groups_) {
        for (int slot = 1; slot <= group.slots().count; ++slot)
            group.choose(slot, textOf(keys.value(pathOf(group.slots(), slot))));
    }
}

void VLK_Form_Config_Set_Zeta3_Tab_User::saveUserParams(CXmlSection* root)
{
    if (!root)
        return;
    vlk::Values keys(vlk::kUserParamSettings);
    for (const vlk::UserParamGroup& group : groups_) {
        for (int slot = 1; slot <= group.slots().count; ++slot)
            keys.edit(pathOf(group.slots(), slot), keyOf(group.text(slot)));
    }
    writeTo(*root, keys);
}

void VLK_Form_Config_Set_Zeta3_Tab_User::slot_pressed_Set_CAN()
{
    chooseCan();
}

void VLK_Form_Config_Set_Zeta3_Tab_User::slot_pressed_Set_MODBUS()
{
    chooseModbus();
}

void VLK_Form_Config_Set_Zeta3_Tab_User::chooseCan()
{
    chooseFrom(tr("cfgt5_008"), canChoices());
}

void VLK_Form_Config_Set_Zeta3_Tab_User::chooseModbus()
{
    QList<vlk::ParamChoice> choices;
    for (const vlk::UserParam& row : std::as_const(modbusRows_))
        choices << vlk::ParamChoice{{}, row, {}, false};
    chooseFrom(tr("cfgt5_009"), choices);
}

// Offers what the user checks and withdraws what he unchecks; a Modbus row stays one in use either way.
void VLK_Form_Config_Set_Zeta3_Tab_User::chooseFrom(const QString& title, QList<vlk::ParamChoice> choices)
{
    for (vlk::ParamChoice& choice : choices) {
        const vlk::UserParamGroup* group = groupOf(choice.param.bytes);
        choice.onOffer = group && group->offers(choice.param.display());
    }
    using Dialog = vlk::ParamChoiceDialog;
    Dialog dialog(title, choices, this);
    connect(&dialog, &Dialog::signal_UserParam_Add, this,
            [this](const QString& code, const QString& name, const QString& third, int size) {
                offer({code, name, third, size});
            });
    connect(&dialog, &Dialog::signal_UserParam_Del, this,
            [this](const QString& code, const QString& name, const QString& third, int size) {
                withdraw({code, name, third, size});
            });
    dialog.exec();
}
