#pragma once

// The priority list of operators in roaming: ten rows of operator codes, the first row being the most
// preferred. Rows keep their numbers, the codes move. Its values are settings of the page that owns it.

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
    explicit VLK_Form_List_Oper_Roaming(QWidget* parent = nullptr);
    ~VLK_Form_List_Oper_Roaming() override;

    // Makes the first row current; the values follow the settings.
    void setDefaults();
    void retranslate();

private Q_SLOTS:
    void slot_curItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column);
    void slot_pressedBtnUp();
    void slot_pressedBtnDown();

private:
    void moveCode(int step);

    std::unique_ptr<Ui::VLK_Designer_Form_List_Oper_Roaming> ui_;
};
