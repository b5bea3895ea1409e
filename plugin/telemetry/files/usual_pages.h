#pragma once

// The pages of an XML file that are spelled as they are written: the page line of the page before, then one
// line for each element that its mask asks for, in order. They are nearly all that there are, and reading
// them takes a fraction of what looking each line up does. What is spelled otherwise is left to who looks at
// every line.

#include "telemetry/record/record_store.h"

#include <string>
#include <string_view>

namespace vlk {

class UsualPages
{
public:
    // Adds the page that begins at the front of `text` and gives how many bytes it takes; 0, and nothing is
    // added, if it is spelled otherwise or is not whole.
    std::size_t take(std::string_view text, RecordStore& records);

    // The line with which a record began that was read in another way: the next ones may be like it.
    void remember(std::string_view pageLine, std::uint8_t ver, const FieldMask& mask);
    // Whether it is the one that was remembered.
    bool knows(std::string_view pageLine) const { return pageLine == pageLine_; }
    bool knowAny() const { return !pageLine_.empty(); }

private:
    struct Line
    {
        std::string opening;
        std::string closing;
        ElementIndex element;
    };

    void prepare();

    std::string pageLine_;
    RecordLayout layout_;
    // Made when a page line comes for the second time.
    std::vector<Line> lines_;
    std::vector<std::uint8_t> payload_;
};

} // namespace vlk
