#pragma once

// Whether lines of the XML form are well-formed. What the form does not know may be so; only what cannot have
// been written as a line is damage.

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vlk {

// Within a page: nothing, an element with its value, or a tag of something unknown.
bool isSoundInPage(std::string_view line);
// Whether an element ends with its own name, if it has an end.
bool closesItself(std::string_view line);
// A packet's entry, whose text may hold anything.
bool isSoundEntry(std::string_view line);
// Outside: nothing or a tag, whatever text its attributes hold; what belongs into a page does not stand
// there.
bool isSoundBetweenPages(std::string_view line);
// The first line of a page, which may stand behind something else.
bool isSoundPageLine(std::string_view line);

// How much of the line what stands first on it takes: all of it, unless another element, or the end of the
// page, follows on the same line.
std::size_t sizeOfFirst(std::string_view line);

// Puts lines together that were read in pieces.
class JoinedLines
{
public:
    // The line that ends with this piece; valid until the next call.
    std::optional<std::string_view> add(std::string_view piece);
    // The line without an end that is left over; empties it.
    std::string takeRest() { return std::exchange(rest_, {}); }

private:
    std::string rest_;
    std::string line_;
};

} // namespace vlk
