#pragma once

// The form of the CAN-LOG adapter: the number of its program, which is asked from the adapter and sent to it
// while a tracker is attached, and is in no file.

#include "peripherals/rs_rows_form.h"

class QPushButton;

class VLK_Form_Config_RS_Param_CanLog : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_CanLog(QWidget* parent = nullptr);

    void deviceConnected() override;
    void deviceDisconnected() override;
    void retranslate() override;

Q_SIGNALS:
    void getCanLogProgramm();
    void setCanLogProgramm(int program);

public Q_SLOTS:
    void slot_pressed_Btn_Programm_Get();
    void slot_pressed_Btn_Programm_Set();

private:
    QPushButton* get_;
    QPushButton* set_;
};
