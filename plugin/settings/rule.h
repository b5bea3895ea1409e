#pragma once

// What settings do to each other, as data. Paths are those below the section ("POINTS/angle"); the names of
// repeated rules may hold %1 as those of settings do.

#include "settings/setting.h"

#include <array>
#include <cstdint>
#include <span>

namespace vlk {

// An edit that makes `when` hold sets another setting. `onRead`: a read does so too, as soon as it has read
// the path of `when`. All of it only while `also` holds; `onset`: an edit only where `when` did not hold
// before it.
struct Pull
{
    When when;
    const char* set = "";
    const char* to = "";
    bool onRead = false;
    When also{};
    bool onset = false;
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// A value that the file cannot hold while `when` does: it is `to` at any time.
struct Bound
{
    When when;
    const char* path = "";
    const char* to = ""; // '*' in a string of digits leaves its position alone
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// Two values of which the second is at least `gap` (in units of the widget), plus the value at `gapFrom`,
// above the first. The one that is set last pushes the other one away, as far as the ranges go. A read takes
// the value at `gapFrom` for 0 until it comes to it, whatever it was before: a pair that keeps the distance
// of its own file stays as it is.
struct Distance
{
    const char* first = "";
    const char* second = "";
    double gap = 0;
    const char* gapFrom = nullptr;
    const char* slider = nullptr; // widget with two handles that shows both
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// Another range and unit, or a shorter list of codes, while `when` holds; the last rule that holds counts.
// What the list lacks becomes the row's code for no item, else its fallback; a digit becomes 0. `startsOver`:
// another value at the path of `when` brings the first code of the list, whatever was chosen.
struct RangeWhen
{
    When when;
    const char* path = "";
    double least = 0;
    double most = 0;
    const char* unit = nullptr;
    const char* offers = nullptr; // "0|1"
    bool startsOver = false;
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// A choice out of a list that several settings share: while `when` and `also` hold, none of the others can
// have its code. One that holds nothing yields to the next code that is free, and one whose list was empty
// gets the first code that is given back: who takes a code for another one gives that back afterwards.
// Settings of the same `holder` are nothing to each other, and so are those of one list whose values at
// `split` differ.
struct Sole
{
    const char* path = "";
    When when{};
    When also{};
    const char* list = "";
    const char* holder = "";
    const char* split = nullptr;
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// Ready values of several settings. An edit of `trigger` to the code of a row sets its fields, even where
// `trigger` has that code already; a null value leaves its field alone. After a read, `trigger` becomes the
// first row that agrees in all fields, or `other`; without `other` a read leaves it alone.
//
// With `settles` the fields have no other values than those of the rows: after a read, `trigger` becomes the
// first row that agrees and that its list offers, and stays as it stands where there is none; the fields
// become what its row says.
struct PresetRow
{
    const char* code;
    std::array<const char*, 8> values{};
};

struct Presets
{
    const char* trigger = "";
    std::array<const char*, 8> fields{};
    std::span<const PresetRow> rows{};
    const char* other = nullptr;
    bool settles = false;
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// A flag that lives in the window alone and is found at a read: on while any of the conditions holds.
struct Derived
{
    const char* path = "";
    std::array<When, 2> any{};
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// Positions of a string of 0 and 1, counted from 0, that a save sets to `to` while all conditions hold,
// whatever the value has there. What comes later in the list counts more; what lies beyond the end of the
// string is passed over.
struct MaskPositions
{
    const char* path = "";
    std::span<const int> positions{};
    char to = '1';
    std::array<When, 3> when{};
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// A value that is taken as it stands, and marked in its widget while all conditions hold: `complaint` is the
// translation key of what is wrong with it.
struct Doubt
{
    const char* path = "";
    std::array<When, 4> when{};
    const char* complaint = "";
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

// Widgets that are enabled, or on show, while the conditions hold: all of them, or `any`.
struct Enable
{
    enum class Effect : std::uint8_t { enabled, shown };

    const char* targets = ""; // object names with blanks between them
    std::array<When, 4> when{};
    bool any = false;
    Effect effect = Effect::enabled;
    std::uint8_t number = 0;
    std::uint8_t inner = 0;
};

constexpr Enable enable(const char* targets, When first, When second = {}, When third = {}, When fourth = {})
{
    return {.targets = targets, .when = {first, second, third, fourth}};
}

constexpr Enable enableAny(const char* targets, When first, When second = {}, When third = {},
                           When fourth = {})
{
    return {.targets = targets, .when = {first, second, third, fourth}, .any = true};
}

constexpr Enable show(const char* targets, When first, When second = {})
{
    return {.targets = targets, .when = {first, second}, .effect = Enable::Effect::shown};
}

} // namespace vlk
