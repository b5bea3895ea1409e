#include "windows/page_look.h"

#include "typing/grid.h"
#include "windows/eliding_combobox.h"
#include "windows/folding_grid.h"
#include "windows/page_style.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <map>
#include <vector>

namespace vlk {

namespace {

constexpr int kEmptyColumns = 3 * grid::kColumn; // of a second pair that nothing but what stands across uses
constexpr int kWidestCaption = 260;
constexpr int kDigits[] = {6, 10, 16}; // widths of number boxes
constexpr int kLettersOfText = 18;     // what a line of text shows at least
constexpr int kWidestField = 480;
constexpr char kRowSpacing[] = "rowSpacing"; // of boxes that stand side by side, in a property

// The innermost one of these in which the widget stands.
QLayout* layoutAround(QLayout* outer, QWidget* widget)
{
    if (!outer || outer->indexOf(widget) >= 0)
        return outer;
    for (int i = 0; i < outer->count(); ++i) {
        if (QLayout* found = layoutAround(outer->itemAt(i)->layout(), widget))
            return found;
    }
    return nullptr;
}

// What stands behind an item in its row, such as a button for help.
int widthBehind(const QLayout* around, int item)
{
    const auto* row = qobject_cast<const QBoxLayout*>(around);
    if (!row || row->direction() != QBoxLayout::LeftToRight)
        return 0;
    int width = 0;
    for (int i = item + 1; i < row->count(); ++i) {
        if (!row->itemAt(i)->isEmpty())
            width += row->spacing() + row->itemAt(i)->minimumSize().width();
    }
    return width;
}

// The distances between the edges of the page and those of a layout.
QMargins insetOf(QLayout* layout, const QWidget* page)
{
    QMargins inset;
    QLayout* inner = layout;
    while (inner) {
        // A stack says that it has margins, but has none.
        if (!qobject_cast<const QStackedLayout*>(inner))
            inset += inner->contentsMargins();
        auto* outer = qobject_cast<QLayout*>(inner->parent());
        int item = outer ? outer->indexOf(inner) : -1;
        QWidget* widget = outer ? nullptr : inner->parentWidget();
        for (; widget && widget != page && !outer; widget = widget->parentWidget()) {
            inset += widget->contentsMargins();
            outer = widget->parentWidget() ? layoutAround(widget->parentWidget()->layout(), widget) : nullptr;
            item = outer ? outer->indexOf(widget) : -1;
        }
        inset.setRight(inset.right() + widthBehind(outer, item));
        inner = outer;
    }
    return inset;
}

// The width that a caption needs in one line, even if it is broken into two now.
int captionWidth(const QWidget* caption)
{
    const auto* label = qobject_cast<const QLabel*>(caption);
    if (!label || !label->wordWrap())
        return caption->sizeHint().width();
    return label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width() + 2 * label->margin();
}

class PageLook : public QObject
{
public:
    explicit PageLook(QWidget* page) : QObject(page), page_(page), style_(PageStyle::shared())
    {
        page->installEventFilter(this);
        watchParent();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto type = event->type();
        if (watched == page_ && type == QEvent::ParentChange) {
            watchParent();
        } else if (watched == page_ ? type == QEvent::LayoutRequest || type == QEvent::Show
                                    : type == QEvent::Resize && watched == page_->parentWidget()) {
            refresh();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void watchParent()
    {
        if (QWidget* viewport = page_->parentWidget())
            viewport->installEventFilter(this);
    }
    void refresh();
    void dressGroups();
    void dressBoxes();
    void dressFields();
    void dressLists();
    void findGrids();
    int room() const;
    void stackBoxes(QBoxLayout* row, int width);
    void wrapCaptions();
    void lineUp();

    QWidget* const page_;
    const std::shared_ptr<PageStyle> style_;
    std::map<QGridLayout*, FoldingGrid> grids_;
    bool busy_ = false;
};

void PageLook::refresh()
{
    if (busy_ || !page_->isVisible())
        return;
    busy_ = true;
    dressGroups();
    dressBoxes();
    findGrids();
    dressFields();
    dressLists();
    wrapCaptions();
    lineUp();
    busy_ = false;
}

void PageLook::dressGroups()
{
    if (QLayout* layout = page_->layout(); layout && layout->contentsMargins() != grid::kAroundPage) {
        layout->setContentsMargins(grid::kAroundPage);
        if (auto* box = qobject_cast<QBoxLayout*>(layout))
            box->setSpacing(grid::kGroup);
    }
    for (QGroupBox* group : page_->findChildren<QGroupBox*>()) {
        if (group->style() == style_.get())
            continue;
        group->setStyle(style_.get());
        QLayout* layout = group->layout();
        if (layout && !group->title().isEmpty())
            layout->setContentsMargins(grid::kIndent, grid::kRow, isInnerGroup(group) ? 0 : grid::kPage,
                                       isInnerGroup(group) ? 0 : grid::kPage);
    }
}

void PageLook::dressBoxes()
{
    for (QAbstractButton* box : page_->findChildren<QAbstractButton*>()) {
        const bool isDressed = qobject_cast<QCheckBox*>(box) || qobject_cast<QRadioButton*>(box) ||
                               qobject_cast<QPushButton*>(box);
        if (isDressed && box->style() != style_.get())
            box->setStyle(style_.get());
    }
    // A check box beside its words takes them: a click on them is one on the box.
    for (QLabel* label : page_->findChildren<QLabel*>()) {
        auto* box = qobject_cast<QCheckBox*>(label->buddy());
        const QString words = label->text().replace(QLatin1String("<br>"), QLatin1String("\n"));
        // A label that comes back with its box has the words that the box took.
        if (!box || (!box->text().isEmpty() && box->text() != words && !label->isHidden()))
            continue;
        if (box->text() != words)
            box->setText(words);
        label->hide();
    }
}

void PageLook::findGrids()
{
    for (auto known = grids_.begin(); known != grids_.end();)
        known = known->second.grid() ? std::next(known) : grids_.erase(known);
    for (QGridLayout* grid : page_->findChildren<QGridLayout*>()) {
        if (!grids_.count(grid) && FoldingGrid::isOne(grid)) {
            const bool byColumns = grid->parentWidget()->property("byColumns").toBool();
            const auto order = byColumns ? FoldingGrid::Order::Columns : FoldingGrid::Order::Rows;
            grids_.emplace(grid, FoldingGrid(grid, order));
            grid->setHorizontalSpacing(grid::kColumn);
            grid->setVerticalSpacing(grid::kRow);
        }
    }
    for (auto& [key, grid] : grids_)
        grid.learn();
}

// Number fields get one of three widths, the same for all that stand in one column.
void PageLook::dressFields()
{
    std::map<std::pair<const QObject*, int>, std::vector<QAbstractSpinBox*>> columns;
    for (auto& [key, grid] : grids_) {
        for (int i = 0; i < key->count(); ++i) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int span = 0;
            key->getItemPosition(i, &row, &column, &rows, &span);
            if (auto* box = qobject_cast<QAbstractSpinBox*>(key->itemAt(i)->widget()))
                columns[{key, column}].push_back(box);
            else if (auto* edit = qobject_cast<QLineEdit*>(key->itemAt(i)->widget()))
                edit->setMinimumWidth(kLettersOfText * edit->fontMetrics().averageCharWidth());
        }
    }
    for (const auto& [key, boxes] : columns) {
        int width = 0;
        for (QAbstractSpinBox* box : boxes) {
            QStyleOptionSpinBox option;
            option.initFrom(box);
            option.frame = true;
            const auto widthOf = [&](int digits) {
                const QSize text(digits * box->fontMetrics().horizontalAdvance(QLatin1Char('0')), 10);
                return box->style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, box).width();
            };
            const int needed = box->sizeHint().width();
            const auto* fits =
                std::ranges::find_if(kDigits, [&](int digits) { return widthOf(digits) >= needed; });
            width = std::max(width, fits == std::end(kDigits) ? needed : widthOf(*fits));
        }
        for (QAbstractSpinBox* box : boxes)
            box->setMinimumWidth(width);
    }
}

// A list is as wide as its longest item needs, and no wider than the usual list unless that is more, however
// wide the fields of its column are. The style likes it that wide.
void PageLook::dressLists()
{
    for (QComboBox* list : page_->findChildren<QComboBox*>()) {
        QStyleOptionComboBox option;
        option.initFrom(list);
        const QFontMetrics letters = list->fontMetrics();
        int longest = 0;
        for (int i = 0; i < list->count(); ++i)
            longest = std::max(longest, letters.horizontalAdvance(list->itemText(i)));
        const QSize words(longest, letters.height());
        const int needed =
            QApplication::style()->sizeFromContents(QStyle::CT_ComboBox, &option, words, list).width();
        list->setMaximumWidth(std::max(needed, PageStyle::listWidth(option)));
        if (!qobject_cast<ElidingComboBox*>(list)) { // which know what they need
            if (list->style() != style_.get())
                list->setStyle(style_.get());
            if (list->sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon) {
                list->setMinimumWidth(needed);
            } else if (list->minimumWidth() == 0) {
                // One that may be cut where the page is narrow.
                list->setMinimumWidth(std::min(list->minimumSizeHint().width(), list->maximumWidth()));
                list->setMinimumContentsLength(longest / letters.horizontalAdvance(QLatin1Char('X')) + 1);
            }
        }
        auto* around = qobject_cast<QGridLayout*>(layoutAround(list->parentWidget()->layout(), list));
        QLayoutItem* item = around ? around->itemAt(around->indexOf(list)) : nullptr;
        if (item && !(item->alignment() & Qt::AlignLeft))
            around->setAlignment(list, Qt::AlignLeft | Qt::AlignVCenter);
    }
}

// A vertical scroll bar that is not there yet takes its room all the same: what one form makes appear must
// not call for the other one.
int PageLook::room() const
{
    const QWidget* viewport = page_->parentWidget();
    const auto* area = qobject_cast<const QScrollArea*>(viewport ? viewport->parentWidget() : nullptr);
    if (!area)
        return page_->width();
    return area->width() - 2 * area->frameWidth() - area->verticalScrollBar()->sizeHint().width();
}

// Captions that are longer than a caption may be take two lines. A check box with a field beside it cannot.
void PageLook::wrapCaptions()
{
    int widest = kWidestCaption;
    for (auto& [key, grid] : grids_) {
        for (const QWidget* caption : grid.captions(0) + grid.captions(1)) {
            if (qobject_cast<const QAbstractButton*>(caption) && !caption->isHidden())
                widest = std::max(widest, caption->sizeHint().width());
        }
    }
    for (auto& [key, grid] : grids_) {
        for (QWidget* caption : grid.captions(0) + grid.captions(1)) {
            if (auto* label = qobject_cast<QLabel*>(caption)) {
                const int width = captionWidth(label);
                const bool wraps = width > widest && label->textFormat() != Qt::RichText;
                // Even what stays as it is would lay out the page anew.
                if (label->wordWrap() != wraps)
                    label->setWordWrap(wraps);
                label->setMinimumWidth(wraps ? widest : 0);
                if (!wraps)
                    label->setMaximumWidth(QWIDGETSIZE_MAX);
            }
        }
    }
}

// All captions of a page start at one edge and end at another, whatever group they stand in.
void PageLook::lineUp()
{
    const int all = room();
    int captions[] = {0, 0};
    int fields[] = {0, 0};
    int across[] = {0, 0};
    int right = 0;
    bool hasPairs = false;
    for (auto& [key, grid] : grids_) {
        const QMargins margins = insetOf(key, page_);
        const int inset = margins.left();
        right = std::max(right, margins.right());
        hasPairs = hasPairs || grid.hasSecondPair();
        for (const int pair : {0, 1}) {
            const FoldingGrid::Needs needs = grid.needs(pair);
            const int before = pair == 0 ? inset : 0;
            captions[pair] = std::max(captions[pair], needs.captions + before);
            fields[pair] = std::max(fields[pair], needs.fields);
            across[pair] = std::max(across[pair], needs.across + before);
        }
    }
    const auto pairWidth = [&](int pair) {
        return std::max(captions[pair] + grid::kColumn + fields[pair], across[pair]);
    };
    const bool folds = pairWidth(0) + grid::kPair + pairWidth(1) + right > all;
    const int first = folds ? std::max(captions[0], captions[1]) : captions[0];
    for (auto& [key, grid] : grids_) {
        grid.fold(folds);
        const int caption = first - insetOf(key, page_).left();
        if (folds || !hasPairs)
            grid.setOnePair(caption, all - right - first - grid::kColumn - kEmptyColumns > kWidestField
                                         ? kWidestField
                                         : 0);
        else
            grid.setTwoPairs(caption, fields[0], captions[1]);
        // Left alone, one that wraps takes as much of the room as its words need on one line.
        for (const int pair : {0, 1}) {
            for (QWidget* words : grid.captions(pair)) {
                if (auto* label = qobject_cast<QLabel*>(words); label && label->wordWrap())
                    label->setMaximumWidth(pair == 0 || folds ? caption : captions[1]);
            }
        }
    }
    for (QBoxLayout* row : page_->findChildren<QBoxLayout*>())
        stackBoxes(row, all - insetOf(row, page_).left() - insetOf(row, page_).right());
}

// Groups or boxes that stand side by side stand below each other where there is no room for all.
void PageLook::stackBoxes(QBoxLayout* row, int width)
{
    const QVariant known = row->property(kRowSpacing);
    if (known.isNull() && row->direction() != QBoxLayout::LeftToRight)
        return;
    const int spacing = known.isNull() ? row->spacing() : known.toInt(); // side by side
    int needed = 0;
    int boxes = 0;
    bool hasGroups = false;
    for (int i = 0; i < row->count(); ++i) {
        QLayoutItem* item = row->itemAt(i);
        QWidget* widget = item->widget();
        if (!widget && item->spacerItem())
            continue;
        const bool isBox = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QGroupBox*>(widget);
        if (!isBox && !qobject_cast<QLabel*>(widget))
            return;
        boxes += isBox ? 1 : 0;
        hasGroups = hasGroups || qobject_cast<QGroupBox*>(widget);
        needed += item->minimumSize().width() + (i > 0 ? spacing : 0);
    }
    if (boxes < 2)
        return;
    row->setProperty(kRowSpacing, spacing);
    const bool stacks = needed > width;
    const auto direction = stacks ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (row->direction() == direction)
        return;
    row->setDirection(direction);
    row->setSpacing(stacks && !hasGroups ? grid::kRow : spacing);
}

} // namespace

void dressPage(QWidget* page)
{
    new PageLook(page);
}

} // namespace vlk
