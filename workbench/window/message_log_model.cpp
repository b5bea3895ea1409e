#include "window/message_log_model.h"

#include "window/languages.h"
#include "window/message_text.h"

namespace workbench {

namespace {

QVariant alignment(int column)
{
    const auto side = column == MessageLogModel::Number ? Qt::AlignRight : Qt::AlignLeft;
    return static_cast<int>(side | Qt::AlignVCenter);
}

} // namespace

MessageLogModel::MessageLogModel(int capacity, QObject* parent)
    : QAbstractTableModel(parent), capacity_(std::max(1, capacity))
{
}

int MessageLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(messages_.size());
}

int MessageLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString MessageLogModel::cell(const LoggedMessage& message, int column) const
{
    switch (column) {
    case Time:
        return message.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case Way:
        return message.direction == vlk::Direction::ToPlugin ? QStringLiteral("→") : QStringLiteral("←");
    case Number:
        return message.category.isEmpty() ? QString::number(message.id) : QString();
    case Name: {
        if (!message.category.isEmpty())
            return message.category;
        const vlk::MessageInfo* info = findMessage(message.direction, message.id);
        return info ? QString::fromLatin1(info->name) : QStringLiteral("?");
    }
    default: {
        QStringList parts;
        if (!message.note.isEmpty())
            parts.append(QStringLiteral("⚠ %1;").arg(message.note));
        if (!message.words.isEmpty())
            parts.append(message.words);
        if (!message.bytes.isEmpty())
            parts.append(hexText(message.bytes));
        return parts.join(QLatin1Char(' '));
    }
    }
}

QVariant MessageLogModel::data(const QModelIndex& index, int role) const
{
    const LoggedMessage& message = messages_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() == Parameters))
        return cell(message, index.column());
    if (role == kDirectionRole)
        return static_cast<int>(message.direction);
    return role == Qt::TextAlignmentRole ? alignment(index.column()) : QVariant();
}

QVariant MessageLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr const char* keys[ColumnCount] = {"wb_log_time", "wb_log_way", "wb_log_number",
                                                      "wb_log_name", "wb_log_parameters"};
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return text(keys[section]);
    return role == Qt::TextAlignmentRole ? alignment(section) : QVariant();
}

QString MessageLogModel::line(int row) const
{
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells.append(cell(messages_[static_cast<std::size_t>(row)], column));
    return cells.join(QLatin1Char('\t'));
}

void MessageLogModel::append(vlk::Direction direction, quint32 id, const void* p1, const void* p2)
{
    const MessageText text = describeMessage(direction, id, p1, p2);
    add({QDateTime::currentDateTime(), direction, id, text.words, text.bytes, {}, {}});
}

void MessageLogModel::appendWarning(const QString& category, const QString& text)
{
    add({QDateTime::currentDateTime(), vlk::Direction::ToHost, 0, text, {}, {}, category});
}

void MessageLogModel::add(LoggedMessage message)
{
    if (static_cast<int>(messages_.size()) >= capacity_) {
        const int dropped = std::max(1, capacity_ / 10);
        beginRemoveRows({}, 0, dropped - 1);
        messages_.erase(messages_.begin(), messages_.begin() + dropped);
        endRemoveRows();
    }
    const int row = static_cast<int>(messages_.size());
    beginInsertRows({}, row, row);
    messages_.push_back(std::move(message));
    endInsertRows();
}

void MessageLogModel::markNewest(const QString& note)
{
    if (messages_.empty())
        return;
    messages_.back().note = note;
    const int row = static_cast<int>(messages_.size()) - 1;
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void MessageLogModel::clear()
{
    beginResetModel();
    messages_.clear();
    endResetModel();
}

void MessageLogModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

} // namespace workbench
