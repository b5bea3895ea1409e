#include "window/write_report_model.h"

#include "check/plugin_names.h"
#include "typing/field_mark.h"
#include "window/languages.h"
#include "window/setting_change_model.h"

#include <QGuiApplication>
#include <QPalette>

namespace workbench {

void WriteReportModel::setReport(const RoadReport& report)
{
    beginResetModel();
    settings_ = report.settings;
    endResetModel();
}

void WriteReportModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int WriteReportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(settings_.size());
}

int WriteReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant WriteReportModel::data(const QModelIndex& index, int role) const
{
    const WrittenSetting& setting = settings_.at(index.row());
    if (role == Qt::DecorationRole && index.column() == Setting)
        return markPixmap(setting.isTaken ? Mark::Right : Mark::Invalid, QGuiApplication::palette(),
                          kMarkSize, qApp->devicePixelRatio());
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Setting:
        return settingName(setting.change);
    case Key:
        return setting.change.path;
    case Sent:
        return shownValue(setting.change.after, setting.change.afterText);
    default:
        return shownValue(setting.readBack, setting.readBackText);
    }
}

QVariant WriteReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr const char* keys[ColumnCount] = {"wb_report_setting", "wb_report_key", "wb_report_sent",
                                                      "wb_report_back"};
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return text(keys[section]);
    return {};
}

} // namespace workbench
