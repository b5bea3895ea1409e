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
    // An empty one names an edit that the form takes from its widget itself.
    void slot_stateChanged_Interface_Modbus_Use_1(int) {}
    void slot_stateChanged_Interface_Modbus_Use_2(int) {}
    void slot_stateChanged_Interface_Modbus_Use_3(int) {}
    void slot_stateChanged_Interface_Modbus_Use_4(int) {}
    void slot_stateChanged_Interface_Modbus_Use_5(int) {}
    void slot_stateChanged_Interface_Modbus_Use_6(int) {}
    void slot_stateChanged_Interface_Modbus_Use_7(int) {}
    void slot_stateChanged_Interface_Modbus_Use_8(int) {}
    void slot_stateChanged_Interface_Modbus_Use_9(int) {}
    void slot_stateChanged_Interface_Modbus_Use_10(int) {}
    void slot_stateChanged_Interface_Modbus_Use_11(int) {}
    void slot_stateChanged_Interface_Modbus_Use_12(int) {}
    void slot_stateChanged_Interface_Modbus_Use_13(int) {}
    void slot_stateChanged_Interface_Modbus_Use_14(int) {}
    void slot_stateChanged_Interface_Modbus_Use_15(int) {}
    void slot_stateChanged_Interface_Modbus_Use_16(int) {}
    void slot_stateChanged_Interface_Modbus_Use_17(int) {}
    void slot_stateChanged_Interface_Modbus_Use_18(int) {}
    void slot_stateChanged_Interface_Modbus_Use_19(int) {}
    void slot_stateChanged_Interface_Modbus_Use_20(int) {}
    void slot_stateChanged_Interface_Modbus_Use_21(int) {}
    void slot_stateChanged_Interface_Modbus_Use_22(int) {}
    void slot_stateChanged_Interface_Modbus_Use_23(int) {}
    void slot_stateChanged_Interface_Modbus_Use_24(int) {}
    void slot_stateChanged_Interface_Modbus_Use_25(int) {}
    void slot_stateChanged_Interface_Modbus_Use_26(int) {}
    void slot_stateChanged_Interface_Modbus_Use_27(int) {}
    void slot_stateChanged_Interface_Modbus_Use_28(int) {}
    void slot_stateChanged_Interface_Modbus_Use_29(int) {}
    void slot_stateChanged_Interface_Modbus_Use_30(int) {}
    void slot_stateChanged_Interface_Modbus_Use_31(int) {}
    void slot_stateChanged_Interface_Modbus_Use_32(int) {}
    void slot_valueChanged_Modbus_Addr_1(int) {}
    void slot_valueChanged_Modbus_Addr_2(int) {}
    void slot_valueChanged_Modbus_Addr_3(int) {}
    void slot_valueChanged_Modbus_Addr_4(int) {}
    void slot_valueChanged_Modbus_Addr_5(int) {}
    void slot_valueChanged_Modbus_Addr_6(int) {}
    void slot_valueChanged_Modbus_Addr_7(int) {}
    void slot_valueChanged_Modbus_Addr_8(int) {}
    void slot_valueChanged_Modbus_Addr_9(int) {}
    void slot_valueChanged_Modbus_Addr_10(int) {}
    void slot_valueChanged_Modbus_Addr_11(int) {}
    void slot_valueChanged_Modbus_Addr_12(int) {}
    void slot_valueChanged_Modbus_Addr_13(int) {}
    void slot_valueChanged_Modbus_Addr_14(int) {}
    void slot_valueChanged_Modbus_Addr_15(int) {}
    void slot_valueChanged_Modbus_Addr_16(int) {}
    void slot_valueChanged_Modbus_Addr_17(int) {}
    void slot_valueChanged_Modbus_Addr_18(int) {}
    void slot_valueChanged_Modbus_Addr_19(int) {}
    void slot_valueChanged_Modbus_Addr_20(int) {}
    void slot_valueChanged_Modbus_Addr_21(int) {}
    void slot_valueChanged_Modbus_Addr_22(int) {}
    void slot_valueChanged_Modbus_Addr_23(int) {}
    void slot_valueChanged_Modbus_Addr_24(int) {}
    void slot_valueChanged_Modbus_Addr_25(int) {}
    void slot_valueChanged_Modbus_Addr_26(int) {}
    void slot_valueChanged_Modbus_Addr_27(int) {}
    void slot_valueChanged_Modbus_Addr_28(int) {}
    void slot_valueChanged_Modbus_Addr_29(int) {}
    void slot_valueChanged_Modbus_Addr_30(int) {}
    void slot_valueChanged_Modbus_Addr_31(int) {}
    void slot_valueChanged_Modbus_Addr_32(int) {}
    void slot_valueChanged_Modbus_Reg_Num_1(int) {}
    void slot_valueChanged_Modbus_Reg_Num_2(int) {}
    void slot_valueChanged_Modbus_Reg_Num_3(int) {}
    void slot_valueChanged_Modbus_Reg_Num_4(int) {}
    void slot_valueChanged_Modbus_Reg_Num_5(int) {}
    void slot_valueChanged_Modbus_Reg_Num_6(int) {}
    void slot_valueChanged_Modbus_Reg_Num_7(int) {}
    void slot_valueChanged_Modbus_Reg_Num_8(int) {}
    void slot_valueChanged_Modbus_Reg_Num_9(int) {}
    void slot_valueChanged_Modbus_Reg_Num_10(int) {}
    void slot_valueChanged_Modbus_Reg_Num_11(int) {}
    void slot_valueChanged_Modbus_Reg_Num_12(int) {}
    void slot_valueChanged_Modbus_Reg_Num_13(int) {}
    void slot_valueChanged_Modbus_Reg_Num_14(int) {}
    void slot_valueChanged_Modbus_Reg_Num_15(int) {}
    void slot_valueChanged_Modbus_Reg_Num_16(int) {}
    void slot_valueChanged_Modbus_Reg_Num_17(int) {}
    void slot_valueChanged_Modbus_Reg_Num_18(int) {}
    void slot_valueChanged_Modbus_Reg_Num_19(int) {}
    void slot_valueChanged_Modbus_Reg_Num_20(int) {}
    void slot_valueChanged_Modbus_Reg_Num_21(int) {}
    void slot_valueChanged_Modbus_Reg_Num_22(int) {}
    void slot_valueChanged_Modbus_Reg_Num_23(int) {}
    void slot_valueChanged_Modbus_Reg_Num_24(int) {}
    void slot_valueChanged_Modbus_Reg_Num_25(int) {}
    void slot_valueChanged_Modbus_Reg_Num_26(int) {}
    void slot_valueChanged_Modbus_Reg_Num_27(int) {}
    void slot_valueChanged_Modbus_Reg_Num_28(int) {}
    void slot_valueChanged_Modbus_Reg_Num_29(int) {}
    void slot_valueChanged_Modbus_Reg_Num_30(int) {}
    void slot_valueChanged_Modbus_Reg_Num_31(int) {}
    void slot_valueChanged_Modbus_Reg_Num_32(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_1(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_2(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_3(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_4(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_5(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_6(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_7(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_8(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_9(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_10(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_11(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_12(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_13(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_14(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_15(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_16(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_17(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_18(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_19(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_20(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_21(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_22(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_23(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_24(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_25(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_26(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_27(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_28(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_29(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_30(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_31(int) {}
    void slot_valueChanged_Modbus_Reg_Addr_32(int) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_1(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_2(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_3(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_4(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_5(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_6(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_7(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_8(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_9(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_10(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_11(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_12(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_13(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_14(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_15(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_16(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_17(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_18(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_19(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_20(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_21(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_22(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_23(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_24(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_25(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_26(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_27(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_28(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_29(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_30(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_31(const QString&) {}
    void slot_currentIndexChanged_Modbus_Reg_Type_32(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_1(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_2(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_3(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_4(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_5(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_6(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_7(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_8(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_9(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_10(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_11(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_12(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_13(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_14(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_15(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_16(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_17(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_18(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_19(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_20(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_21(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_22(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_23(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_24(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_25(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_26(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_27(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_28(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_29(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_30(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_31(const QString&) {}
    void slot_currentIndexChanged_Modbus_Param_32(const QString&) {}
    void slot_stateChanged_Interface_Events_Use_1(int) {}
    void slot_stateChanged_Interface_Events_Use_2(int) {}
    void slot_stateChanged_Interface_Events_Use_3(int) {}
    void slot_stateChanged_Interface_Events_Use_4(int) {}
    void slot_stateChanged_Interface_Events_Use_5(int) {}
    void slot_stateChanged_Interface_Events_Use_6(int) {}
    void slot_stateChanged_Interface_Events_Use_7(int) {}
    void slot_stateChanged_Interface_Events_Use_8(int) {}
    void slot_stateChanged_Interface_Events_Use_9(int) {}
    void slot_stateChanged_Interface_Events_Use_10(int) {}
    void slot_currentIndexChanged_Interface_Events_Condition_1(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_2(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_3(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_4(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_5(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_6(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_7(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_8(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_9(const QString&) {}
    void slot_currentIndexChanged_Interface_Events_Condition_10(const QString&) {}
    void slot_toggled_Calc_NumType(bool) {}

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
    // What the user does to a row.
    void takeUse(Line& changed);
    void takeAddress(Line& changed);
    void takeRegisterNumber(Line& changed);
    void takeRegisterAddress(Line& changed);
    void takeRegisterType(Line& changed);
    void takeDataType(Line& changed);
    void chooseWay();
    void tellOf(Line& line);
    void tellRows();
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
