#pragma once

// The Modbus master on the serial line: up to 32 values that the tracker reads from sensors, and up to ten
// conditions under which a change of one makes an event. Nothing of it stands in the configuration file: the
// rows live as long as the window. Every row in use is a user parameter, offered and withdrawn by the signals
// with the code "MB", the row's name, its data type and size.

#include "peripherals/form_config_rs_param.h"
#include "peripherals/modbus_event_row.h"
#include "peripherals/modbus_row.h"

#include <vector>

class QGridLayout;
class QGroupBox;
class QLabel;
class QRadioButton;

class VLK_Form_Config_RS_Param_Mdbs : public VLK_Form_Config_RS_Param
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS_Param_Mdbs(QWidget* parent = nullptr);

    void setDefaults() override;
    void retranslate() override;

    // Offers and withdraws every row in use, as the form comes on show and goes.
    void offerAll();
    void withdrawAll();

    // "MB3" of the row in use whose name and data type are this text, and the way back; empty when there is
    // none.
    QString keyOfName(const QString& text) const;
    QString nameOfKey(const QString& key) const;

public Q_SLOTS:
    // Rows are counted from 1.
    void slot_stateChanged_Interface_Modbus_Use(int row, int state);
    void slot_valueChanged_Modbus_Addr(int row, int value);
    void slot_valueChanged_Modbus_Reg_Num(int row, int value);
    void slot_valueChanged_Modbus_Reg_Addr(int row, int value);
    void slot_currentIndexChanged_Modbus_Reg_Type(int row, const QString& text);
    void slot_currentIndexChanged_Modbus_Param(int row, const QString& text);
    void slot_stateChanged_Interface_Events_Use(int row, int state);
    void slot_currentIndexChanged_Interface_Events_Condition(int row, const QString& text);
    void slot_toggled_Calc_NumType(bool on);

private:
    struct Line
    {
        vlk::ModbusRow row;
        vlk::UserParam offered;
    };

    // A group of rows below the captions of its columns.
    struct Table
    {
        QGroupBox* group;
        QGridLayout* grid;
        QList<const char*> captions;
        QList<QLabel*> labels;
    };

    Table makeTable(const char* name, const QList<const char*>& captions);
    void makeRows();
    void makeEventRows();
    void makeLists();
    static void retranslate(const Table& table, const char* title);
    Line& line(int row) { return lines_[static_cast<std::size_t>(row) - 1]; }
    bool byNumber() const;
    void tellOf(Line& line);
    void add(const vlk::UserParam& offer);
    void withdraw(const vlk::UserParam& offer);
    void offerEventNames();

    QGroupBox* choice_;
    QRadioButton* byType_;
    QRadioButton* byNumber_;
    Table values_;
    Table events_;
    std::vector<Line> lines_;
    std::vector<vlk::ModbusEventRow> eventRows_;
    QStringList eventNames_; // of the values in use, in the order of their rows
    vlk::ModbusLists lists_;
    QStringList conditions_;
    int lastAddress_ = 1;
    bool onOffer_ = true;    // the rows in use stand in the data set
    bool arranging_ = false; // the widgets of a row are being set to agree with each other
};
