#pragma once

// A framed group of values of a record, built from a table:
//
//     constexpr ValueSeries kInputs[] = {{"label_In_Value_%1", "tmift2_008", item("StateIn1.0"), 24}};
//     group.addList(kInputs);
//     group.retranslate(); group.fill(page);
//
// A series is one value or several numbered ones. In a list each value has its caption in front; in a table
// each series is a column under its caption, one row a number. All labels are made at once, and none of them
// moves when values come and go.

#include "telemetry/text/item.h"

#include <QGroupBox>

#include <array>
#include <span>
#include <vector>

class QGridLayout;
class QLabel;
class TmiPage_Zeta3;
namespace vlk {
class DashedValue;
class ValueLabel;
} // namespace vlk

namespace vlk {

struct ValueSeries
{
    const char* value;   // object name, "%1" for the number of each of several
    const char* caption; // key; the number stands for its "<val>" or follows it
    ItemIndex item;      // of the first; the others follow it
    int count = 1;
    int part = 0;                // what setPartVisible() switches
    const char* title = nullptr; // object name of a label for a name that the user gave
};

struct ValueCell
{
    const char* value; // object name
    ItemIndex item;
};

// One row of a table whose columns are the same thing of several.
template <std::size_t columns>
struct ValueTableRow
{
    const char* caption; // key
    std::array<ValueCell, columns> cells;
};

class RecordGroup : public QGroupBox
{
    Q_OBJECT

public:
    RecordGroup(const char* objectName, const char* titleKey, QWidget* parent = nullptr);

    // Rows below each other; behind `rowsBelow` of them the next ones stand beside.
    void addList(std::span<const ValueSeries> list, int rowsBelow = kAllRows);
    // A value that is no label, with a caption of its own.
    DashedValue* addRow(const char* captionKey, QWidget* value);
    // Controls below the values, across the group if that has names.
    void addCommand(QWidget* widget);
    // A value that takes the room of all columns of a table.
    void addWideRow(const ValueSeries& value);
    // Series as columns; the first one is the longest.
    void addColumns(std::span<const ValueSeries> columns, int rowsBelow = kAllRows);
    template <std::size_t columns>
    void addTable(const std::array<const char*, columns>& captions,
                  std::span<const ValueTableRow<columns>> rows)
    {
        addCaptions(captions, startBelow(), 1);
        for (const ValueTableRow<columns>& row : rows)
            addCells(row.caption, row.cells);
    }

    // The names of the rows that have a label for one, in their order.
    void setTitles(std::span<const QString> titles);
    // A group without a visible row is hidden.
    void setPartVisible(int part, bool visible);
    // The first rows only.
    void setRowsVisible(int count);

    // Widths of captions and values in a plain list, else 0. Lists below each other share the widest.
    struct Widths
    {
        int captions = 0;
        int values = 0;
    };
    Widths listWidths() const;
    void setListWidths(const Widths& widths);

    void fill(const TmiPage_Zeta3& page);
    // Whether a value is on show that is no dash.
    bool hasValues() const;
    void retranslate();

private:
    static constexpr int kAllRows = 1000;

    struct Caption
    {
        QLabel* label;
        const char* key;
        int number; // 0 for none
    };
    struct Value
    {
        ValueLabel* label;
        ItemIndex item;
    };
    struct Row
    {
        int part;
        std::vector<QWidget*> widgets;
    };

    int startBelow() const;
    void addCaptions(std::span<const char* const> keys, int row, int column);
    void addCells(const char* caption, std::span<const ValueCell> cells);
    QLabel* addCaption(const char* key, int number, const QString& objectName = {});
    ValueLabel* addValue(const QString& objectName, ItemIndex item);
    void addListRow(const ValueSeries& series, int index, int row, int column);
    Row& addPair(const ValueSeries& series, int number);
    void placeInTable(ValueLabel* value, int row, int column);
    void showRow(const Row& row, bool visible);

    const char* titleKey_;
    bool isPlainList_ = false;
    QGridLayout* grid_;
    std::vector<Caption> captions_;
    std::vector<Value> values_;
    std::vector<ValueLabel*> titles_;
    std::vector<Row> rows_;
};

} // namespace vlk
