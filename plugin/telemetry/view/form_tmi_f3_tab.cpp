#include "telemetry/view/form_tmi_f3_tab.h"

#include "typing/grid.h"

#include <QVBoxLayout>

VLK_Form_Tmi_F3_Tab::VLK_Form_Tmi_F3_Tab(const char* titleKey, QWidget* parent)
    : QWidget(parent), titleKey_(titleKey), sideBySide_(new QHBoxLayout), layout_(new QVBoxLayout(this))
{
    layout_->setContentsMargins(vlk::grid::kAroundPage);
    layout_->setSpacing(vlk::grid::kGroup);
    layout_->addLayout(sideBySide_);
    layout_->addStretch();
}

QString VLK_Form_Tmi_F3_Tab::title() const
{
    return tr(titleKey_);
}

vlk::RecordGroup* VLK_Form_Tmi_F3_Tab::makeGroup(const char* objectName, const char* titleKey)
{
    boxes_.push_back(new vlk::RecordGroup(objectName, titleKey, this));
    return boxes_.back();
}

vlk::RecordGroup* VLK_Form_Tmi_F3_Tab::addGroup(int column, const char* objectName, const char* titleKey)
{
    while (static_cast<int>(columns_.size()) <= column) {
        columns_.push_back(new QVBoxLayout);
        columns_.back()->setSpacing(vlk::grid::kGroup);
        columns_.back()->addStretch();
        sideBySide_->addLayout(columns_.back(), 1);
    }
    groups_.push_back({makeGroup(objectName, titleKey), column});
    return groups_.back().box;
}

vlk::RecordGroup* VLK_Form_Tmi_F3_Tab::addWideGroup(const char* objectName, const char* titleKey)
{
    vlk::RecordGroup* group = makeGroup(objectName, titleKey);
    layout_->insertWidget(layout_->count() - 1, group);
    return group;
}

void VLK_Form_Tmi_F3_Tab::setPartVisible(int part, bool visible)
{
    for (vlk::RecordGroup* group : boxes_)
        group->setPartVisible(part, visible);
}

VLK_Form_Tmi_F3_Tab::Columns VLK_Form_Tmi_F3_Tab::placed(int columns) const
{
    Columns result(columns);
    std::vector<QSize> sizes(columns, QSize(0, 0));
    for (const bool hasRoom : {true, false}) {
        for (const Group& group : groups_) {
            if ((group.column < columns) != hasRoom)
                continue;
            const QSize size = group.box->isHidden() ? QSize(0, 0) : group.box->minimumSizeHint();
            const auto best = std::ranges::min_element(sizes, {}, [&size](const QSize& column) {
                return std::pair(std::max(size.width() - column.width(), 0), column.height());
            });
            const auto column = hasRoom ? group.column : best - sizes.begin();
            result[column].push_back(group.box);
            sizes[column] = {std::max(sizes[column].width(), size.width()),
                             sizes[column].height() + size.height()};
        }
    }
    return result;
}

int VLK_Form_Tmi_F3_Tab::neededWidth(const Columns& columns) const
{
    const QMargins margins = layout_->contentsMargins();
    int width = margins.left() + margins.right() - sideBySide_->spacing();
    for (const std::vector<QWidget*>& column : columns) {
        int widest = 0;
        for (const QWidget* box : column) {
            if (!box->isHidden())
                widest = std::max(widest, box->minimumSizeHint().width());
        }
        width += widest + sideBySide_->spacing();
    }
    return width;
}

void VLK_Form_Tmi_F3_Tab::arrange(int width)
{
    width_ = width;
    auto count = static_cast<int>(columns_.size());
    Columns columns = placed(count);
    while (count > 1 && neededWidth(columns) > width)
        columns = placed(--count);
    if (columns == shown_)
        return;
    for (QVBoxLayout* column : columns_) {
        while (column->count() > 1)
            delete column->takeAt(0);
    }
    for (int i = 0; i < static_cast<int>(columns_.size()); ++i) {
        sideBySide_->setStretch(i, i < count ? 1 : 0);
        for (int at = 0; i < count && at < static_cast<int>(columns[i].size()); ++at)
            columns_[i]->insertWidget(at, columns[i][at]);
    }
    shown_ = std::move(columns);
    // A hidden tab lays itself out only when asked, and its area sizes it by what it needs now.
    layout_->activate();
}

void VLK_Form_Tmi_F3_Tab::fill(const TmiPage_Zeta3& page)
{
    for (vlk::RecordGroup* group : boxes_)
        group->fill(page);
}

bool VLK_Form_Tmi_F3_Tab::hasValues() const
{
    return std::ranges::any_of(boxes_, &vlk::RecordGroup::hasValues);
}

void VLK_Form_Tmi_F3_Tab::retranslate()
{
    for (vlk::RecordGroup* group : boxes_)
        group->retranslate();
    alignLists();
    arrange(width_);
}

void VLK_Form_Tmi_F3_Tab::alignLists()
{
    std::vector<vlk::RecordGroup::Widths> columns(columns_.size());
    for (const Group& group : groups_) {
        const auto widths = group.box->listWidths();
        auto& widest = columns[group.column];
        widest = {std::max(widest.captions, widths.captions), std::max(widest.values, widths.values)};
    }
    for (const Group& group : groups_)
        group.box->setListWidths(columns[group.column]);
}
