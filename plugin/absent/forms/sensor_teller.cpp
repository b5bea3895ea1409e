#include "absent/forms/sensor_teller.h"

#include "absent/forms/form_config_ble_devtype_uni.h"

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

using Uni = VLK_Form_Config_Ble_DevType_Uni;

// How the numbers of a universal sensor's values are told, by what the value is; the first one has no
// numbers.
struct NumberSignals
{
    void (Uni::*given)(const QString&);
    void (Uni::*taken)(const QString&);
};
constexpr NumberSignals kNumbers[] = {
    {nullptr, nullptr},
    {&Uni::signal_Device_Index_Add_Uni, &Uni::signal_Device_Index_Del_Uni},
    {&Uni::signal_Device_Index_Add_FlsL, &Uni::signal_Device_Index_Del_FlsL},
    {&Uni::signal_Device_Index_Add_FlsT, &Uni::signal_Device_Index_Del_FlsT},
    {&Uni::signal_Device_Index_Add_FlsF, &Uni::signal_Device_Index_Del_FlsF},
    {&Uni::signal_Device_Index_Add_TmpT, &Uni::signal_Device_Index_Del_TmpT},
    {&Uni::signal_Device_Index_Add_TmpH, &Uni::signal_Device_Index_Del_TmpH},
};

} // namespace

SensorTeller::SensorTeller(const Values& bluetooth, int sensor, const std::vector<BleSensorForm*>& forms)
    : source_(bluetooth, sensor), forms_(forms)
{
    for (BleSensorForm* form : forms_) {
        if (auto* universal = qobject_cast<Uni*>(form))
            universal_ = universal;
    }
}

BleSensorForm* SensorTeller::formOf(const BluetoothSensorType& type) const
{
    return *std::ranges::find_if(forms_, [&](const BleSensorForm* form) { return &form->type() == &type; });
}

void SensorTeller::tell(const SensorOffers& now)
{
    const SensorOffers before = std::exchange(told_, now);
    if (now.type != before.type) {
        // The type before gives back what it holds; then the other one may take it.
        if (before.number >= 0)
            formOf(*before.type)->tellIndex(before.number, -1);
        tellSupplied(before, false);
        if (now.number >= 0)
            formOf(*now.type)->tellIndex(-1, now.number);
        tellSupplied(now, true);
    } else if (now.type) {
        BleSensorForm* form = formOf(*now.type);
        if (now.vendor != before.vendor) {
            tellSupplied(before, false);
            tellSupplied(now, true);
            if (now.type->naming == BluetoothSensorType::Naming::ByVendor)
                Q_EMIT form->signal_SetSensorNameEnabled(now.type->vendors[now.vendor].named);
        }
        if (now.number != before.number)
            form->tellIndex(before.number, now.number);
    }
    for (std::size_t row = 0; row < now.rows.size(); ++row) {
        if (now.rows[row] != before.rows[row])
            tellRow(before.rows[row], now.rows[row]);
    }
}

void SensorTeller::tellSupplied(const SensorOffers& offers, bool on) const
{
    if (!offers.type)
        return;
    BleSensorForm* form = formOf(*offers.type);
    const BluetoothVendor& vendor = offers.type->vendors[offers.vendor];
    for (const userParamType type : on || vendor.withdraws.empty() ? vendor.supplies : vendor.withdraws) {
        if (on)
            Q_EMIT form->signal_Device_UserParam_Add(type);
        else
            Q_EMIT form->signal_Device_UserParam_Del(type);
    }
}

// A value that becomes something else first takes what it needs there; then what it was ends.
void SensorTeller::tellRow(const Universal& before, const Universal& now) const
{
    const bool isOther = now.target != before.target;
    const bool isRenamed = now.name != before.name || now.element != before.element;
    const bool isRenumbered = now.number != before.number;
    if (!isOther && isRenamed)
        withdraw(before);
    if (isOther || isRenamed)
        offer(now);
    if (!isOther && isRenumbered)
        give(before);
    if (isOther || isRenumbered)
        take(now);
    if (!isOther)
        return;
    withdraw(before);
    give(before);
    if (now.isUsed && !before.name.isEmpty())
        Q_EMIT universal_->signal_Use_UserParam(false);
    else if (!now.name.isEmpty() && now.number.isEmpty())
        Q_EMIT universal_->signal_Use_UserParam(true);
}

void SensorTeller::offer(const Universal& row) const
{
    if (!row.name.isEmpty())
        Q_EMIT universal_->signal_Device_UserParam_Add_Uni(userParamType::Universal, row.name, row.element);
}

void SensorTeller::withdraw(const Universal& row) const
{
    if (!row.name.isEmpty())
        Q_EMIT universal_->signal_Device_UserParam_Del_Uni(userParamType::Universal, row.name, row.element);
}

void SensorTeller::take(const Universal& row) const
{
    if (!row.number.isEmpty())
        Q_EMIT(universal_->*kNumbers[row.target].taken)(row.number);
}

void SensorTeller::give(const Universal& row) const
{
    if (!row.number.isEmpty())
        Q_EMIT(universal_->*kNumbers[row.target].given)(row.number);
}

} // namespace vlk
