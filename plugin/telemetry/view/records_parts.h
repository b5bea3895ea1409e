#pragma once

// What stands beside the table in the window of records.

#include <QWidget>

#include <functional>
#include <vector>

namespace vlk {

class NoticeBar;
class ShownRecords;

inline constexpr const char* kRecordsHelp = "r-7106records.html";

struct RecordsPart
{
    QWidget* widget;
    const char* title; // of its tab, a key; null for what stands above the table
    std::function<void()> retranslate;
    // What the records are called, by the name of their file.
    std::function<void(const QString& name)> setName;
    // What Esc takes back in it; false, or null, where there is nothing.
    std::function<bool()> stepBack = {};
    const char* helpPage = kRecordsHelp;
};

// In the order in which they stand. `bar`: of the window.
std::vector<RecordsPart> makeRecordsParts(ShownRecords* shown, NoticeBar* bar, QWidget* parent);

} // namespace vlk
