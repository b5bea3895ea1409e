#include "window/write_report_model.h"

#include "window/languages.h"

namespace workbench {

void WriteReportModel::setReport(const tracker::WriteReport& report)
{
    beginResetModel();
    rows_.clear();
    const auto append = [this](const char* kindKey, const QVector<tracker::KeyChange>& changes) {
        for (const tracker::KeyChange& change : changes)
            rows_.append({kindKey, change});
    };
    append("wb_report_changed", report.changed);
    append("wb_report_added", report.added);
    append("wb_report_removed", report.removed);
    endResetModel();
}

void WriteReportModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!rows_.isEmpty())
        Q_EMIT dataChanged(index(0, Kind), index(int(rows_.size()) - 1, Kind));
}

int WriteReportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(rows_.size());
}

int WriteReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant WriteReportModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const Row& row = rows_.at(index.row());
    switch (index.column()) {
    case Kind:
        return text(row.kindKey);
    case Key:
        return row.change.path;
    case Before:
        return row.change.before;
    default:
        return row.change.after;
    }
}

QVariant WriteReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr const char* keys[ColumnCount] = {"wb_report_kind", "wb_report_key", "wb_report_before",
                                                      "wb_report_after"};
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return text(keys[section]);
    return {};
}

} // namespace workbench
