#include "telemetry/view/column_choice.h"

#include "telemetry/shown/records_memory.h"
#include "telemetry/view/records_model.h"
#include "telemetry/view/records_table.h"

#include <QFile>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSettings>

#include <algorithm>
#include <numeric>

namespace vlk {

namespace {

constexpr int kLookMs = 10;
const QString kHidden = QStringLiteral("hidden");
const QString kShown = QStringLiteral("shown");
const QString kOrder = QStringLiteral("order");

QString memoryFile()
{
    return recordsMemory("records-columns.ini");
}

QSet<QString> setOf(const QStringList& names)
{
    return {names.begin(), names.end()};
}

} // namespace

ColumnChoice::ColumnChoice(RecordsModel* model, RecordsTable* table)
    : QObject(table), model_(model), table_(table)
{
    goOn_.setInterval(0);
    connect(&goOn_, &QTimer::timeout, this, &ColumnChoice::lookOn);
    connect(table, &RecordsTable::columnMoved, this, &ColumnChoice::keepOrder);
}

QString ColumnChoice::nameOf(int column) const
{
    const CsvColumn* const shown = model_->columnAt(column);
    if (!shown)
        return QStringLiteral("packets");
    const std::string_view name = kItems[shown->item].name;
    return QString::fromLatin1(name.data(), static_cast<int>(name.size()));
}

bool ColumnChoice::isFixed(int column) const
{
    return table_->isFrozen(column);
}

ColumnGroup ColumnChoice::groupOf(int column) const
{
    const CsvColumn* const shown = model_->columnAt(column);
    return shown ? groupOfField(shown->field()) : ColumnGroup::Record;
}

void ColumnChoice::takeColumns(const RecordStore& records)
{
    load();
    filled_.assign(model_->columnCount(), false);
    sought_.clear();
    std::vector<ItemIndex> items;
    for (int column = 0; column < model_->columnCount(); ++column) {
        if (const CsvColumn* const shown = model_->columnAt(column)) {
            sought_.push_back(column);
            items.push_back(shown->item);
        } else {
            filled_[column] = true; // there are packets
        }
    }
    search_ = std::make_unique<FilledColumns>(records, items);
    for (const int place : search_->takeFound())
        filled_[sought_[place]] = true;
    apply();
    goOn_.start();
}

void ColumnChoice::lookOn()
{
    const bool isDone = search_->lookFor(kLookMs);
    for (const int place : search_->takeFound()) {
        filled_[sought_[place]] = true;
        table_->setColumnHidden(sought_[place], !isShown(sought_[place]));
    }
    if (isDone)
        goOn_.stop();
}

bool ColumnChoice::isShown(int column) const
{
    const QString name = nameOf(column);
    return isFixed(column) || shown_.contains(name) || (filled_[column] && !hidden_.contains(name));
}

void ColumnChoice::apply()
{
    std::vector<int> columns(model_->columnCount());
    std::iota(columns.begin(), columns.end(), 0);
    std::ranges::stable_sort(columns, {}, [this](int column) {
        const int place = order_.indexOf(nameOf(column));
        return place < 0 ? order_.size() : place;
    });
    table_->arrange(columns);
    for (int column = 0; column < model_->columnCount(); ++column)
        table_->setColumnHidden(column, !isShown(column));
}

void ColumnChoice::show(const std::vector<int>& columns, bool shown)
{
    for (const int column : columns) {
        const QString name = nameOf(column);
        (shown ? hidden_ : shown_).remove(name);
        if (!shown)
            hidden_.insert(name);
        else if (isEmpty(column))
            shown_.insert(name);
        table_->setColumnHidden(column, !isShown(column));
    }
    leaveHidden();
    save();
}

// The cursor goes to the column behind the one that it was in.
void ColumnChoice::leaveHidden()
{
    const QModelIndex cell = table_->currentIndex();
    const std::vector<int> columns = table_->shownColumns();
    if (!cell.isValid() || columns.empty() || !table_->isColumnHidden(cell.column()))
        return;
    const QHeaderView* const heads = table_->horizontalHeader();
    const int place = heads->visualIndex(cell.column());
    const auto behind =
        std::ranges::find_if(columns, [&](int column) { return heads->visualIndex(column) > place; });
    table_->selectionModel()->setCurrentIndex(
        cell.siblingAtColumn(behind == columns.end() ? columns.back() : *behind),
        QItemSelectionModel::NoUpdate);
}

bool ColumnChoice::canMove(int column, int steps) const
{
    const std::vector<int> columns = table_->shownColumns();
    const auto here = std::ranges::find(columns, column);
    const auto place = here - columns.begin() + steps;
    return here != columns.end() && !table_->isFrozen(column) && place >= 0 &&
           place < static_cast<std::ptrdiff_t>(columns.size()) && !table_->isFrozen(columns[place]);
}

void ColumnChoice::move(int column, int steps)
{
    if (!canMove(column, steps))
        return;
    const std::vector<int> columns = table_->shownColumns();
    const auto here = std::ranges::find(columns, column);
    QHeaderView* const heads = table_->horizontalHeader();
    heads->moveSection(heads->visualIndex(column), heads->visualIndex(*(here + steps)));
}

void ColumnChoice::keepOrder()
{
    // Columns of other files keep their places behind the ones that they followed.
    QStringList names;
    const QHeaderView* const heads = table_->horizontalHeader();
    for (int place = 0; place < heads->count(); ++place)
        names << nameOf(heads->logicalIndex(place));
    int behind = -1;
    for (const QString& name : std::as_const(order_)) {
        if (const int known = names.indexOf(name); known >= 0)
            behind = known;
        else
            names.insert(++behind, name);
    }
    order_ = names;
    save();
}

void ColumnChoice::forget()
{
    hidden_.clear();
    shown_.clear();
    order_.clear();
    save();
    apply();
}

void ColumnChoice::load()
{
    const QString file = memoryFile();
    if (file.isEmpty() || !QFile::exists(file))
        return;
    const QSettings store(file, QSettings::IniFormat);
    hidden_ = setOf(store.value(kHidden).toStringList());
    shown_ = setOf(store.value(kShown).toStringList());
    order_ = store.value(kOrder).toStringList();
}

void ColumnChoice::save() const
{
    const QString file = memoryFile();
    if (file.isEmpty())
        return;
    QSettings store(file, QSettings::IniFormat);
    store.setValue(kHidden, QStringList(hidden_.values()));
    store.setValue(kShown, QStringList(shown_.values()));
    store.setValue(kOrder, order_);
}

} // namespace vlk
