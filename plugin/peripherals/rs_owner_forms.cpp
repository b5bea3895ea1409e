#include "peripherals/rs_owner_forms.h"

#include "peripherals/form_config_rs_param_canlog.h"
#include "peripherals/form_config_rs_param_flds.h"
#include "peripherals/form_config_rs_param_mdbs.h"
#include "peripherals/form_config_rs_param_pcnt.h"
#include "peripherals/rs_simple_forms.h"

#include <algorithm>
#include <iterator>

namespace vlk {

namespace {

using Base = RsOwnerForm::Form;

template <class Form>
Base* make(QWidget* parent)
{
    return new Form(parent);
}

// Six sensors, whose calibration stays with the sensor.
template <>
Base* make<VLK_Form_Config_RS_Param_Flds_RS485>(QWidget* parent)
{
    auto* form = new VLK_Form_Config_RS_Param_Flds_RS485(true, parent);
    form->hideCalibration();
    return form;
}

template <class Form>
constexpr RsOwnerForm formOf(const char* owner)
{
    RsOwnerForm entry{.owner = owner, .make = &make<Form>};
    if constexpr (requires(Form form) { form.offerAll(); }) {
        entry.offerAll = [](Base& form) { static_cast<Form&>(form).offerAll(); };
        entry.withdrawAll = [](Base& form) { static_cast<Form&>(form).withdrawAll(); };
        entry.keyOfName = [](Base& form, const QString& text) {
            return static_cast<Form&>(form).keyOfName(text);
        };
        entry.nameOfKey = [](Base& form, const QString& key) {
            return static_cast<Form&>(form).nameOfKey(key);
        };
    }
    return entry;
}

constexpr RsOwnerForm kForms[] = {
    formOf<VLK_Form_Config_RS_Param_NotUse>(""),     formOf<VLK_Form_Config_RS_Param_Flds_RS485>("FLDS"),
    formOf<VLK_Form_Config_RS_Param_CanLog>("CNLG"), formOf<VLK_Form_Config_RS_Param_DtaCan>("DTCN"),
    formOf<VLK_Form_Config_RS_Param_Tpms>("TPMS"),   formOf<VLK_Form_Config_RS_Param_Hrps>("HRPS"),
    formOf<VLK_Form_Config_RS_Param_Refr>("REFR"),   formOf<VLK_Form_Config_RS_Param_Dv01>("DDU"),
    formOf<VLK_Form_Config_RS_Param_Tach>("TACH"),   formOf<VLK_Form_Config_RS_Param_Rfid>("RFID"),
    formOf<VLK_Form_Config_RS_Param_Mdbs>("MDBS"),   formOf<VLK_Form_Config_RS_Param_Pcnt>("PCNT"),
};

} // namespace

const RsOwnerForm* formOfOwner(const QString& owner)
{
    const auto* found = std::ranges::find_if(
        kForms, [&](const RsOwnerForm& entry) { return owner == QLatin1String(entry.owner); });
    return found == std::end(kForms) ? nullptr : found;
}

} // namespace vlk
