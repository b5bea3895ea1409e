#include "telemetry/view/records_model.h"

#include "link/requests.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/text/time_text.h"
#include "telemetry/view/absent_value.h"
#include "telemetry/view/item_display.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vlk {

using namespace vlk;

namespace {

bool isTime(const CsvColumn& column)
{
    const Shape shape = kItems[column.item].rule().shape;
    return shape == Shape::zonedTime || shape == Shape::localTime || shape == Shape::dateTime;
}

// Events have words in place of their codes.
bool isNumeric(const CsvColumn& column)
{
    if (column.element() == element("Code"))
        return false;
    const Shape shape = kItems[column.item].rule().shape;
    return shape == Shape::decimal || shape == Shape::fixed || shape == Shape::general ||
           shape == Shape::coordinate || shape == Shape::userParameter;
}

bool isCoordinate(const CsvColumn& column)
{
    return kItems[column.item].rule().shape == Shape::coordinate;
}

// In the order of the alphabet, from 0 on.
QHash<QString, double> ranksOf(QStringList words)
{
    std::sort(words.begin(), words.end(),
              [](const QString& left, const QString& right) { return left.localeAwareCompare(right) < 0; });
    QHash<QString, double> ranks;
    for (const QString& word : std::as_const(words))
        ranks.insert(word, ranks.size());
    return ranks;
}

// Times and coordinates are ordered by what is behind their texts, which would take long to make.
bool sortsByValue(const CsvColumn& column)
{
    return isTime(column) || isCoordinate(column);
}

double valueOf(const TmiPage_Zeta3& page, const CsvColumn& column)
{
    return page.isExtra() ? page.extra().number(column.element()) : page.number(column.element());
}

// A number with or without a unit behind it. The value of a damaged record may be none, which has no place
// among the others.
bool readNumber(const QString& text, const CsvColumn& column, double& number)
{
    bool isNumber = false;
    number = text.toDouble(&isNumber);
    // Binary digits of a user parameter have blanks too.
    if (!isNumber && kItems[column.item].rule().shape != Shape::userParameter)
        number = text.leftRef(text.lastIndexOf(QLatin1Char(' '))).toDouble(&isNumber);
    return isNumber && !std::isnan(number);
}

} // namespace

struct RecordsModel::SortKey
{
    enum Kind : quint8 { Number, Word, Empty };

    Kind kind = Empty;
    double value = 0;
};

void RecordsModel::setContents(TelemetryContents contents)
{
    beginResetModel();
    records_ = std::move(contents.records);
    decodedPage_ = -1;
    userTypes_ = typeLetters(contents.origin.titles).toLatin1().toStdString();
    columns_ = columnsOf(records_);
    hasPackets_ = records_.hasPackets();
    order_.resize(records_.size());
    std::iota(order_.begin(), order_.end(), 0);
    cells_.clear();
    events_.clear();
    makeHeadings();
    endResetModel();
}

void RecordsModel::retranslate()
{
    cells_.clear();
    events_.clear();
    makeHeadings();
    if (rowCount() == 0 || columnCount() == 0)
        return;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void RecordsModel::makeHeadings()
{
    headings_.clear();
    for (const CsvColumn& column : columns_)
        headings_ << headingText(column);
    if (hasPackets_)
        headings_ << Word("tmizta_359").text();
}

int RecordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int RecordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : headings_.size();
}

QVariant RecordsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column());
    const int page = order_[index.row()];
    if (isAbsent(page, index.column())) {
        switch (role) {
        case Qt::DisplayRole:
            return QString(kAbsentMark);
        case Qt::ToolTipRole:
            return absentTip();
        case Qt::ForegroundRole:
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        default:
            return {};
        }
    }
    if (role != Qt::DisplayRole)
        return {};
    const quint64 key = static_cast<quint64>(page) << 32 | static_cast<quint32>(index.column());
    if (const QString* known = cells_.object(key))
        return *known;
    const QString text = cellText(page, index.column());
    cells_.insert(key, new QString(text));
    return text;
}

// A heading stands as its column does.
int RecordsModel::alignment(int column) const
{
    const bool toTheRight = column < static_cast<int>(columns_.size()) && isNumeric(columns_[column]);
    return static_cast<int>(Qt::AlignVCenter | (toTheRight ? Qt::AlignRight : Qt::AlignLeft));
}

QVariant RecordsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
        return alignment(section) | Qt::TextWordWrap;
    const bool isText = role == Qt::DisplayRole || (role == Qt::ToolTipRole && orientation == Qt::Horizontal);
    if (!isText || section < 0)
        return {};
    // The place in the file, as the browser counts it.
    if (orientation == Qt::Vertical)
        return section < rowCount() ? QVariant(order_[section]) : QVariant();
    return section < headings_.size() ? headings_[section] : QVariant();
}

const TmiPage_Zeta3& RecordsModel::decoded(int page) const
{
    if (decodedPage_ != page)
        records_.decode(decoded_, page);
    decodedPage_ = page;
    return decoded_;
}

bool RecordsModel::isAbsent(int page, int column) const
{
    return isPacketData(column) ? !decoded(page).isExtra()
                                : !holds(decoded(page), columns_[column].element());
}

QString RecordsModel::cellText(int page, int column) const
{
    const TmiPage_Zeta3& record = decoded(page);
    if (isPacketData(column)) {
        QStringList entries;
        if (record.isExtra())
            record.extra().forEachEntry([&](const ExtraEntry& entry) { entries << entryText(entry); });
        entries.removeAll(QString());
        return entries.join(QLatin1String(", "));
    }
    const CsvColumn& shown = columns_[column];
    if (isAbsent(page, column))
        return {};
    if (isTime(shown))
        return zonedTimeText(static_cast<quint32>(valueOf(record, shown)), record.utcOffset());
    if (isCoordinate(shown))
        return positionText(record, shown.item);
    if (shown.element() == element("Code")) {
        QString event = eventText(codeOf(record));
        if (!event.isEmpty())
            return event;
    }
    return vlk::cellText(record, shown, {userTypes_});
}

QString RecordsModel::eventText(quint16 code) const
{
    const auto known = events_.constFind(code);
    return known != events_.constEnd() ? *known : *events_.insert(code, requests::eventText(code));
}

std::vector<RecordsModel::SortKey> RecordsModel::sortKeys(int column) const
{
    std::vector<SortKey> keys(records_.size());
    const CsvColumn* const shown = isPacketData(column) ? nullptr : &columns_[column];
    if (shown != nullptr && sortsByValue(*shown)) {
        for (int page = 0; page < records_.size(); ++page) {
            if (holds(decoded(page), shown->element()))
                keys[page] = {SortKey::Number, valueOf(decoded(page), *shown)};
        }
        return keys;
    }
    QHash<QString, double> words;
    std::vector<QString> texts(records_.size());
    for (int page = 0; page < records_.size(); ++page) {
        texts[page] = cellText(page, column);
        SortKey& key = keys[page];
        if (texts[page].isEmpty())
            continue;
        const bool isNumber = shown != nullptr && readNumber(texts[page], *shown, key.value);
        key.kind = isNumber ? SortKey::Number : SortKey::Word;
        if (!isNumber)
            words.insert(texts[page], 0);
    }
    words = ranksOf(words.keys());
    for (int page = 0; page < records_.size(); ++page) {
        if (keys[page].kind == SortKey::Word)
            keys[page].value = words.value(texts[page]);
    }
    return keys;
}

void RecordsModel::sort(int column, Qt::SortOrder order)
{
    if (column >= columnCount())
        return;
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> pagesBefore;
    for (const QModelIndex& index : before)
        pagesBefore.push_back(order_[index.row()]);

    std::iota(order_.begin(), order_.end(), 0);
    if (column >= 0) {
        const std::vector<SortKey> keys = sortKeys(column);
        std::ranges::stable_sort(order_, [&](int leftPage, int rightPage) {
            const SortKey& left = keys[leftPage];
            const SortKey& right = keys[rightPage];
            if (left.kind == SortKey::Empty || right.kind == SortKey::Empty)
                return left.kind < right.kind && right.kind == SortKey::Empty;
            const auto isLess = [](const SortKey& a, const SortKey& b) {
                return std::pair(a.kind, a.value) < std::pair(b.kind, b.value);
            };
            return order == Qt::AscendingOrder ? isLess(left, right) : isLess(right, left);
        });
    }

    std::vector<int> rowOf(order_.size());
    for (std::size_t row = 0; row < order_.size(); ++row)
        rowOf[order_[row]] = static_cast<int>(row);
    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i)
        after << index(rowOf[pagesBefore[i]], before[i].column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

} // namespace vlk
