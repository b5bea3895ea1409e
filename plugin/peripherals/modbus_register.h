#pragma once

// The two ways to name a Modbus register: by type and address, or by one number that holds both, the first
// address of a type standing at 1, 10001, 30001 or 40001.

#include <array>
#include <cstddef>
#include <optional>

namespace vlk {

struct RegisterKind
{
    const char* text; // with the function that reads it
    int base;         // of its numbers
};

inline constexpr std::array<RegisterKind, 4> kRegisterKinds = {{
    {"DO (0x01)", 0},
    {"DI (0x02)", 10000},
    {"AO (0x03)", 40000},
    {"AI (0x04)", 30000},
}};

// How many numbers a type has.
inline constexpr int kRegistersOfKind = 9999;

struct ModbusRegister
{
    int address;
    int kind; // place in kRegisterKinds
};

constexpr int registerNumber(const ModbusRegister& place)
{
    return place.address + 1 + kRegisterKinds.at(static_cast<std::size_t>(place.kind)).base;
}

// Nothing for a number that no register has.
constexpr std::optional<ModbusRegister> registerOf(int number)
{
    for (int kind = 0; kind < static_cast<int>(kRegisterKinds.size()); ++kind) {
        const int address = number - 1 - kRegisterKinds[static_cast<std::size_t>(kind)].base;
        if (address >= 0 && address < kRegistersOfKind)
            return ModbusRegister{address, kind};
    }
    return std::nullopt;
}

// Numbers between the types, in which a typing error shows.
constexpr bool isBetweenKinds(int number)
{
    return number >= 20000 && number <= 30000;
}

} // namespace vlk
