#pragma once

// Figures of a journey as a table: of a selection a line a figure, of days a line a day.

#include "telemetry/fuel/journey.h"

#include <QAbstractTableModel>

namespace vlk {

class SummaryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSelection(const JourneySummary& summary, qint32 utcOffset);
    void setDays(std::vector<JourneySummary> days, qint32 utcOffset);
    void retranslate();
    QString csv() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void set(std::vector<JourneySummary> summaries, bool areDays, qint32 utcOffset);

    std::vector<JourneySummary> summaries_;
    bool areDays_ = false;
    qint32 utcOffset_ = 0;
};

} // namespace vlk
