#include "dialog/difference_model.h"

#include "typing/field_mark.h"

#include <QGuiApplication>
#include <QIcon>

#include <utility>

namespace vlk {

namespace {

constexpr int kIconRatio = 2;

// Where the other side is neither what was opened nor the defaults, by ConfigurationReview::Against: what is
// missing now, and what the other side lacks.
constexpr std::pair<const char*, const char*> kOnOneSide[] = {
    {}, {}, {"rev_280", "rev_281"}, {"rev_282", "rev_283"}};

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
    problems_ = 0;
    const QSet<QString> unchosen = std::exchange(unchosen_, {});
    const bool isPreset = review_.against() == ConfigurationReview::Against::preset;
    const review::Differences& differences = review_.differences();
    if (isPreset) {
        for (const review::PresetProblem& problem : review_.problems())
            lines_.push_back(
                {review::Difference{-1, -1, problem.path, problem.text, {}}, review::textOf(problem)});
        problems_ = rowCount();
    }
    for (const review::Difference& difference : review_.listed()) {
        const Values* values =
            difference.key < 0 ? nullptr : review_.valuesOf(review::FileKeys::all()[difference.key].table);
        if (unchosen.contains(difference.path))
            unchosen_.insert(difference.path);
        lines_.push_back({difference, values ? review::textOf(differences, difference, *values)
                                             : review::textOf(difference)});
        const auto& [missing, surplus] = kOnOneSide[static_cast<int>(review_.against())];
        if (missing && !difference.byLoad && (difference.before.isNull() || difference.after.isNull()))
            lines_.back().text.note = text(difference.after.isNull() ? missing : surplus);
        if (isPreset && difference.key >= 0)
            tellWhole(&lines_.back(), differences.before().at(difference.key).meaning);
    }
    endResetModel();
}

// The texts tell what the preset moves here alone.
void DifferenceModel::tellWhole(Line* line, const QString& value)
{
    if (const auto parts = review::chosenParts(line->difference.key, value))
        line->text.note = text("rev_251").arg(parts->count).arg(parts->all);
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
    const bool isProblem = index.row() < problems_;
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        const int column = !isProblem || index.column() < Now ? index.column()
                           : index.column() == Now            ? int(Note)
                                                              : int(Now);
        return cell(line.text, review::placeText(line.text), column);
    }
    if (role == Qt::DecorationRole && index.column() == Page && isProblem)
        return QIcon(markPixmap(Mark::advice, QGuiApplication::palette(), kMarkSize, kIconRatio));
    if (role == Qt::CheckStateRole && index.column() == Page && line.difference.key >= 0)
        return unchosen_.contains(line.difference.path) ? Qt::Unchecked : Qt::Checked;
    return {};
}

bool DifferenceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Page)
        return false;
    choose({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

void DifferenceModel::choose(const QVector<int>& lines, bool isChosen)
{
    for (const int line : lines) {
        const review::Difference& difference = lines_[line].difference;
        if (difference.key < 0)
            continue;
        if (isChosen)
            unchosen_.remove(difference.path);
        else
            unchosen_.insert(difference.path);
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Page), index(rowCount() - 1, Page), {Qt::CheckStateRole});
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
    // The left side is named after what is compared, by ConfigurationReview::Against.
    static constexpr const char* sides[] = {"rev_103", "rev_106", "rev_107", "rev_192"};
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    if (section == Before && !review_.otherName().isEmpty())
        return review_.otherName();
    if (section == Before && review_.against() == ConfigurationReview::Against::file && review_.isWritten())
        return text("rev_256");
    return text(section == Before ? sides[static_cast<int>(review_.against())] : titles[section]);
}

} // namespace vlk
