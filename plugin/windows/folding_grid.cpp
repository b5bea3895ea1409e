#include "windows/folding_grid.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kColumnsOfPair = 2;
constexpr int kLastColumn = 4;
constexpr int kPairGap = 8;        // beside the one that every column has
constexpr char kFolds[] = "folds"; // property of a grid that this class keeps

bool isCaption(QLayoutItem* item)
{
    return qobject_cast<QLabel*>(item->widget()) || qobject_cast<QAbstractButton*>(item->widget());
}

bool isButton(QLayoutItem* item)
{
    QLayoutItem* first = item->layout() ? item->layout()->itemAt(0) : item;
    return first && qobject_cast<QPushButton*>(first->widget());
}

// Whether another such grid stands inside the item. That one says itself what it needs, and its width is that
// of its last fold.
bool holdsFoldingGrid(QLayoutItem* item)
{
    const auto folds = [](const QObject* layout) { return layout->property(kFolds).toBool(); };
    if (const QWidget* widget = item->widget())
        return std::ranges::any_of(widget->findChildren<QGridLayout*>(), folds);
    QLayout* layout = item->layout();
    for (int i = 0; layout && i < layout->count(); ++i) {
        if (holdsFoldingGrid(layout->itemAt(i)))
            return true;
    }
    return layout && folds(layout);
}

bool isField(QLayoutItem* item)
{
    return qobject_cast<QLineEdit*>(item->widget()) || qobject_cast<QComboBox*>(item->widget());
}

} // namespace

FoldingGrid::FoldingGrid(QGridLayout* grid, Order order) : grid_(grid), order_(order)
{
    grid->setProperty(kFolds, true);
}

bool FoldingGrid::isOne(const QGridLayout* grid)
{
    const int columns = grid->columnCount();
    const auto isPair = [&](int column) {
        return grid->columnStretch(column) == 0 && grid->columnStretch(column + 1) == 1;
    };
    return (columns == kColumnsOfPair && isPair(0)) ||
           (columns == 2 * kColumnsOfPair && isPair(0) && isPair(kColumnsOfPair));
}

QList<QLayoutItem*> FoldingGrid::items() const
{
    QList<QLayoutItem*> all;
    for (int i = 0; grid_ && i < grid_->count(); ++i)
        all << grid_->itemAt(i);
    return all;
}

// Whether an item has no field beside it in its pair of columns.
bool FoldingGrid::isAlone(const Place& place) const
{
    const auto all = items();
    return std::ranges::none_of(all, [&](QLayoutItem* other) {
        const Place& beside = places_[other];
        return beside.row == place.row && beside.column == place.column + 1;
    });
}

void FoldingGrid::learn()
{
    const auto all = items();
    for (auto known = places_.begin(); known != places_.end();)
        known = all.contains(known.key()) ? std::next(known) : places_.erase(known);
    QList<QLayoutItem*> fresh;
    for (QLayoutItem* item : all) {
        if (places_.contains(item))
            continue;
        Place place{};
        grid_->getItemPosition(grid_->indexOf(item), &place.row, &place.column, &place.rows, &place.columns);
        places_.insert(item, place);
        fresh << item;
        hasSecondPair_ =
            hasSecondPair_ || (place.column > 0 && place.column + place.columns > kColumnsOfPair);
    }
    // The words of a check box may run on where no field follows.
    for (QLayoutItem* item : fresh) {
        Place& place = places_[item];
        const int columns = place.columns;
        if (place.columns == 1 && place.column % kColumnsOfPair == 0 &&
            qobject_cast<QAbstractButton*>(item->widget()) && !qobject_cast<QPushButton*>(item->widget()) &&
            isAlone(place))
            place.columns = kColumnsOfPair;
        // Columns of its own need no room beside those of a second pair, which other grids of the page have.
        if (place.column == 0 && columns == kColumnsOfPair && !hasSecondPair_ && holdsFoldingGrid(item))
            place.columns = 2 * kColumnsOfPair;
        if (place.columns != columns || place.column + columns > kColumnsOfPair) {
            grid_->removeItem(item);
            putBack(item, place);
        }
    }
}

QWidgetList FoldingGrid::captions(int pair) const
{
    QWidgetList found;
    for (QLayoutItem* item : items()) {
        const Place& place = places_[item];
        if (place.columns == 1 && place.column == pair * kColumnsOfPair && isCaption(item))
            found << item->widget();
    }
    return found;
}

FoldingGrid::Needs FoldingGrid::needs(int pair) const
{
    Needs needs;
    for (QLayoutItem* item : items()) {
        const Place& place = places_[item];
        if (place.column / kColumnsOfPair != pair || item->isEmpty() || place.columns > kColumnsOfPair ||
            holdsFoldingGrid(item))
            continue;
        const int column = place.column % kColumnsOfPair;
        int& need = place.columns > 1 ? needs.across : column == 0 ? needs.captions : needs.fields;
        need = std::max(need, item->minimumSize().width());
    }
    return needs;
}

QHash<QLayoutItem*, FoldingGrid::Place> FoldingGrid::foldedPlaces() const
{
    const auto all = items();
    QHash<QLayoutItem*, Place> folded;
    int next = 0;
    const auto put = [&](int row, int pair) {
        bool any = false;
        for (QLayoutItem* item : all) {
            const Place& place = places_[item];
            if (place.row != row || place.column / kColumnsOfPair != pair)
                continue;
            const int column = place.column % kColumnsOfPair;
            // Fields are equally wide and a button stands below them; what else stands across all columns
            // stays there.
            if ((pair == 1 && isButton(item)) || (column == 1 && isField(item)))
                folded.insert(item, {next, 1, 1, 1});
            else if (place.columns > kColumnsOfPair - column)
                folded.insert(item, {next, column, 1, 2 * kColumnsOfPair - column});
            else
                folded.insert(item, {next, column, 1, place.columns});
            any = true;
        }
        next += any ? 1 : 0;
    };
    const auto isWhole = [&](int row) {
        return std::ranges::any_of(all, [&](QLayoutItem* item) {
            return places_[item].row == row && places_[item].columns > kColumnsOfPair;
        });
    };
    int last = -1;
    for (QLayoutItem* item : all)
        last = std::max(last, places_[item].row);
    for (int row = 0; row <= last;) {
        int end = row + 1;
        while (order_ == Order::Columns && end <= last && !isWhole(row) && !isWhole(end))
            ++end;
        for (const int pair : {0, 1}) {
            for (int one = row; one < end; ++one)
                put(one, pair);
        }
        row = end;
    }
    return folded;
}

// Between the pairs lies an empty column.
void FoldingGrid::putBack(QLayoutItem* item, const Place& place) const
{
    const bool isRight = place.column >= kColumnsOfPair;
    const int column = place.column + (isRight ? 1 : 0);
    const int columns = place.columns + (!isRight && place.column + place.columns > kColumnsOfPair ? 1 : 0);
    if (QLayout* inner = item->layout())
        grid_->addLayout(inner, place.row, column, place.rows, columns, item->alignment());
    else
        grid_->addItem(item, place.row, column, place.rows, columns, item->alignment());
}

void FoldingGrid::fold(bool folded)
{
    if (!grid_ || folded == folded_ || !hasSecondPair_)
        return;
    const QHash<QLayoutItem*, Place> places = folded ? foldedPlaces() : places_;
    const auto all = items();
    for (QLayoutItem* item : all)
        grid_->removeItem(item);
    for (QLayoutItem* item : all)
        putBack(item, places[item]);
    folded_ = folded;
    tellOuter();
}

// Nothing tells the layouts around a hidden page of its new size.
void FoldingGrid::tellOuter() const
{
    QWidget* outer = grid_->parentWidget();
    for (; outer && !outer->isVisible(); outer = outer->parentWidget())
        outer->updateGeometry();
    if (outer)
        outer->updateGeometry();
}

void FoldingGrid::setOnePair(int captions, int fields) const
{
    // What the fields do not take stays empty behind them.
    const bool isLimited = fields > 0;
    setColumns({captions, fields, 0, 0}, isLimited ? 0 : 1, isLimited ? 1 : 0);
}

void FoldingGrid::setTwoPairs(int captions, int fields, int secondCaptions) const
{
    // What stands across it brings the layout a gap of its own.
    const bool isCrossed = std::ranges::any_of(places_, [](const Place& place) {
        return place.column < kColumnsOfPair && place.column + place.columns > kColumnsOfPair;
    });
    setColumns({captions, fields, isCrossed ? 0 : kPairGap, secondCaptions}, 1, 1);
}

void FoldingGrid::setColumns(const std::array<int, 4>& widths, int firstStretch, int secondStretch) const
{
    bool changes = grid_->columnCount() <= kLastColumn || grid_->columnStretch(1) != firstStretch ||
                   grid_->columnStretch(kLastColumn) != secondStretch;
    for (std::size_t column = 0; column < widths.size(); ++column)
        changes = changes || grid_->columnMinimumWidth(static_cast<int>(column)) != widths[column];
    if (!changes)
        return;
    for (std::size_t column = 0; column < widths.size(); ++column)
        grid_->setColumnMinimumWidth(static_cast<int>(column), widths[column]);
    grid_->setColumnStretch(1, firstStretch);
    grid_->setColumnStretch(2, 0);
    grid_->setColumnStretch(3, 0);
    grid_->setColumnStretch(kLastColumn, secondStretch);
    tellOuter();
}

} // namespace vlk
