#pragma once

// Which columns of the table of records are on show, and in which order. Those without a value in the file
// are hidden at first. What the user shows, hides and moves is kept in the host's folder of configurations,
// for all files.

#include "telemetry/view/column_groups.h"
#include "telemetry/view/filled_columns.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <vector>

namespace vlk {

class RecordsModel;
class RecordsTable;

class ColumnChoice : public QObject
{
    Q_OBJECT

public:
    ColumnChoice(RecordsModel* model, RecordsTable* table);

    // The columns of the model are others.
    void takeColumns(const RecordStore& records);
    // There are more records.
    void lookFurther() { goOn_.start(); }

    bool isShown(int column) const;
    // In the whole file, as far as it has been looked at.
    bool isEmpty(int column) const { return !filled_[column]; }
    // Always on show, at the left.
    bool isFixed(int column) const;
    ColumnGroup groupOf(int column) const;

    void show(const std::vector<int>& columns, bool shown);
    // Among those on show; number and time stay where they are.
    void move(int column, int steps);
    bool canMove(int column, int steps) const;
    // As if nothing had ever been chosen.
    void forget();

private:
    void load();
    void save() const;
    void leaveHidden();
    void keepOrder();
    void apply();
    void lookOn();
    QString nameOf(int column) const;

    RecordsModel* model_;
    RecordsTable* table_;
    QSet<QString> hidden_;
    QSet<QString> shown_; // though empty
    QStringList order_;
    std::vector<bool> filled_;
    std::unique_ptr<FilledColumns> search_;
    std::vector<int> sought_; // the column of each place of the search
    QTimer goOn_;
};

} // namespace vlk
