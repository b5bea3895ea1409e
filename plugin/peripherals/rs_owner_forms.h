#pragma once

// The parameter forms by the owner of the serial line. An owner without a line here has no form: the tracker
// needs nothing of it but the line settings.
//
// What a form class knows of user parameters is found by its names: offerAll() and withdrawAll(), keyOfName()
// and nameOfKey().

#include "peripherals/form_config_rs_param.h"

namespace vlk {

struct RsOwnerForm
{
    using Form = VLK_Form_Config_RS_Param;

    const char* owner; // code
    Form* (*make)(QWidget* parent);
    // What the form offers is told after it has come on show and taken back before it goes; its names are
    // looked up by the other two. Null where the class has no such operation.
    void (*offerAll)(Form& form) = nullptr;
    void (*withdrawAll)(Form& form) = nullptr;
    QString (*keyOfName)(Form& form, const QString& text) = nullptr;
    QString (*nameOfKey)(Form& form, const QString& key) = nullptr;
};

// Null for an owner without a form.
const RsOwnerForm* formOfOwner(const QString& owner);

} // namespace vlk
