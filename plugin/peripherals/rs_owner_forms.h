#pragma once

// The parameter forms by the owner of the serial line. An owner without a line here has no form: the tracker
// needs nothing of it but the line settings.
//
// What a form class has is found by its names: signal_UserParam_Add and signal_UserParam_Del, offerAll() and
// withdrawAll(), keyOfName() and nameOfKey() (user parameters), getCanLogProgramm and setCanLogProgramm.

#include "peripherals/form_config_rs_param.h"

class VLK_Form_Config_RS;

namespace vlk {

struct RsOwnerForm
{
    using Form = VLK_Form_Config_RS_Param;

    const char* owner; // code
    Form* (*make)(VLK_Form_Config_RS& page);
    // Null where the class has no such operation: after the form has come on show, before it goes, and the
    // names of what it offers.
    void (*offerAll)(Form& form) = nullptr;
    void (*withdrawAll)(Form& form) = nullptr;
    QString (*keyOfName)(Form& form, const QString& text) = nullptr;
    QString (*nameOfKey)(Form& form, const QString& key) = nullptr;
};

// Null for an owner without a form.
const RsOwnerForm* formOfOwner(const QString& owner);

} // namespace vlk
