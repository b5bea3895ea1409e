#pragma once

// The priority list of operators in roaming: ten rows of operator codes, the first row being the most
// preferred. Rows keep their numbers, the codes move. The page that owns the dialog stores its values.

#include <QDialog>

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class VLK_Designer_Form_List_Oper_Roaming;
}

class VLK_Form_List_Oper_Roaming : public QDialog
{
    Q_OBJECT

public:
    static constexpr int kRows = 10;

    explicit VLK_Form_List_Oper_Roaming(QWidget* parent = nullptr);
    ~VLK_Form_List_Oper_Roaming() override;

    void setDefaults();
    void retranslate();

    // Code of row 0 to 9; a cell that holds no number counts as 0.
    int opCode(int row) const;
    void setOpCode(int row, int code);
    // 1: no data go out through an operator that is not in the list.
    int dontCnct() const;
    void setDontCnct(int value);

private Q_SLOTS:
    void slot_curItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column);
    void slot_pressedBtnUp();
    void slot_pressedBtnDown();

private:
    void moveCode(int step);

    std::unique_ptr<Ui::VLK_Designer_Form_List_Oper_Roaming> ui_;
};
