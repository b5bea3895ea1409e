#pragma once

// The data-set page of this tracker: the tabs that it has, and the texts in which it differs from others.

#include "dataset/form_config_set_zeta3.h"

class VLK_Form_Config_Zeta3 : public VLK_Form_Config_Set_Zeta3
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Zeta3(QWidget* parent = nullptr);

    void retranslate();

    virtual void applyModelLabels();
    virtual void applyModelProfile();
};
