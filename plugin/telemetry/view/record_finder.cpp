#include "telemetry/view/record_finder.h"

#include "telemetry/view/records_model.h"
#include "telemetry/view/records_table.h"

#include <QElapsedTimer>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kFindMs = 40;
constexpr std::size_t kMostKnown = 4096; // values of a column

} // namespace

RecordFinder::RecordFinder(RecordsModel* model, RecordsTable* table)
    : QObject(table), model_(model), table_(table)
{
    goOn_.setInterval(0);
    connect(&goOn_, &QTimer::timeout, this, &RecordFinder::lookOn);
    // The rows that were looked at are not these any more.
    connect(model, &QAbstractItemModel::modelReset, this, &RecordFinder::stop);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &RecordFinder::stop);
    connect(model, &QAbstractItemModel::layoutChanged, this, &RecordFinder::stop);
}

void RecordFinder::find(const QString& words, int step)
{
    stop();
    words_ = words.simplified();
    if (words_.isEmpty())
        return;
    step_ = step;
    // Without a current row from before the first one, or back from behind the last.
    const QModelIndex current = table_->currentIndex();
    start_ = current.isValid() ? current.row() : step > 0 ? -1 : model_->rowCount();
    looked_ = 0;
    columns_ = table_->shownColumns();
    known_.assign(model_->columnCount(), {});
    goOn_.start();
    lookOn();
}

// The current row is the last one to be looked at.
void RecordFinder::lookOn()
{
    QElapsedTimer clock;
    clock.start();
    const int rows = model_->rowCount();
    while (looked_ < rows) {
        ++looked_;
        const qint64 way = qint64{start_} + qint64{looked_} * step_;
        const int row = static_cast<int>((way % rows + rows) % rows);
        if (const int column = columnIn(row); column >= 0) {
            stop();
            table_->setCurrentIndex(model_->index(row, column));
            Q_EMIT found(way != row ? step_ : 0);
            return;
        }
        if (clock.elapsed() >= kFindMs) {
            Q_EMIT searching(static_cast<double>(looked_) / rows);
            return;
        }
    }
    stop();
    Q_EMIT nothingFound();
}

int RecordFinder::columnIn(int row)
{
    const int record = model_->recordAt(row);
    const auto found = std::ranges::find_if(columns_, [&](int column) { return matches(record, column); });
    return found == columns_.end() ? -1 : *found;
}

bool RecordFinder::matches(int record, int column)
{
    const auto isIn = [&] { return model_->text(record, column).contains(words_, Qt::CaseInsensitive); };
    const std::optional<quint64> raw = model_->raw(record, column);
    if (!raw)
        return !model_->columnAt(column) && isIn();
    auto& known = known_[column];
    if (const auto value = known.find(*raw); value != known.end())
        return value->second;
    const bool isMatch = isIn();
    if (known.size() < kMostKnown)
        known.emplace(*raw, isMatch);
    return isMatch;
}

} // namespace vlk
