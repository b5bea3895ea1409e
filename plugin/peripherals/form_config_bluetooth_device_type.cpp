#include "peripherals/form_config_bluetooth_device_type.h"

#include "absent/forms/form_config_ble_devtype_uni.h"
#include "absent/forms/sensor_teller.h"
#include "absent/forms/unlisted_sensor_forms.h"
#include "absent/params/user_params.h"
#include "sensors/ble_sensor_forms.h"
#include "windows/binder/page_settings.h"
#include "windows/needed_height.h"

#include <QEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using vlk::BleSensorForm;

constexpr int kHeightWithoutForm = 10;

template <class Form>
BleSensorForm* makeForm(const vlk::BluetoothSensorType& type, int sensor, vlk::PageSettings& settings)
{
    return new Form(type, sensor, settings);
}

// Types whose form has a class of its own; every other one is told by its row in the table of types alone.
struct FormClass
{
    const char* code;
    BleSensorForm* (*make)(const vlk::BluetoothSensorType&, int, vlk::PageSettings&);
};
constexpr FormClass kClasses[] = {
    {"1", &makeForm<VLK_Form_Config_Ble_DevType_FLS>}, {"2", &makeForm<VLK_Form_Config_Ble_DevType_Temp>},
    {"3", &makeForm<VLK_Form_Config_Ble_DevType_AS>},  {"4", &makeForm<VLK_Form_Config_Ble_DevType_AXS>},
    {"5", &makeForm<VLK_Form_Config_Ble_DevType_FW>},  {"6", &makeForm<VLK_Form_Config_Ble_DevType_Uni>},
    {"7", &makeForm<VLK_Form_Config_Ble_DevType_US>},  {"8", &makeForm<VLK_Form_Config_Ble_DevType_AIN>},
    {"9", &makeForm<VLK_Form_Config_Ble_DevType_HS>},
};

BleSensorForm* newForm(const vlk::BluetoothSensorType& type, int sensor, vlk::PageSettings& settings)
{
    for (const FormClass& known : kClasses) {
        if (qstrcmp(known.code, type.code) == 0)
            return known.make(type, sensor, settings);
    }
    return new BleSensorForm(type, sensor, settings);
}

} // namespace

VLK_Form_Config_Bluetooth_Device_Type::VLK_Form_Config_Bluetooth_Device_Type(int sensor,
                                                                             vlk::PageSettings& settings,
                                                                             QWidget* parent)
    : QWidget(parent), sensor_(sensor), settings_(settings), params_(std::make_unique<VLK_UserParams>()),
      stack_(new QStackedWidget)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(stack_);
    stack_->setObjectName(QStringLiteral("stackedWidget_Bluetooth_Type"));
    auto* none = new QWidget;
    none->setObjectName(QStringLiteral("page_No"));
    stack_->addWidget(none);
    for (const vlk::BluetoothSensorType& type : vlk::kBluetoothSensorTypes)
        addForm(newForm(type, sensor_, settings_));
    connectUniversal();
    teller_ = std::make_unique<vlk::SensorTeller>(settings_.values(), sensor_, forms_);
    showType(0);
}

VLK_Form_Config_Bluetooth_Device_Type::~VLK_Form_Config_Bluetooth_Device_Type() = default;

void VLK_Form_Config_Bluetooth_Device_Type::addForm(BleSensorForm* form)
{
    using This = VLK_Form_Config_Bluetooth_Device_Type;
    auto* page = new QWidget;
    page->setObjectName(QString::fromLatin1(form->type().page));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(form);
    stack_->addWidget(page);
    forms_.push_back(form);
    connect(form, &BleSensorForm::signal_Device_UserParam_Add, this, &This::slot_Device_UserParam_Add);
    connect(form, &BleSensorForm::signal_Device_UserParam_Del, this, &This::slot_Device_UserParam_Del);
    connect(form, &BleSensorForm::signal_SetSensorNameEnabled, this, &This::slot_SetSensorNameEnabled);
    connectNumbers(form);
}

void VLK_Form_Config_Bluetooth_Device_Type::connectNumbers(BleSensorForm* form)
{
    using This = VLK_Form_Config_Bluetooth_Device_Type;
    if (auto* fuel = qobject_cast<VLK_Form_Config_Ble_DevType_FLS*>(form))
        connect(fuel, &VLK_Form_Config_Ble_DevType_FLS::signal_ChangeIdx_Dev_FS, this,
                &This::slot_ChangeIdx_Dev_FS);
    else if (auto* degrees = qobject_cast<VLK_Form_Config_Ble_DevType_Temp*>(form))
        connect(degrees, &VLK_Form_Config_Ble_DevType_Temp::signal_ChangeIdx_Dev_Int_TS, this,
                &This::slot_ChangeIdx_Dev_Int_Temp);
    else if (auto* tilt = qobject_cast<VLK_Form_Config_Ble_DevType_AS*>(form))
        connect(tilt, &VLK_Form_Config_Ble_DevType_AS::signal_ChangeIdx_Dev_Int_AS, this,
                &This::slot_ChangeIdx_Dev_Int_AS);
    else if (auto* combined = qobject_cast<VLK_Form_Config_Ble_DevType_US*>(form))
        connect(combined, &VLK_Form_Config_Ble_DevType_US::signal_ChangeIdx_Dev_Int_US, this,
                &This::slot_ChangeIdx_Dev_Int_US);
    else if (auto* input = qobject_cast<VLK_Form_Config_Ble_DevType_AIN*>(form))
        connect(input, &VLK_Form_Config_Ble_DevType_AIN::signal_ChangeIdx_Dev_Int_AIN, this,
                &This::slot_ChangeIdx_Dev_Int_AIN);
    else if (form->type().index.list == vlk::BluetoothList::Fuel)
        connect(form, &BleSensorForm::indexChanged, this, [this, form](int give, int take) {
            slot_ChangeIdx_Dev_FS(form->indexText(give), form->indexText(take));
        });
    else if (form->type().index.list == vlk::BluetoothList::Temperature)
        connect(form, &BleSensorForm::indexChanged, this, &This::signal_ChangeIdxTS_Int);
}

void VLK_Form_Config_Bluetooth_Device_Type::connectUniversal()
{
    using This = VLK_Form_Config_Bluetooth_Device_Type;
    using Uni = VLK_Form_Config_Ble_DevType_Uni;
    for (BleSensorForm* form : forms_) {
        if (auto* universal = qobject_cast<Uni*>(form))
            universal_ = universal;
    }
    connect(universal_, &Uni::signal_Device_UserParam_Add_Uni, this, &This::slot_Device_UserParam_Add_Uni);
    connect(universal_, &Uni::signal_Device_UserParam_Del_Uni, this, &This::slot_Device_UserParam_Del_Uni);
    connect(universal_, &Uni::signal_Use_UserParam, this, &This::slot_Use_UserParam);
    using Numbers = std::pair<void (Uni::*)(const QString&), void (This::*)(const QString&)>;
    constexpr Numbers numbers[] = {
        {&Uni::signal_Device_Index_Add_Uni, &This::slot_Device_Index_Add_Uni},
        {&Uni::signal_Device_Index_Del_Uni, &This::slot_Device_Index_Del_Uni},
        {&Uni::signal_Device_Index_Add_FlsL, &This::slot_Device_Index_Add_FlsL},
        {&Uni::signal_Device_Index_Del_FlsL, &This::slot_Device_Index_Del_FlsL},
        {&Uni::signal_Device_Index_Add_FlsT, &This::slot_Device_Index_Add_FlsT},
        {&Uni::signal_Device_Index_Del_FlsT, &This::slot_Device_Index_Del_FlsT},
        {&Uni::signal_Device_Index_Add_FlsF, &This::slot_Device_Index_Add_FlsF},
        {&Uni::signal_Device_Index_Del_FlsF, &This::slot_Device_Index_Del_FlsF},
        {&Uni::signal_Device_Index_Add_TmpT, &This::slot_Device_Index_Add_TmpT},
        {&Uni::signal_Device_Index_Del_TmpT, &This::slot_Device_Index_Del_TmpT},
        {&Uni::signal_Device_Index_Add_TmpH, &This::slot_Device_Index_Add_TmpH},
        {&Uni::signal_Device_Index_Del_TmpH, &This::slot_Device_Index_Del_TmpH},
    };
    for (const auto& [from, to] : numbers)
        connect(universal_, from, this, to);
}

BleSensorForm* VLK_Form_Config_Bluetooth_Device_Type::formOf(int type) const
{
    for (BleSensorForm* form : forms_) {
        if (QByteArray(form->type().code).toInt() == type)
            return form;
    }
    return nullptr;
}

void VLK_Form_Config_Bluetooth_Device_Type::selectType(int type)
{
    if (type == type_)
        showType(type);
    else
        settings_.edit(QStringLiteral("SENS%1/form").arg(sensor_), QString::number(formOf(type) ? type : 0));
}

void VLK_Form_Config_Bluetooth_Device_Type::showType(int type)
{
    BleSensorForm* form = formOf(type);
    if (form)
        form->make();
    QWidget* page = form ? form->parentWidget() : stack_->widget(0);
    // Pages that are not on show take no room.
    for (int i = 0; i < stack_->count(); ++i) {
        const auto policy = stack_->widget(i) == page ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        stack_->widget(i)->setSizePolicy(policy, policy);
    }
    stack_->setCurrentWidget(page);
    type_ = type;
    fitHeight();
    Q_EMIT signalEnabledSensorName(form && form->needsName());
}

// Large fonts need more than the usual height.
void VLK_Form_Config_Bluetooth_Device_Type::fitHeight()
{
    const BleSensorForm* form = formOf(type_);
    const int usual = form ? form->type().height : kHeightWithoutForm;
    setFixedHeight(std::max(usual, vlk::neededHeight(stack_->currentWidget(), width())));
}

bool VLK_Form_Config_Bluetooth_Device_Type::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        fitHeight();
    return QWidget::event(event);
}

void VLK_Form_Config_Bluetooth_Device_Type::tellChanges()
{
    teller_->tell();
    if (const int now = settings_.number(QStringLiteral("SENS%1/form").arg(sensor_)); now != type_)
        showType(now);
}

void VLK_Form_Config_Bluetooth_Device_Type::loadForm(int type, CXmlSection* bluetooth)
{
    if (BleSensorForm* form = formOf(type))
        form->load(bluetooth);
}

void VLK_Form_Config_Bluetooth_Device_Type::saveForm(int type, CXmlSection* bluetooth) const
{
    if (const BleSensorForm* form = formOf(type))
        form->save(bluetooth);
}

void VLK_Form_Config_Bluetooth_Device_Type::resetForms()
{
    selectType(0);
    for (BleSensorForm* form : forms_)
        form->setDefaults();
}

void VLK_Form_Config_Bluetooth_Device_Type::clearTests()
{
    universal_->clearTests();
}

void VLK_Form_Config_Bluetooth_Device_Type::retranslate()
{
    teller_->withdrawAll();
    params_ = std::make_unique<VLK_UserParams>();
    teller_->tell();
    for (BleSensorForm* form : forms_)
        form->retranslate();
    fitHeight();
}

QString VLK_Form_Config_Bluetooth_Device_Type::keyToDisplay(const QString& key) const
{
    QString known = params_->keyToDisplay(key);
    if (!known.isEmpty())
        return known;
    const QString name = universal_->keyToDisplay(key);
    return name.isEmpty() ? name
                          : QStringLiteral("%1, %2").arg(params_->paramCode(userParamType::Universal), name);
}

QString VLK_Form_Config_Bluetooth_Device_Type::displayToKey(const QString& text) const
{
    return params_->displayToKey(text);
}

void VLK_Form_Config_Bluetooth_Device_Type::slot_ChangeIdx_Dev_FS(const QString& give, const QString& take)
{
    Q_EMIT signal_ChangeIdxFS(give, take);
}

void VLK_Form_Config_Bluetooth_Device_Type::slot_Device_UserParam_Add(userParamType type)
{
    Q_EMIT signal_UserParam_Add(params_->paramCode(type), params_->paramName(type, sensor_), {},
                                params_->paramSize(type));
}

void VLK_Form_Config_Bluetooth_Device_Type::slot_Device_UserParam_Del(userParamType type)
{
    Q_EMIT signal_UserParam_Del(params_->paramCode(type), params_->paramName(type, sensor_), {},
                                params_->paramSize(type));
}

void VLK_Form_Config_Bluetooth_Device_Type::slot_Device_UserParam_Add_Uni(userParamType type,
                                                                          const QString& name,
                                                                          const QString& element)
{
    Q_EMIT signal_UserParam_Add(params_->paramCode(type), name, {}, params_->typeCodeSize(element));
}

void VLK_Form_Config_Bluetooth_Device_Type::slot_Device_UserParam_Del_Uni(userParamType type,
                                                                          const QString& name,
                                                                          const QString& element)
{
    Q_EMIT signal_UserParam_Del(params_->paramCode(type), name, {}, params_->typeCodeSize(element));
}
