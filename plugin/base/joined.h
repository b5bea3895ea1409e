#pragma once

// One array of single items and of arrays of them: joined(kFirst, kList, kLast).

#include <algorithm>
#include <array>

namespace vlk {

template <class Item, std::size_t n>
constexpr std::array<Item, n> listOf(const std::array<Item, n>& items)
{
    return items;
}

template <class Item>
constexpr std::array<Item, 1> listOf(const Item& item)
{
    return {item};
}

template <class Item, std::size_t... sizes>
constexpr auto joinedLists(const std::array<Item, sizes>&... lists)
{
    std::array<Item, (sizes + ... + 0)> all{};
    auto place = all.begin();
    ((place = std::copy(lists.begin(), lists.end(), place)), ...);
    return all;
}

constexpr auto joined(const auto&... items)
{
    return joinedLists(listOf(items)...);
}

} // namespace vlk
