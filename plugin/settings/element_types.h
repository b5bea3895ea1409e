#pragma once

// How a user parameter is stored: fourteen element types, each with a code of two characters, its width in
// bytes and a kind: b bits, u unsigned, s signed, f real ("2u").

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace vlk {

struct ElementType
{
    const char* code;
    int bytes;
    const char* unit; // translation keys
    const char* kind;
};

// In the order in which lists offer them.
inline constexpr std::array<ElementType, 14> kElementTypes = {{
    {"1b", 1, "wrd_016", "wrd_019"},
    {"1u", 1, "wrd_016", "wrd_020"},
    {"1s", 1, "wrd_016", "wrd_021"},
    {"2b", 2, "wrd_017", "wrd_019"},
    {"2u", 2, "wrd_017", "wrd_020"},
    {"2s", 2, "wrd_017", "wrd_021"},
    {"4b", 4, "wrd_017", "wrd_019"},
    {"4u", 4, "wrd_017", "wrd_020"},
    {"4s", 4, "wrd_017", "wrd_021"},
    {"4f", 4, "wrd_017", "wrd_022"},
    {"8b", 8, "wrd_016", "wrd_019"},
    {"8u", 8, "wrd_016", "wrd_020"},
    {"8s", 8, "wrd_016", "wrd_021"},
    {"8f", 8, "wrd_016", "wrd_022"},
}};

// The type with this code, null for an unknown one.
inline const ElementType* elementType(const QString& code)
{
    const auto* found = std::ranges::find_if(
        kElementTypes, [&](const ElementType& type) { return code == QLatin1String(type.code); });
    return found == kElementTypes.end() ? nullptr : found;
}

// "2 bytes, unsigned" in the language of the moment.
inline QString textOf(const ElementType& type)
{
    return QStringLiteral("%1 %2, %3")
        .arg(QString::number(type.bytes), QCoreApplication::translate("vlk", type.unit),
             QCoreApplication::translate("vlk", type.kind));
}

} // namespace vlk
