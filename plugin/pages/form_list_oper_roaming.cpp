#include "pages/form_list_oper_roaming.h"

#include "ui_VLK_Designer_Form_List_Oper_Roaming.h"

#include "pages/operator_rows.h"
#include "settings/transfer_settings.h"
#include "typing/line_icon.h"

#include <QHeaderView>

namespace {
constexpr int kCodeColumn = vlk::kFirstOperatorColumn;
}

VLK_Form_List_Oper_Roaming::VLK_Form_List_Oper_Roaming(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_Form_List_Oper_Roaming>())
{
    ui_->setupUi(this);
    setModal(true);
    ui_->pushButton_Up->setIcon(vlk::lineIcon(vlk::LineIcon::Up));
    ui_->pushButton_Down->setIcon(vlk::lineIcon(vlk::LineIcon::Down));
    vlk::makeOperatorRows(ui_->treeWidget_List, vlk::kRoamingRows);
    ui_->treeWidget_List->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(ui_->treeWidget_List, &QTreeWidget::itemDoubleClicked, this,
            &VLK_Form_List_Oper_Roaming::slot_itemDoubleClicket_TreeWidgetList);
    connect(ui_->treeWidget_List, &QTreeWidget::currentItemChanged, this,
            &VLK_Form_List_Oper_Roaming::slot_curItemChanged);
    connect(ui_->pushButton_Up, &QPushButton::clicked, this, &VLK_Form_List_Oper_Roaming::slot_pressedBtnUp);
    connect(ui_->pushButton_Down, &QPushButton::clicked, this,
            &VLK_Form_List_Oper_Roaming::slot_pressedBtnDown);
    connect(ui_->pushButton_Ok, &QPushButton::pressed, this, &QDialog::close);
    retranslate();
}

VLK_Form_List_Oper_Roaming::~VLK_Form_List_Oper_Roaming() = default;

void VLK_Form_List_Oper_Roaming::setDefaults()
{
    ui_->treeWidget_List->setCurrentItem(ui_->treeWidget_List->topLevelItem(0), kCodeColumn);
}

void VLK_Form_List_Oper_Roaming::retranslate()
{
    ui_->retranslateUi(this);
    ui_->treeWidget_List->setHeaderLabels({tr("abbr_047"), tr("cfgt1_106")});
}

void VLK_Form_List_Oper_Roaming::slot_curItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* /*previous*/)
{
    const int row = ui_->treeWidget_List->indexOfTopLevelItem(current);
    ui_->pushButton_Up->setEnabled(row != 0);
    ui_->pushButton_Down->setEnabled(row != vlk::kRoamingRows - 1);
}

void VLK_Form_List_Oper_Roaming::slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column)
{
    vlk::allowEditing(item, column);
}

void VLK_Form_List_Oper_Roaming::slot_pressedBtnUp()
{
    moveCode(-1);
}

void VLK_Form_List_Oper_Roaming::slot_pressedBtnDown()
{
    moveCode(1);
}

// Swaps the current row's code with that of the row beside it, which becomes current.
void VLK_Form_List_Oper_Roaming::moveCode(int step)
{
    QTreeWidgetItem* current = ui_->treeWidget_List->currentItem();
    if (!current)
        return;
    QTreeWidgetItem* other =
        ui_->treeWidget_List->topLevelItem(ui_->treeWidget_List->indexOfTopLevelItem(current) + step);
    if (!other)
        return;
    const QString code = current->text(kCodeColumn);
    current->setText(kCodeColumn, other->text(kCodeColumn));
    other->setText(kCodeColumn, code);
    ui_->treeWidget_List->setCurrentItem(other, kCodeColumn);
}
