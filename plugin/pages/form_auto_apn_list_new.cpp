#include "pages/form_auto_apn_list_new.h"

#include "ui_VLK_Designer_FormAutoApnListNew.h"

#include "pages/operator_rows.h"
#include "settings/operators.h"

#include <QHeaderView>

namespace {

struct ListColumn
{
    const char* heading;
    int width; // 0: what is left
};

constexpr ListColumn kListColumns[] = {
    {"abbr_047", 20}, {"cfgt1_106", 100}, {"cfgt1_029", 140}, {"cfgt1_031", 140}, {"cfgt1_033", 0},
};

} // namespace

VLK_FormAutoApnListNew::VLK_FormAutoApnListNew(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint),
      ui_(std::make_unique<Ui::VLK_Designer_FormAutoApnListNew>())
{
    ui_->setupUi(this);
    QTreeWidget* tree = ui_->treeWidget_ListApn;
    vlk::makeOperatorRows(tree, vlk::kApnRowCount);
    // The widths are fixed: what is too long for one line takes two.
    tree->header()->setTextElideMode(Qt::ElideNone);
    tree->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter | Qt::Alignment(Qt::TextWordWrap));
    tree->header()->setMinimumSectionSize(kListColumns[0].width);
    tree->header()->setSectionResizeMode(QHeaderView::Fixed);
    for (std::size_t column = 0; column < std::size(kListColumns); ++column) {
        if (kListColumns[column].width > 0)
            tree->setColumnWidth(static_cast<int>(column), kListColumns[column].width);
    }
    connect(ui_->pushButton_ListApn_Close, &QPushButton::clicked, this, &QDialog::close);
    connect(tree, &QTreeWidget::itemDoubleClicked, this,
            &VLK_FormAutoApnListNew::slot_itemDoubleClicket_TreeWidgetList);
    retranslate();
}

VLK_FormAutoApnListNew::~VLK_FormAutoApnListNew() = default;

void VLK_FormAutoApnListNew::setDefaults()
{
    vlk::numberOperatorRows(ui_->treeWidget_ListApn);
}

void VLK_FormAutoApnListNew::retranslate()
{
    ui_->retranslateUi(this);
    QTreeWidgetItem* header = ui_->treeWidget_ListApn->headerItem();
    for (std::size_t column = 0; column < std::size(kListColumns); ++column)
        header->setText(static_cast<int>(column), tr(kListColumns[column].heading));
    makeRoomForHeadings();
}

void VLK_FormAutoApnListNew::makeRoomForHeadings()
{
    QHeaderView* header = ui_->treeWidget_ListApn->header();
    const int margin = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    int height = 0;
    for (const ListColumn& column : kListColumns) {
        const int width = column.width > 0 ? column.width - margin : QWIDGETSIZE_MAX;
        const QRect text = header->fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                                              Qt::TextWordWrap, tr(column.heading));
        height = std::max(height, text.height() + margin);
    }
    header->setMinimumHeight(height);

    // One short word that its column has no room for: it is written smaller, as the numbers below it are.
    QTreeWidgetItem* item = ui_->treeWidget_ListApn->headerItem();
    QFont font = header->font();
    constexpr double kSmallest = 6;
    while (QFontMetrics(font).horizontalAdvance(item->text(0)) > kListColumns[0].width - 2 &&
           font.pointSizeF() > kSmallest)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    item->setFont(0, font);
    item->setTextAlignment(0, Qt::AlignCenter);
}

void VLK_FormAutoApnListNew::showExpanded()
{
    if (!ui_->treeWidget_ListApn->topLevelItem(0)->isExpanded())
        ui_->treeWidget_ListApn->expandAll();
    show();
    raise();
    activateWindow();
}

void VLK_FormAutoApnListNew::slot_itemDoubleClicket_TreeWidgetList(QTreeWidgetItem* item, int column)
{
    vlk::allowEditing(item, column);
}
