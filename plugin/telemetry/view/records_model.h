#pragma once

// The records and extra packets of a file as a table: a row each, and the columns that their masks select,
// with the headings and the texts that the CSV file has; times are written as in the browser, positions with
// their hemisphere. What a record lacks is a dash. A text is made when a view asks for it, so the cost of a
// file on show does not depend on its length.
//
// Sorting orders numbers by size, times by time and words by alphabet; empty cells stand last in both
// directions, and equal ones in the order of the file.

#include "telemetry/files/table_columns.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QHash>

#include <string>

namespace vlk {

class RecordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setContents(vlk::TelemetryContents contents);
    void retranslate();

    // What the entries of extra packets hold: the last column, if the file has packets.
    bool isPacketData(int column) const { return column == static_cast<int>(columns_.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    struct SortKey;

    void makeHeadings();
    int alignment(int column) const;
    bool isAbsent(int page, int column) const;
    const TmiPage_Zeta3& decoded(int page) const;
    // Of the file's page, counted from 0.
    QString cellText(int page, int column) const;
    QString eventText(quint16 code) const;
    std::vector<SortKey> sortKeys(int column) const;

    vlk::RecordStore records_;
    mutable TmiPage_Zeta3 decoded_;
    mutable int decodedPage_ = -1;
    std::string userTypes_;
    std::vector<vlk::CsvColumn> columns_;
    bool hasPackets_ = false;
    QStringList headings_;
    std::vector<int> order_; // the page of each row
    mutable QCache<quint64, QString> cells_{8192};
    mutable QHash<quint16, QString> events_;
};

} // namespace vlk
