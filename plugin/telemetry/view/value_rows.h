#pragma once

// Captions and values in a grid, one row of a table each: the body of every panel that shows a record.
//
//     constexpr ValueRow kRows[] = {{"label_Navi_Alt_Value", "tmift1_033", item("Altitude")}, ...};
//     ValueRows rows;
//     rows.add(grid, kRows);
//     rows.retranslate(); rows.fill(page);
//
// The caption's object name is that of the value with "_Text" for "_Value". A unit stands behind its value;
// its text is a key of its own, or the part of the caption's text behind the marker "<val>". Columns keep
// their places while values come and go; a dash stands for a value that the record lacks.

#include "telemetry/text/item.h"

#include <initializer_list>
#include <span>
#include <vector>

class QGridLayout;
class QHBoxLayout;
class QLabel;
namespace vlk {
class ValueLabel;
} // namespace vlk
class TmiPage_Zeta3;

namespace vlk {

struct ValueRow
{
    const char* value; // object name
    const char* key;   // of the caption
    ItemIndex item;
    const char* unit = nullptr;    // object name of a label behind the value
    const char* unitKey = nullptr; // of its text, if that is not a part of the caption's
};

class ValueRows
{
public:
    // Appends the rows below what `column` of the grid holds, the values right of it.
    void add(QGridLayout* grid, std::span<const ValueRow> rows, int column = 0);
    void retranslate();
    void fill(const TmiPage_Zeta3& page);

private:
    struct Shown
    {
        ValueRow row;
        QLabel* caption;
        ValueLabel* value;
        QLabel* unit;
    };
    std::vector<Shown> shown_;
};

// A label for a value or a caption, named and plain. A value never asks for room, so that a long one does not
// move its neighbours.
QLabel* makeCaption(const QString& name);
ValueLabel* makeValue(const QString& name);

// The width of the longest event time in the label's font.
int widthOfTime(const QLabel* label);

// Captions and values in one line, each as wide as its text and this far apart.
QHBoxLayout* besideEachOther(std::initializer_list<QLabel*> labels);

// The parts of a text around its "<val>" markers.
QStringList partsAroundValues(const QString& text);

} // namespace vlk
