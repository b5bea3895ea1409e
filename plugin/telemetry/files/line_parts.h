#pragma once

// What the reader of the XML form looks for in a line. All of it is case-sensitive.

#include <cstring>
#include <string_view>

namespace vlk {

// Calls visit with the rest of the line behind each "<" until it gives true; whether it did.
template <class Visit>
bool anyTag(std::string_view line, Visit visit)
{
    while (const void* found = std::memchr(line.data(), '<', line.size())) {
        line.remove_prefix(static_cast<std::size_t>(static_cast<const char*>(found) - line.data()) + 1);
        if (visit(line))
            return true;
        if (line.empty())
            return false;
    }
    return false;
}

inline bool startsPage(std::string_view line)
{
    return anyTag(line, [](std::string_view rest) { return rest.starts_with("Page"); });
}

// The next page ends one too.
inline bool endsPage(std::string_view line)
{
    return anyTag(
        line, [](std::string_view rest) { return rest.starts_with("Page") || rest.starts_with("/Page>"); });
}

// What stands between the next two double quotes behind the name; empty where they are missing.
inline std::string_view attribute(std::string_view line, std::string_view name)
{
    const std::size_t found = line.find(name);
    if (found == line.npos)
        return {};
    line.remove_prefix(found + name.size());
    const std::size_t first = line.find('"');
    const std::size_t last = first == line.npos ? line.npos : line.find('"', first + 1);
    return last == line.npos ? std::string_view() : line.substr(first + 1, last - first - 1);
}

struct ElementLine
{
    std::string_view tag;
    std::string_view value;
};

// The text between the first "<" and the first ">", and from there to the next "<". The closing tag is not
// looked at; a line without one was cut in the middle of its value and gives nothing.
inline ElementLine elementLine(std::string_view line)
{
    const std::size_t opening = line.find('<');
    const std::size_t closing = line.find('>');
    if (opening >= closing || closing == line.npos)
        return {};
    const std::size_t next = line.find('<', closing);
    if (next == line.npos)
        return {};
    return {line.substr(opening + 1, closing - opening - 1), line.substr(closing + 1, next - closing - 1)};
}

} // namespace vlk
