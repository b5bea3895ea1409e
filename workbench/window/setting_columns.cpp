#include "window/setting_columns.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

namespace workbench {

namespace {

struct Width
{
    int column;
    int pixels;
    int least; // its head is whole
    bool isLast;
};

// The widest one gives way first. Gives what is missing still.
int narrow(std::vector<Width>& widths, int missing, bool last)
{
    for (; missing > 0; --missing) {
        Width* widest = nullptr;
        for (Width& width : widths) {
            const bool canGive = width.isLast == last && width.pixels > width.least;
            if (canGive && (!widest || width.pixels > widest->pixels))
                widest = &width;
        }
        if (!widest)
            break;
        --widest->pixels;
    }
    return missing;
}

} // namespace

SettingColumns::SettingColumns(QTableView* table, std::vector<Column> columns)
    : QObject(table), table_(table), columns_(std::move(columns))
{
    table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table_->viewport()->installEventFilter(this);
    fit();
}

bool SettingColumns::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        fit();
    return QObject::eventFilter(watched, event);
}

void SettingColumns::fit()
{
    constexpr int fewest = 9; // letters
    // Of what is for the names; keys beside them leave less.
    const double share = columns_.size() > 2 ? 0.4 : 0.5;
    const QAbstractItemView& view = *table_;
    const QHeaderView& header = *table_->horizontalHeader();
    const int letter = table_->fontMetrics().averageCharWidth();
    const int room = view.viewport()->width();
    std::vector<Width> widths;
    int missing = static_cast<int>(room * share) - room;
    for (const Column& column : columns_) {
        const int head = header.sectionSizeHint(column.number);
        const int wanted = std::max(view.sizeHintForColumn(column.number), head);
        const auto bounded = [&](int width) {
            return std::clamp(width, fewest * letter, column.most * letter);
        };
        widths.push_back({column.number, bounded(wanted), bounded(head), column.isLast});
        missing += widths.back().pixels;
    }
    missing = narrow(widths, missing, false);
    narrow(widths, missing, true);
    for (const Width& width : widths)
        table_->setColumnWidth(width.column, width.pixels);
}

} // namespace workbench
