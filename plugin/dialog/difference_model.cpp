#include "dialog/difference_model.h"

#include <QCoreApplication>

#include <utility>

namespace vlk {

namespace {

QString text(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

const QString& cell(const review::DifferenceText& text, const QString& setting, int column)
{
    switch (column) {
    case DifferenceModel::Page:
        return text.page;
    case DifferenceModel::Caption:
        return setting;
    case DifferenceModel::Before:
        return text.beforeText;
    case DifferenceModel::Now:
        return text.afterText;
    default:
        return text.note;
    }
}

} // namespace

DifferenceModel::DifferenceModel(ConfigurationReview& review, QObject* parent)
    : QAbstractTableModel(parent), review_(review)
{
}

void DifferenceModel::refresh()
{
    beginResetModel();
    lines_.clear();
    const QSet<QString> unchosen = std::exchange(unchosen_, {});
    const review::Differences& differences = review_.differences();
    for (const review::Difference& difference : review_.listed()) {
        const Values* values =
            difference.key < 0 ? nullptr : review_.valuesOf(review::FileKeys::all()[difference.key].table);
        if (unchosen.contains(difference.path))
            unchosen_.insert(difference.path);
        lines_.push_back({difference, values ? review::textOf(differences, difference, *values)
                                             : review::textOf(difference)});
    }
    endResetModel();
}

std::vector<int> DifferenceModel::chosenKeys() const
{
    std::vector<int> keys;
    for (const Line& line : lines_) {
        if (line.difference.key >= 0 && !unchosen_.contains(line.difference.path))
            keys.push_back(line.difference.key);
    }
    return keys;
}

QString DifferenceModel::csv() const
{
    std::vector<review::DifferenceText> texts;
    for (const Line& line : lines_)
        texts.push_back(line.text);
    return review::toCsv(texts);
}

int DifferenceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int DifferenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    const Line& line = lines_[index.row()];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return cell(line.text, review::placeText(line.text), index.column());
    if (role == Qt::CheckStateRole && index.column() == Page && line.difference.key >= 0)
        return unchosen_.contains(line.difference.path) ? Qt::Unchecked : Qt::Checked;
    return {};
}

bool DifferenceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Page)
        return false;
    const QString& path = lines_[index.row()].difference.path;
    if (value.toInt() == Qt::Checked)
        unchosen_.remove(path);
    else
        unchosen_.insert(path);
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags DifferenceModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    const bool canBeChosen = index.column() == Page && lines_[index.row()].difference.key >= 0;
    return canBeChosen ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr const char* titles[] = {"rev_101", "rev_102", "rev_103", "rev_104", "rev_105"};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    // The left side is named after what is compared.
    return section == Before ? text(review_.against() == ConfigurationReview::Against::file       ? "rev_103"
                                    : review_.against() == ConfigurationReview::Against::defaults ? "rev_106"
                                                                                                  : "rev_107")
                             : text(titles[section]);
}

} // namespace vlk
