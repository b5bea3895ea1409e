#include "telemetry/view/records_model.h"

#include "link/requests.h"
#include "telemetry/files/table_columns.h"
#include "telemetry/shown/absent_value.h"
#include "telemetry/view/item_display.h"
#include "telemetry/view/record_order.h"

#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

// What tells one record from another is there whatever the masks say, and so is what packets have.
std::vector<CsvColumn> columnsFor(const RecordStore& records)
{
    std::vector<CsvColumn> columns;
    if (records.empty())
        return columns;
    const FieldMask fields = records.fields();
    const bool hasPackets = records.hasPackets();
    std::ranges::copy_if(csvColumns(), std::back_inserter(columns), [&](const CsvColumn& column) {
        return fields.test(column.field()) || column.field() <= field("Time") ||
               (hasPackets && isInPackets(column));
    });
    return columns;
}

} // namespace

RecordsModel::RecordsModel(ShownRecords* shown, QObject* parent) : QAbstractTableModel(parent), shown_(shown)
{
    connect(shown, &ShownRecords::contentsChanged, this, &RecordsModel::restart);
    connect(shown, &ShownRecords::recordsAdded, this, &RecordsModel::grow);
    connect(shown, &ShownRecords::passingChanged, this, &RecordsModel::setRows);
}

void RecordsModel::restart()
{
    beginResetModel();
    setColumns();
    order();
    endResetModel();
}

void RecordsModel::grow(int first)
{
    // One of another kind may have more columns.
    if (shown_->records().hasPackets() != hasPackets_ ||
        columnsFor(shown_->records()).size() != columns_.size())
        return restart();
    if (!rows_.empty())
        rows_.resize(shown_->records().size(), -1);
    const std::vector<int>& passing = shown_->passing();
    const auto added = std::ranges::lower_bound(passing, first);
    if (added == passing.end())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(passing.end() - added) - 1);
    for (auto record = added; record != passing.end(); ++record) {
        if (!rows_.empty())
            rows_[*record] = rowCount();
        order_.push_back(*record);
    }
    endInsertRows();
    if (sortColumn_ >= 0)
        sort(sortColumn_, sortOrder_);
}

void RecordsModel::setColumns()
{
    decoded_ = -1;
    sortColumn_ = -1;
    texts_.clear();
    columns_.clear();
    for (const CsvColumn& column : columnsFor(shown_->records()))
        columns_.push_back({column, kindOf(column), decimalsOf(column), {}});
    hasPackets_ = shown_->records().hasPackets();
    makeHeads();
}

void RecordsModel::makeHeads()
{
    const QString zone = QStringLiteral(", ") + zoneText(shown_->utcOffset());
    for (Column& column : columns_) {
        column.head = headText(column.shown, shown_->titles());
        if (column.kind == CellKind::Time)
            column.head += zone;
    }
    packetHead_ = Word("tmizta_359").text();
}

void RecordsModel::retranslate()
{
    texts_.clear();
    events_.clear();
    makeHeads();
    if (columnCount() == 0)
        return;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void RecordsModel::setRows()
{
    if (rowCount() > 0) {
        beginRemoveRows({}, 0, rowCount() - 1);
        order_.clear();
        endRemoveRows();
    }
    if (shown_->passing().empty())
        return;
    beginInsertRows({}, 0, static_cast<int>(shown_->passing().size()) - 1);
    order();
    endInsertRows();
}

void RecordsModel::order()
{
    rows_.clear();
    if (sortColumn_ < 0) {
        order_ = shown_->passing();
        return;
    }
    order_ = ordered(shown_->passing(), keys(sortColumn_), sortOrder_);
    rows_.assign(shown_->records().size(), -1);
    for (std::size_t row = 0; row < order_.size(); ++row)
        rows_[order_[row]] = static_cast<int>(row);
}

int RecordsModel::rowOf(int record) const
{
    if (record < 0 || record >= shown_->records().size())
        return -1;
    if (!rows_.empty())
        return rows_[record];
    const auto row = std::ranges::lower_bound(order_, record);
    return row != order_.end() && *row == record ? static_cast<int>(row - order_.begin()) : -1;
}

int RecordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int RecordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size()) + (hasPackets_ ? 1 : 0);
}

const CsvColumn* RecordsModel::columnAt(int column) const
{
    return column >= 0 && column < static_cast<int>(columns_.size()) ? &columns_[column].shown : nullptr;
}

int RecordsModel::columnOf(ItemIndex item) const
{
    const auto found =
        std::ranges::find_if(columns_, [item](const Column& column) { return column.shown.item == item; });
    return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

CellKind RecordsModel::kind(int column) const
{
    return columnAt(column) ? columns_[column].kind : CellKind::Characters;
}

QVariant RecordsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int column = index.column();
    if (role == Qt::TextAlignmentRole)
        return alignment(column);
    const int record = order_[index.row()];
    if (isDamaged(record) && role != Qt::DisplayRole)
        return damagedData(record, role);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::ForegroundRole)
        return {};
    const quint64 key = static_cast<quint64>(record) << 32 | static_cast<quint32>(column);
    const QString* const known = texts_.object(key);
    const QString shownText = known ? *known : text(record, column);
    if (!known)
        texts_.insert(key, new QString(shownText));
    if (shownText.isEmpty())
        return absentData(record, column, role);
    if (role == Qt::DisplayRole)
        return shownText;
    const CsvColumn* const shown = columnAt(column);
    const bool isPlace = shown && kItems[shown->item].rule().shape == Shape::Coordinate;
    return role == Qt::ToolTipRole && isPlace ? positionText(decoded(record), shown->item) : QVariant();
}

QVariant RecordsModel::damagedData(int record, int role) const
{
    const bool isCut = shown_->contents()->lastIsCut && record == shown_->records().size() - 1;
    if (role == Qt::ToolTipRole)
        return tr(isCut ? "rec_296" : "rec_460");
    if (role == Qt::ForegroundRole)
        return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    if (role != Qt::FontRole)
        return {};
    QFont font;
    font.setItalic(true);
    return font;
}

QVariant RecordsModel::absentData(int record, int column, int role) const
{
    const CsvColumn* const shown = columnAt(column);
    const bool isHeld = shown ? holds(decoded(record), shown->element()) : decoded(record).isExtra();
    switch (role) {
    case Qt::DisplayRole:
        return QString(kAbsentMark);
    case Qt::ToolTipRole:
        return absentTip(isHeld ? kNoValue : kNotInRecord);
    default:
        return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    }
}

// A head stands as its column does.
int RecordsModel::alignment(int column) const
{
    const bool toTheRight = kind(column) == CellKind::Number;
    return static_cast<int>(Qt::AlignVCenter | (toTheRight ? Qt::AlignRight : Qt::AlignLeft));
}

QVariant RecordsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section) | Qt::TextWordWrap;
    const CsvColumn* const column = columnAt(section);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        if (!column || role == Qt::DisplayRole)
            return column ? columns_[section].head : packetHead_;
        // By which filters and scripts know it in any language.
        const std::string_view name(kItems[column->named()].name);
        return columns_[section].head + QLatin1Char('\n') +
               QLatin1String(name.data(), static_cast<int>(name.size()));
    }
    return {};
}

const TmiPage_Zeta3& RecordsModel::decoded(int record) const
{
    if (decoded_ != record)
        shown_->records().decode(page_, record);
    decoded_ = record;
    return page_;
}

std::optional<quint64> RecordsModel::raw(int record, int column) const
{
    const CsvColumn* const shown = columnAt(column);
    const TmiPage_Zeta3& page = decoded(record);
    if (!shown || !holds(page, shown->element()))
        return {};
    return page.isExtra() ? page.extra().raw(shown->element()) : page.raw(shown->element());
}

QString RecordsModel::eventText(quint16 code) const
{
    const auto known = events_.constFind(code);
    return known != events_.constEnd() ? *known : *events_.insert(code, requests::eventText(code));
}

QString RecordsModel::packetText(int record) const
{
    const TmiPage_Zeta3& page = decoded(record);
    QStringList entries;
    if (page.isExtra())
        page.extra().forEachEntry([&](const ExtraEntry& entry) { entries << entryText(entry); });
    entries.removeAll(QString());
    return entries.join(QLatin1String(", "));
}

// The code for no value may have words.
QString RecordsModel::numberText(int record, int column, const QLocale& locale) const
{
    const CsvColumn& shown = columns_[column].shown;
    const double number = itemNumber(*raw(record, column), shown.item);
    if (std::isnan(number)) {
        const TextParts parts = cellParts(decoded(record), shown);
        return parts.word ? parts.word->text() : QString();
    }
    return locale.toString(number, 'f', columns_[column].decimals);
}

QString RecordsModel::text(int record, int column) const
{
    if (!columnAt(column))
        return packetText(record);
    const std::optional<quint64> value = raw(record, column);
    if (!value)
        return {};
    switch (columns_[column].kind) {
    case CellKind::Number:
        return numberText(record, column, QLocale());
    case CellKind::Time:
        return momentText(static_cast<quint32>(*value), shown_->utcOffset());
    case CellKind::Event:
        if (QString event = eventText(static_cast<quint16>(*value)); !event.isEmpty())
            return event;
        break;
    default:
        break;
    }
    return cellText(decoded(record), columns_[column].shown, {shown_->columns().userTypes()});
}

QString RecordsModel::textToCopy(int record, int column) const
{
    if (isDamaged(record))
        return {};
    const bool isHeld = raw(record, column).has_value();
    if (isHeld && kind(column) == CellKind::Number) {
        QLocale locale;
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        return numberText(record, column, locale);
    }
    // English spreadsheets know no days before months with points between them.
    if (isHeld && kind(column) == CellKind::Time && QLocale().language() != QLocale::Russian)
        return momentText(static_cast<quint32>(*raw(record, column)), shown_->utcOffset(),
                          "yyyy-MM-dd HH:mm:ss");
    return text(record, column).simplified();
}

std::vector<double> RecordsModel::keys(int column) const
{
    if (!columnAt(column)) {
        std::vector<double> packets(shown_->records().size(), kNoKey);
        for (int record = 0; record < shown_->records().size(); ++record) {
            if (shown_->records().layout(record).isPacket())
                packets[record] = record;
        }
        return alphabetical(std::move(packets), [this](int record) { return packetText(record); });
    }
    const std::vector<double>& numbers = shown_->columns().numbers(columns_[column].shown.item);
    if (kind(column) != CellKind::Event && kind(column) != CellKind::Words)
        return numbers;
    return alphabetical(numbers, [this, column](int record) { return text(record, column); });
}

void RecordsModel::sort(int column, Qt::SortOrder order)
{
    if (column >= columnCount())
        return;
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> records;
    for (const QModelIndex& index : before)
        records.push_back(order_[index.row()]);
    sortColumn_ = column;
    sortOrder_ = order;
    this->order();
    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i)
        after << index(rowOf(records[i]), before[i].column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

} // namespace vlk
