#include "window/message_log_filter.h"

#include "window/message_log_model.h"

#include <algorithm>

namespace workbench {

void MessageLogFilter::setWords(const QString& words)
{
    words_ = words.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

void MessageLogFilter::setDirections(Directions directions)
{
    directions_ = directions;
    invalidateFilter();
}

bool MessageLogFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const auto at = [&](int column, int role) {
        return sourceModel()->data(sourceModel()->index(row, column, parent), role);
    };
    if (directions_ != Directions::Both) {
        const auto direction = vlk::Direction(at(0, MessageLogModel::kDirectionRole).toInt());
        if ((direction == vlk::Direction::ToPlugin) != (directions_ == Directions::ToPlugin))
            return false;
    }
    if (words_.isEmpty())
        return true;
    QString searched;
    for (const int column : {MessageLogModel::Number, MessageLogModel::Name, MessageLogModel::Parameters})
        searched += at(column, Qt::DisplayRole).toString() + QLatin1Char('\n');
    return std::ranges::all_of(
        words_, [&searched](const QString& word) { return searched.contains(word, Qt::CaseInsensitive); });
}

} // namespace workbench
