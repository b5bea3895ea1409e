#pragma once

// One of several codes, in a list or over boxes.

#include "settings/kinds/row.h"

#include <algorithm>
#include <span>

namespace vlk {

struct Code
{
    const char* code;       // what the file holds
    const char* label = ""; // text or translation key
    const char* format = "%1";
    const char* second = nullptr; // translation key for %2 of the format
    Name widget{};                // of a choice over several boxes: the one of this value
    // How the file may spell it: '1' a digit other than 0, '0' anything else, '*' whatever.
    const char* pattern = nullptr;
    const char* means = nullptr; // an older spelling of that code
    bool offered = true;         // false: known in files, but not in the list
};

// What a code of the file that the list lacks becomes: the code for no item, or the fallback where there is
// none; or the value stays.
enum class Unoffered : std::uint8_t { NoItem, KeepsValue };

struct Choice : ShownOf<Choice>
{
    const char* load = "";
    const char* reset = nullptr;
    std::span<const Code> codes{};
    const char* offers = nullptr;   // codes of the list, "NU|NS+"; null: those with `offered`
    const char* fallback = nullptr; // what an unknown code stands for, or `none`; null: the value stays
    const char* none = nullptr;     // stands for no item
    Unoffered unoffered = Unoffered::NoItem;
    bool numeric = false; // codes are compared as numbers

    constexpr Choice offering(const char* list) const { return with(&Choice::offers, list); }
    constexpr Choice unknownIs(const char* code) const { return with(&Choice::fallback, code); }
    constexpr Choice noItemIs(const char* code) const { return with(&Choice::none, code); }
    constexpr Choice ifUnoffered(Unoffered policy) const { return with(&Choice::unoffered, policy); }
    constexpr Choice byNumber() const { return with(&Choice::numeric, true); }
};

constexpr Choice choice(const char* key, std::span<const Code> codes, const char* loadDefault)
{
    return keyed<Choice>(key, loadDefault).with(&Choice::codes, codes);
}

constexpr bool isKnown(const Choice& row, std::string_view code)
{
    for (const Code& known : row.codes) {
        if (*known.code == *code.data() && code == known.code)
            return true;
    }
    return row.none && code == row.none;
}

constexpr void check(const Choice& row)
{
    for (const char* code : {row.load, row.reset, row.fallback}) {
        if (code && !isKnown(row, code))
            throw "a default is none of the choices";
    }
}

constexpr void eachBox(const Choice& row, auto take)
{
    for (const Code& code : row.codes)
        take(code.widget);
}

// The code that a text of a file means; null for an unknown one.
const Code* codeOf(const Choice& row, const QString& text);
// Whether a list has the code.
bool offersCode(const Code& code, const Limits& limits);
bool isNoItem(const Choice& row, const QString& value);
// The first code of the list, or the one that comes next behind another, else the last one; what stands for
// no item where the list is empty.
QString offeredCode(const Choice& row, const Limits& limits, const QString* behind = nullptr);

QString normalised(const Choice& row, const Reading& reading);

} // namespace vlk
