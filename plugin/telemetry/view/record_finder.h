#pragma once

// Looks through the records on show for words, from the current row on or back, and round the end. Where it
// takes a while it goes on from the event loop.

#include <QObject>
#include <QTimer>

#include <unordered_map>

namespace vlk {

class RecordsModel;
class RecordsTable;

class RecordFinder : public QObject
{
    Q_OBJECT

public:
    RecordFinder(RecordsModel* model, RecordsTable* table);

    // In the columns on show, whatever the case.
    void find(const QString& words, int step);
    void stop() { goOn_.stop(); }

Q_SIGNALS:
    // `round`: the step that led round the end, 0 for none.
    void found(int round);
    void nothingFound();
    void searching(double share);

private:
    void lookOn();
    // -1: nowhere in the row.
    int columnIn(int row);
    bool matches(int record, int column);

    RecordsModel* model_;
    RecordsTable* table_;
    QTimer goOn_;
    QString words_;
    std::vector<int> columns_;
    // By column: values that were looked at, and whether their texts hold the words.
    std::vector<std::unordered_map<quint64, bool>> known_;
    int step_ = 1;
    int start_ = 0;
    int looked_ = 0; // rows
};

} // namespace vlk
