#pragma once

// What stands beside the table in the window of records.

#include <QWidget>

#include <functional>
#include <vector>

namespace vlk {

class ShownRecords;

struct RecordsPart
{
    QWidget* widget;
    const char* title; // of its tab, a key; null for what stands above the table
    std::function<void()> retranslate;
};

template <class View>
RecordsPart recordsPart(const char* title, ShownRecords* shown, QWidget* parent)
{
    auto* view = new View(shown, parent);
    return {view, title, [view] { view->retranslate(); }};
}

// In the order in which they stand.
std::vector<RecordsPart> makeRecordsParts(ShownRecords* shown, QWidget* parent);

} // namespace vlk
