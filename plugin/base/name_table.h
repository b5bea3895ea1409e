#pragma once

// Names found at compile time: they are compared by their hashes (base/numbered_name.h) and sorted once, so
// that many among many stay within what compilers evaluate.

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace vlk {

struct NamedRow
{
    std::uint64_t name = 0;
    std::int16_t row = -1;
    // A projection in place of these takes clang beyond the steps that it evaluates at compile time.
    constexpr bool operator<(const NamedRow& other) const { return name < other.name; }
    constexpr bool operator==(const NamedRow& other) const { return name == other.name; }
};

using NameTable = std::span<const NamedRow>;

// The names that `each` hands over, counted from 0.
template <std::size_t count>
constexpr std::array<NamedRow, count> nameTable(auto each)
{
    std::array<NamedRow, count> names{};
    std::int16_t place = 0;
    each([&](std::uint64_t name) { names[place] = {name, place}, ++place; });
    std::sort(names.begin(), names.end());
    return names;
}

constexpr bool isEachOnce(NameTable names)
{
    return std::adjacent_find(names.begin(), names.end()) == names.end();
}

// The row of a name; -1 where there is none.
constexpr std::int16_t rowOf(std::uint64_t name, NameTable names)
{
    const auto found = std::lower_bound(names.begin(), names.end(), NamedRow{name});
    return found != names.end() && found->name == name ? found->row : std::int16_t{-1};
}

} // namespace vlk
