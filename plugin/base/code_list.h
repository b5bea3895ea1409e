#pragma once

#include <QLatin1String>

#include <algorithm>
#include <string_view>

namespace vlk {

// Hands each of the names between the signs to `take`; none of an empty list.
constexpr void eachName(std::string_view names, char sign, auto take)
{
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(sign), names.size());
        take(names.substr(0, end));
        names.remove_prefix(std::min(end + 1, names.size()));
    }
}

// Whether "NU|NS+" has the code.
template <class Text>
bool isListed(std::string_view codes, const Text& code)
{
    for (;;) {
        const std::size_t end = std::min(codes.find('|'), codes.size());
        const auto size = static_cast<int>(end);
        if (size == code.size() && QLatin1String(codes.data(), size) == code)
            return true;
        if (end == codes.size())
            return false;
        codes.remove_prefix(end + 1);
    }
}

} // namespace vlk
