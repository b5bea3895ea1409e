#pragma once

// The records on show as a table: a row for each that passes the filter, and the columns that their masks
// select. A record is decoded, and a text made, when a view asks for it, so that a file on show costs the
// same whatever its length is. Only sorting walks all records, over one column of numbers.

#include "telemetry/shown/record_cell.h"
#include "telemetry/shown/shown_records.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QHash>

namespace vlk {

class RecordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    RecordsModel(ShownRecords* shown, QObject* parent);

    void retranslate();

    // Null for the last column of a file with packets, which tells what they hold.
    const CsvColumn* columnAt(int column) const;
    // -1 where the table has none.
    int columnOf(ItemIndex item) const;
    CellKind kind(int column) const;
    int recordAt(int row) const { return order_[row]; }
    // The records in the order of the rows.
    const std::vector<int>& records() const { return order_; }
    // -1 where it does not pass the filter.
    int rowOf(int record) const;

    // What the record shows in a column; empty where it shows nothing.
    QString text(int record, int column) const;
    // Whether the file does not hold it as it was written: what it shows is no measured value.
    bool isDamaged(int record) const { return shown_->columns().isDamaged(record); }
    // The text as spreadsheets of the language take it; empty of a damaged record.
    QString textToCopy(int record, int column) const;
    // The bytes behind it; none where the record lacks it, and of the column of packets.
    std::optional<quint64> raw(int record, int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // No column at -1: the order of the file.
    void sort(int column, Qt::SortOrder order) override;

private:
    struct Column
    {
        CsvColumn shown;
        CellKind kind;
        int decimals;
        QString head;
    };

    void restart();
    void grow(int first);
    void setColumns();
    void makeHeads();
    void setRows();
    void order();
    int alignment(int column) const;
    QVariant damagedData(int record, int role) const;
    QVariant absentData(int record, int column, int role) const;
    const TmiPage_Zeta3& decoded(int record) const;
    QString eventText(quint16 code) const;
    QString packetText(int record) const;
    QString numberText(int record, int column, const QLocale& locale) const;
    std::vector<double> keys(int column) const;

    ShownRecords* shown_;
    std::vector<Column> columns_;
    bool hasPackets_ = false;
    QString packetHead_;
    std::vector<int> order_; // the record of each row
    std::vector<int> rows_;  // the row of each record, where they are sorted
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    mutable TmiPage_Zeta3 page_;
    mutable int decoded_ = -1;
    mutable QCache<quint64, QString> texts_{8192};
    mutable QHash<quint16, QString> events_;
};

} // namespace vlk
