#pragma once

// A parameter form that is nothing but its rows: a group box with one line a row of the owner in the table of
// the RS page (windows/binder/row_inputs.h). The inputs are named as the rows say behind "TACH/".

#include "peripherals/form_config_rs_param.h"

class QComboBox;
class QGridLayout;
class QGroupBox;

namespace vlk {

class RsRowsForm : public VLK_Form_Config_RS_Param
{
    Q_OBJECT

public:
    // `owner` is the owner's code, `title` text or translation key of the group.
    RsRowsForm(const char* owner, const char* title, QWidget* parent = nullptr);

    void retranslate() override;
    // Tells the line settings of the present type, where the type has its own.
    void applyLineSettings() override;

protected:
    // Tells the line settings of a type by its text; a text that is none of the list tells nothing.
    void tellLineOf(const QString& type);

    // Null for a device of one type.
    QComboBox* types_ = nullptr;
    QGroupBox* group_;
    QGridLayout* lines_;

private:
    const char* const owner_;
    const char* const title_;
};

} // namespace vlk
