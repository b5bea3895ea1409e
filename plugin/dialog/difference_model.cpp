#include "dialog/difference_model.h"

#include "typing/field_mark.h"

#include <QGuiApplication>
#include <QLocale>

#include <algorithm>
#include <iterator>
#include <utility>

namespace vlk {

namespace {

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

bool isFilledIn(const review::Difference& difference)
{
    return difference.byLoad && difference.before.isNull();
}

} // namespace

DifferenceModel::DifferenceModel(ConfigurationReview& review, QObject* parent)
    : QAbstractTableModel(parent), review_(review)
{
    connect(&review_, &ConfigurationReview::begun, this, [this] {
        unchosen_.clear();
        unchosenOfOthers_.clear();
    });
    connect(&review_, &ConfigurationReview::compared, this, [this] {
        unchosenOfOthers_.insert(comparison_, unchosen_);
        comparison_ = review_.comparison();
        unchosen_ = unchosenOfOthers_.take(comparison_);
    });
}

DifferenceModel::Kind DifferenceModel::kindOf(const review::Difference& difference) const
{
    const bool isOfFile = review_.against() == ConfigurationReview::Against::File;
    if (isOfFile && review_.isUnedited(difference) && (review_.isQuick() || isFilledIn(difference)))
        return Kind::Unedited;
    if (difference.key >= 0 && review_.isBeyond(difference.key))
        return Kind::Beyond;
    // Each key of another file or a preset is a choice of its own.
    return difference.isAlong && (isOfFile || !review_.otherName().isEmpty()) ? Kind::Along : Kind::Own;
}

DifferenceModel::Line DifferenceModel::lineOf(const review::Difference& difference) const
{
    const review::Differences& differences = review_.differences();
    Line line{difference, review_.textOf(differences, difference)};
    const auto& [missing, surplus] = kOnOneSide[static_cast<int>(review_.against())];
    if (missing && !difference.byLoad && (difference.before.isNull() || difference.after.isNull()))
        line.text.note = text(difference.after.isNull() ? missing : surplus);
    if (review_.against() == ConfigurationReview::Against::Preset && difference.key >= 0)
        tellWhole(&line, differences.before().at(difference.key).meaning);
    return line;
}

void DifferenceModel::addBehindHead(const char* key, std::vector<Line>* lines)
{
    if (lines->empty())
        return;
    Line head;
    head.members = static_cast<int>(lines->size());
    head.difference.path = QString::fromLatin1(key) + lines->front().text.page;
    head.text.page = lines->front().text.page;
    head.text.caption = text(key).arg(QLocale().toString(head.members));
    const int place = static_cast<int>(lines_.size());
    lines_.push_back(head);
    for (Line& line : *lines) {
        line.head = place;
        lines_.push_back(std::move(line));
    }
    lines->clear();
}

void DifferenceModel::refresh()
{
    beginResetModel();
    lines_.clear();
    if (review_.against() == ConfigurationReview::Against::Preset) {
        for (const review::PresetProblem& problem : review_.problems())
            lines_.push_back(
                {review::Difference{-1, -1, problem.path, problem.text, {}}, review::textOf(problem)});
    }
    problems_ = static_cast<int>(lines_.size());
    std::vector<Line> unedited;
    std::vector<Line> along;
    std::vector<Line> beyond;
    std::vector<Line> own;
    for (const review::Difference& difference : review_.listed()) {
        const Kind kind = kindOf(difference);
        std::vector<Line>& lines = kind == Kind::Unedited ? unedited
                                   : kind == Kind::Along  ? along
                                   : kind == Kind::Beyond ? beyond
                                                          : own;
        lines.push_back(lineOf(difference));
    }
    // They are in the order of their pages.
    const auto samePage = [](std::vector<Line>* lines, const QString& page) {
        const auto end =
            std::ranges::find_if(*lines, [&](const Line& line) { return line.text.page != page; });
        std::vector<Line> taken(std::make_move_iterator(lines->begin()), std::make_move_iterator(end));
        lines->erase(lines->begin(), end);
        return taken;
    };
    const auto addHeads = [&](const char* key, std::vector<Line>* lines) {
        while (!lines->empty()) {
            std::vector<Line> page = samePage(lines, lines->front().text.page);
            addBehindHead(key, &page);
        }
    };
    addHeads(review_.isQuick() ? "rev_291" : "rev_430", &unedited);
    while (!own.empty()) {
        const QString page = own.front().text.page;
        for (Line& line : samePage(&own, page))
            lines_.push_back(std::move(line));
        std::vector<Line> lines = samePage(&along, page);
        addBehindHead("rev_290", &lines);
    }
    addHeads("rev_290", &along);
    addHeads("rev_298", &beyond);
    const QSet<QString> unchosen = std::exchange(unchosen_, {});
    for (const Line& line : lines_) {
        if (unchosen.contains(line.difference.path))
            unchosen_.insert(line.difference.path);
    }
    showLines();
    endResetModel();
}

void DifferenceModel::showLines()
{
    shown_.clear();
    for (int place = 0; place < static_cast<int>(lines_.size()); ++place) {
        const int head = lines_[place].head;
        if (head < 0 || open_.contains(lines_[head].difference.path))
            shown_.push_back(place);
    }
}

bool DifferenceModel::hasNotes() const
{
    return std::ranges::any_of(shown_, [this](int place) { return !lines_[place].text.note.isEmpty(); });
}

void DifferenceModel::toggleHead(int line)
{
    const QString path = lineAt(line).difference.path;
    beginResetModel();
    if (!open_.remove(path))
        open_.insert(path);
    showLines();
    endResetModel();
}

QString DifferenceModel::summary() const
{
    int removed = 0;
    int set = 0;
    int own = 0;
    int filledIn = 0;
    QStringList pages;
    // The other file is looked at as it stands.
    if (review_.against() == ConfigurationReview::Against::OtherFile && review_.unedited() > 0)
        return text("rev_741").arg(QLocale().toString(review_.unedited()));
    if (review_.against() != ConfigurationReview::Against::File)
        return {};
    for (const Line& line : lines_) {
        if (line.members > 0)
            continue;
        own += kindOf(line.difference) == Kind::Own && !review_.isUnedited(line.difference) ? 1 : 0;
        if (!review_.isUnedited(line.difference))
            continue;
        (line.difference.after.isNull() ? removed : set) += 1;
        filledIn += isFilledIn(line.difference) ? 1 : 0;
        if (!pages.contains(line.text.page))
            pages << line.text.page;
    }
    if (pages.isEmpty())
        return {};
    const QLocale locale;
    return review_.isQuick()
               ? text("rev_292").arg(locale.toString(removed), pages.join(QStringLiteral(", ")),
                                     locale.toString(set), locale.toString(own))
               : text("rev_431").arg(locale.toString(filledIn), locale.toString(removed + set - filledIn),
                                     locale.toString(own));
}

// The texts tell what the preset moves here alone.
void DifferenceModel::tellWhole(Line* line, const QString& value)
{
    if (const auto parts = review::chosenParts(line->difference.key, value)) {
        line->text.note =
            text(parts->rest.isEmpty() ? "rev_251" : "rev_341").arg(parts->count).arg(parts->all);
        if (!parts->rest.isEmpty())
            line->text.note = line->text.note.arg(parts->rest);
    }
}

bool DifferenceModel::hasCheckMark(const Line& line)
{
    return line.difference.key >= 0 && line.head < 0;
}

bool DifferenceModel::isChosen(const Line& line, const QSet<QString>& unchosen)
{
    return hasCheckMark(line) && !unchosen.contains(line.difference.path);
}

std::vector<int> DifferenceModel::keysOf(const QSet<QString>& unchosen) const
{
    std::vector<int> keys;
    for (const Line& line : lines_) {
        if (isChosen(line, unchosen))
            keys.push_back(line.difference.key);
    }
    // A setting decides about others that decide in their turn.
    const review::Differences& differences = review_.differences();
    for (std::size_t known = SIZE_MAX; known != keys.size();) {
        known = keys.size();
        for (const Line& line : lines_) {
            const int key = line.difference.key;
            if (key >= 0 && kindOf(line.difference) == Kind::Along &&
                std::ranges::find(keys, key) == keys.end() && differences.isWith(key, keys))
                keys.push_back(key);
        }
    }
    return keys;
}

QString DifferenceModel::csv() const
{
    std::vector<review::DifferenceText> texts;
    for (const Line& line : lines_) {
        if (line.members == 0)
            texts.push_back(line.text);
    }
    return review::toCsv(texts, headerData(Before, Qt::Horizontal).toString(),
                         headerData(Now, Qt::Horizontal).toString());
}

DifferenceModel::Copied DifferenceModel::copied() const
{
    const std::vector<int> chosen = chosenKeys();
    const auto cells = [](auto cell) {
        QStringList texts;
        for (int column = 0; column < ColumnCount; ++column)
            texts << cell(column).simplified();
        return texts.join(QLatin1Char('\t')) + QLatin1Char('\n');
    };
    Copied copied;
    copied.text = cells([&](int column) { return headerData(column, Qt::Horizontal).toString(); });
    for (const int place : shown_) {
        const Line& line = lines_[place];
        if (line.members > 0)
            continue;
        ++copied.all;
        const Kind kind = kindOf(line.difference);
        const bool hasChoice = line.difference.key >= 0 && (kind == Kind::Own || kind == Kind::Along);
        if (hasChoice && std::ranges::find(chosen, line.difference.key) == chosen.end())
            continue;
        ++copied.lines;
        const QString setting = review::placeText(line.text);
        copied.text += cells([&](int column) { return cell(line.text, setting, column); });
    }
    return copied;
}

int DifferenceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int DifferenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    const Line& line = lineAt(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        const int column = index.column();
        const bool isSign = line.members > 0 && column == Caption && role == Qt::DisplayRole;
        const char* sign = open_.contains(line.difference.path) ? "▾ " : "▸ ";
        return (isSign ? QString::fromUtf8(sign) : QString()) +
               cell(line.text, review::placeText(line.text), column);
    }
    if (role == Qt::DecorationRole && index.column() == Page && index.row() < problems_)
        return markIcon(Mark::Advice, QGuiApplication::palette());
    if (role == Qt::CheckStateRole && index.column() == Page && hasCheckMark(line))
        return isChosen(line) ? Qt::Checked : Qt::Unchecked;
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
        if (!hasCheckMark(lineAt(line)))
            continue;
        if (isChosen)
            unchosen_.remove(at(line).path);
        else
            unchosen_.insert(at(line).path);
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Page), index(rowCount() - 1, Page), {Qt::CheckStateRole});
}

Qt::ItemFlags DifferenceModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    const bool canBeChosen = index.column() == Page && hasCheckMark(lineAt(index.row()));
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
    const QString& file = review_.fileName();
    if (section == Before && !file.isEmpty()) {
        const QString side = text(sides[static_cast<int>(review_.against())]);
        return role == Qt::DisplayRole ? file : QStringLiteral("%1: %2").arg(side, file);
    }
    if (section == Before && review_.against() == ConfigurationReview::Against::File && review_.isWritten())
        return text("rev_256");
    return text(section == Before ? sides[static_cast<int>(review_.against())] : titles[section]);
}

} // namespace vlk
