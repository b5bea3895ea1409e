#include "pages/form_auto_apn_list_new.h"

#include "ui_VLK_Designer_FormAutoApnListNew.h"

#include "pages/operator_rows.h"
#include "pages/operators.h"
#include "xml/xml_section.h"

#include <QHeaderView>

#include <utility>

namespace {

struct Column
{
    const char* heading;
    const char* key; // in the file, followed by the row's number; empty: not stored
    const char* vlk::MobileOperator::*factoryText;
    int width; // at least; the last column takes what is left
};

constexpr Column kColumns[] = {
    {"abbr_047", "", nullptr, 20},
    {"cfgt1_106", "sID", &vlk::MobileOperator::code, 100},
    {"cfgt1_029", "name", &vlk::MobileOperator::apn, 140},
    {"cfgt1_031", "login", &vlk::MobileOperator::login, 140},
    {"cfgt1_033", "pass", &vlk::MobileOperator::password, 140},
};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns));

// Calls `action(row, column number, column)` for every stored cell, in the order of the keys.
template <class Action>
void forEachCell(Action action)
{
    for (int row = 0; row < vlk::kApnRows; ++row) {
        for (int column = vlk::kFirstOperatorColumn; column < kColumnCount; ++column)
            action(row, column, kColumns[column]);
    }
}

QString keyOf(const Column& column, int row)
{
    return QLatin1String(column.key) + QString::number(row + 1);
}

QString factoryText(const Column& column, int row)
{
    return QString::fromLatin1(vlk::defaultApnRow(row).*column.factoryText);
}

} // namespace

VLK_FormAutoApnListNew::VLK_FormAutoApnListNew(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_FormAutoApnListNew>())
{
    ui_->setupUi(this);
    vlk::makeOperatorRows(ui_->treeWidget_ListApn, vlk::kApnRows);
    ui_->treeWidget_ListApn->header()->setSectionResizeMode(QHeaderView::Fixed);
    ui_->treeWidget_ListApn->header()->setMinimumSectionSize(kColumns[0].width);
    connect(ui_->treeWidget_ListApn, &QTreeWidget::itemDoubleClicked, this,
            &VLK_FormAutoApnListNew::slot_itemDoubleClicket_TreeWidgetList);
    retranslate();
}

VLK_FormAutoApnListNew::~VLK_FormAutoApnListNew() = default;

void VLK_FormAutoApnListNew::loadFromXml(CXmlSection* trans)
{
    const std::unique_ptr<CXmlSection> group(trans ? trans->section("AUTOAPN", 0) : nullptr);
    if (!group)
        return;
    forEachCell([&](int row, int number, const Column& column) {
        ui_->treeWidget_ListApn->topLevelItem(row)->setText(
            number, group->getString(keyOf(column, row), factoryText(column, row)));
    });
}

void VLK_FormAutoApnListNew::saveToXml(CXmlSection* trans)
{
    saveInto(std::unique_ptr<CXmlSection>(trans ? trans->section("AUTOAPN", 3) : nullptr));
}

void VLK_FormAutoApnListNew::saveToXmlQuick(CXmlSection* trans)
{
    saveInto(std::unique_ptr<CXmlSection>(trans ? trans->section("AUTOAPN", 0) : nullptr));
}

void VLK_FormAutoApnListNew::saveInto(std::unique_ptr<CXmlSection> group)
{
    if (!group)
        return;
    group->clear();
    forEachCell([&](int row, int number, const Column& column) {
        group->setString(keyOf(column, row), ui_->treeWidget_ListApn->topLevelItem(row)->text(number));
    });
    group->commit();
}

void VLK_FormAutoApnListNew::setDefaults()
{
    forEachCell([this](int row, int number, const Column& column) {
        ui_->treeWidget_ListApn->topLevelItem(row)->setText(number, factoryText(column, row));
    });
}

void VLK_FormAutoApnListNew::retranslate()
{
    ui_->retranslateUi(this);
    QStringList headings;
    for (const Column& column : kColumns)
        headings << tr(column.heading);
    ui_->treeWidget_ListApn->setHeaderLabels(headings);
}

void VLK_FormAutoApnListNew::showExpanded()
{
    fitColumns();
    if (!ui_->treeWidget_ListApn->topLevelItem(0)->isExpanded())
        ui_->treeWidget_ListApn->expandAll();
    show();
    raise();
    activateWindow();
}

// A column has its fixed width, or more where a large font needs it.
void VLK_FormAutoApnListNew::fitColumns()
{
    QTreeWidget* tree = ui_->treeWidget_ListApn;
    for (int column = 0; column < kColumnCount; ++column) {
        tree->resizeColumnToContents(column);
        tree->setColumnWidth(column, qMax(tree->columnWidth(column), kColumns[column].width));
    }
}

void VLK_FormAutoApnListNew::slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column)
{
    vlk::allowEditing(item, column);
}
