#include "catalogue/field_catalogue.h"

#include <functional>

namespace vlk {

namespace {

// Open addressing, a power of two and well above twice the names, so that chains stay short.
constexpr std::size_t kSlots = 1024;
static_assert(2 * std::size(catalogue::kElementRows) < kSlots);

std::size_t slotOf(std::string_view name)
{
    return std::hash<std::string_view>{}(name) % kSlots;
}

// A slot holds the position plus one, an empty one holds zero.
std::array<std::uint16_t, kSlots> slotsByName()
{
    std::array<std::uint16_t, kSlots> slots{};
    for (int i = 0; i < kElementCount; ++i) {
        std::size_t slot = slotOf(kElements[i].name);
        while (slots[slot] != 0)
            slot = (slot + 1) % kSlots;
        slots[slot] = static_cast<std::uint16_t>(i + 1);
    }
    return slots;
}

} // namespace

std::optional<ElementIndex> findElement(std::string_view name)
{
    static const std::array<std::uint16_t, kSlots> slots = slotsByName();
    for (std::size_t slot = slotOf(name); slots[slot] != 0; slot = (slot + 1) % kSlots) {
        const auto index = static_cast<ElementIndex>(slots[slot] - 1);
        if (kElements[index].name == name)
            return index;
    }
    return std::nullopt;
}

} // namespace vlk
