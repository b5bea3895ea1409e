#include "window/setting_change_model.h"

#include "check/plugin_names.h"
#include "typing/field_mark.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QPixmap>
#include <QStringList>
#include <QTableView>

#include <algorithm>

namespace workbench {

QString settingName(const SettingChange& change)
{
    QStringList parts{change.page, change.group, change.caption};
    parts.removeAll(QString());
    return change.group.isEmpty() && change.caption.isEmpty() ? change.path : parts.join(QLatin1String(", "));
}

QString shownValue(const QString& value, const QString& words)
{
    return value.isNull() ? QStringLiteral("–") : words;
}

namespace {

// Nothing, in the size of a mark, where nobody has edited it.
QPixmap markOf(const SettingChange& change)
{
    const qreal ratio = qApp->devicePixelRatio();
    if (change.isRemoved() || change.note.isEmpty())
        return markPixmap(change.isRemoved() ? Mark::Invalid : Mark::Changed, QGuiApplication::palette(),
                          kMarkSize, ratio);
    QPixmap none(QSize(kMarkSize, kMarkSize) * ratio);
    none.setDevicePixelRatio(ratio);
    none.fill(Qt::transparent);
    return none;
}

} // namespace

int heightOfRows(const QTableView& table)
{
    constexpr int atLeast = 4;
    return table.verticalHeader()->defaultSectionSize() * (std::max(atLeast, table.model()->rowCount()) + 2);
}

SettingChangeModel::SettingChangeModel(Heads heads, bool canBeChosen, QObject* parent)
    : QAbstractTableModel(parent), heads_(std::move(heads)), canBeChosen_(canBeChosen)
{
}

void SettingChangeModel::setChanges(const SettingChanges& changes, const QStringList& chosen)
{
    beginResetModel();
    changes_ = changes;
    hasNotes_ =
        std::ranges::any_of(changes, [](const SettingChange& change) { return !change.note.isEmpty(); });
    chosen_ = {chosen.begin(), chosen.end()};
    endResetModel();
}

QStringList SettingChangeModel::chosen() const
{
    QStringList paths;
    for (const SettingChange& change : changes_) {
        if (chosen_.contains(change.path))
            paths.append(change.path);
    }
    return paths;
}

void SettingChangeModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int SettingChangeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(changes_.size());
}

int SettingChangeModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : hasNotes_ ? ColumnCount : Note;
}

QVariant SettingChangeModel::data(const QModelIndex& index, int role) const
{
    const SettingChange& change = changes_.at(index.row());
    if (role == Qt::ToolTipRole && index.column() == Setting)
        return settingName(change) + QLatin1Char('\n') + change.path;
    if (role == Qt::DecorationRole && index.column() == Setting)
        return markOf(change);
    if (role == Qt::CheckStateRole && index.column() == Setting && canBeChosen_)
        return chosen_.contains(change.path) ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Setting:
        return settingName(change);
    case Before:
        return shownValue(change.before, change.beforeText);
    case After:
        return shownValue(change.after, change.afterText);
    default:
        return change.note;
    }
}

bool SettingChangeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Setting)
        return false;
    const QString& path = changes_.at(index.row()).path;
    if (value.toInt() == Qt::Checked)
        chosen_.insert(path);
    else
        chosen_.remove(path);
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags SettingChangeModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return canBeChosen_ && index.column() == Setting ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant SettingChangeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? heads_(section) : QVariant();
}

} // namespace workbench
