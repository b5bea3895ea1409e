#pragma once

// Captions and values in a grid, one row of a table each: the body of every panel that shows a record.
//
//     constexpr ValueRow kRows[] = {{"label_Navi_Alt_Value", "tmift1_033", item("Altitude")}, ...};
//     ValueRows rows;
//     rows.add(grid, kRows);
//     rows.retranslate(); rows.fill(page);
//
// The caption's object name is that of the value with "_Text" for "_Value". Columns keep their places while
// values come and go; a value that the record lacks is empty.

#include "telemetry/text/item.h"

#include <span>
#include <vector>

class QGridLayout;
class QLabel;
class TmiPage_Zeta3;

namespace vlk {

struct ValueRow
{
    const char* value; // object name
    const char* key;   // of the caption
    ItemIndex item;
};

class ValueRows
{
public:
    // Appends the rows below what the grid holds, captions in `column`, values right of them.
    void add(QGridLayout* grid, std::span<const ValueRow> rows, int column = 0);
    void retranslate();
    void fill(const TmiPage_Zeta3& page);

private:
    struct Shown
    {
        const ValueRow* row;
        QLabel* caption;
        QLabel* value;
    };
    std::vector<Shown> shown_;
};

// A label for a value or a caption, named and plain. A value never asks for room, so that a long one does not
// move its neighbours.
QLabel* makeCaption(const QString& name);
QLabel* makeValue(const QString& name);

// The parts of a text around its "<val>" markers.
QStringList partsAroundValues(const QString& text);

} // namespace vlk
