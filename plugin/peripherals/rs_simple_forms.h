#pragma once

// The devices on the serial line of which the tracker wants to know a few values: each form is its rows
// (rs_rows_form.h) under the name that the product has for it. A device whose type sets the line tells it.

#include "peripherals/rs_rows_form.h"

class VLK_Form_Config_RS_Param_NotUse : public VLK_Form_Config_RS_Param
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_NotUse(QWidget* parent = nullptr);
    void retranslate() override;

private:
    class QLabel* label_;
};

class VLK_Form_Config_RS_Param_DtaCan : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_DtaCan(QWidget* parent = nullptr)
        : RsRowsForm("DTCN", "DTA-CAN", parent)
    {
    }
};

class VLK_Form_Config_RS_Param_Dv01 : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Dv01(QWidget* parent = nullptr) : RsRowsForm("DDU", "cfgt6_015", parent)
    {
    }
};

class VLK_Form_Config_RS_Param_Hrps : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Hrps(QWidget* parent = nullptr);

public Q_SLOTS:
    void slot_currentIndexChanged_Hrps(const QString& type) { tellLineOf(type); }
};

class VLK_Form_Config_RS_Param_Refr : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Refr(QWidget* parent = nullptr);

public Q_SLOTS:
    void slot_currentIndexChanged_Refr(const QString& type) { tellLineOf(type); }
};

// The type shows and hides lines, by the table's rules.
class VLK_Form_Config_RS_Param_Rfid : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Rfid(QWidget* parent = nullptr)
        : RsRowsForm("RFID", "cfgt6_129", parent)
    {
    }

public Q_SLOTS:
    // The settings take the edit from the list itself.
    void slot_currentIndexChanged_Type(const QString&) {}
};

class VLK_Form_Config_RS_Param_Tach : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Tach(QWidget* parent = nullptr);

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString& type) { tellLineOf(type); }
};

class VLK_Form_Config_RS_Param_Tpms : public vlk::RsRowsForm
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Tpms(QWidget* parent = nullptr);

public Q_SLOTS:
    void slot_currentIndexChanged_Tpms(const QString& type) { tellLineOf(type); }
};
