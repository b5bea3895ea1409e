#pragma once

// What settings do to each other, as data. Paths are those below the section ("POINTS/angle"). One that no
// row has does not compile, nor does a widget that none has (settings_table.h).
//
// What acts when one value changes, in this order (values_rules.cpp): distances, lists that start over,
// shared lists; on an edit then other ranges, `Sets` of the path, presets, each with all that follows from
// it; at the end of an edit, a read or a reset what holds always. A read ends with what is set after it and
// with the presets that agree.

#include "settings/kinds/digits.h"
#include "settings/kinds/number.h"

namespace vlk {

// When a rule sets another setting.
enum class Moment : std::uint8_t {
    Edit,       // an edit that makes `when` hold
    EditOrRead, // and a read, as soon as it has read the path of `when`
    AfterRead,  // a read that is through
    Always,     // all of these and a reset: the file cannot hold another value
    Save        // a save writes it, the value stays; of several rules each is laid over those before it
};

struct Sets
{
    Moment moment;
    When when;
    Path path;
    const char* to;             // laid over the value (base/masked_text.h): '*' leaves its position alone
    std::array<When, 2> also{}; // hold too
    bool isOnset = false;       // only where `when` did not hold before
    Numbers numbers{};

    constexpr void eachPath(auto visit) { visit(when), visit(path), visit(also); }
    constexpr void eachValue(auto visit) const { visit(path, to); }

    constexpr Sets onlyIf(When first, When second = {}) const
    {
        Sets changed = *this;
        changed.also = {first, second};
        return changed;
    }
    constexpr Sets onset() const
    {
        Sets changed = *this;
        changed.isOnset = true;
        return changed;
    }
};

template <Moment moment>
constexpr Sets setsAt(When when, Path path, const char* to)
{
    return {moment, when, path, to};
}
// NOLINTBEGIN(readability-identifier-naming): functions under names of their own
inline constexpr auto onEdit = setsAt<Moment::Edit>;
inline constexpr auto onEditOrRead = setsAt<Moment::EditOrRead>;
inline constexpr auto afterRead = setsAt<Moment::AfterRead>;
inline constexpr auto always = setsAt<Moment::Always>;
inline constexpr auto onSave = setsAt<Moment::Save>;
// NOLINTEND(readability-identifier-naming)

// Two values of which the second is at least `gap` (in units of the widget), plus the value at `gapFrom`,
// above the first. The one that is set last pushes the other one away, as far as the ranges go. A read takes
// the value at `gapFrom` for 0 until it comes to it, whatever it was before: a pair that keeps the distance
// of its own file stays as it is.
struct Distance
{
    PathOf<Number> first;
    PathOf<Number> second;
    double gap = 0;
    PathOf<Number> gapFrom{};
    Name slider{}; // widget with two handles that shows both
    Numbers numbers{};

    constexpr void eachPath(auto visit) { visit(first), visit(second), visit(gapFrom); }
};

// Another range and unit, or a shorter list of codes, while `when` holds; the last rule that holds counts.
// What the list lacks becomes the row's code for no item, else its fallback; a digit becomes 0. `startsOver`:
// another value at the path of `when` brings the first code of the list, whatever was chosen.
struct RangeWhen
{
    When when;
    PathOf<Number, Choice, Digits> path;
    double least = 0;
    double most = 0;
    const char* unit = nullptr;
    const char* offers = nullptr; // "0|1"; the same in all repetitions
    bool startsOver = false;
    Numbers numbers{};

    constexpr void eachPath(auto visit) { visit(when), visit(path); }
    constexpr void eachValue(auto visit) const { visit(path, numbers.outer > 1 ? "" : offers); }
};

// A choice out of a list that several settings share, each code for one of them: two temperature sensors have
// the numbers 1 and 2, and while the first one holds 2 the list of the second offers 1, 3 and 4.
//
// A setting holds its code while `when` and `also` hold. One that does not yields to it, to the next code
// that is free: a third sensor without a type, which shows 2, shows 3 from then on. One whose list was empty
// gets the first code that is given back: who takes a code for another one gives that back afterwards.
// Settings of the same `holder` are nothing to each other, and so are those of one list whose values at
// `split` differ.
struct ExclusiveChoice
{
    PathOf<Choice> path;
    When when{};
    When also{};
    const char* list = "";
    const char* holder = "";
    Path split{};
    Numbers numbers{};
    std::uint64_t listHash = 0; // of the two names with their numbers in, once its table is made
    std::uint64_t holderHash = 0;

    constexpr void eachPath(auto visit) { visit(path), visit(when), visit(also), visit(split); }
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
    PathOf<Choice> trigger;
    std::array<Path, 8> fields{};
    std::span<const PresetRow> rows{};
    const char* other = nullptr;
    bool settles = false;
    Numbers numbers{};

    constexpr void eachPath(auto visit) { visit(trigger), visit(fields); }
    constexpr void eachValue(auto visit) const
    {
        visit(trigger, other);
        for (const PresetRow& row : rows) {
            visit(trigger, row.code);
            for (std::size_t field = 0; field < fields.size(); ++field)
                visit(fields[field], row.values[field]);
        }
    }
};

// A value that is taken as it stands, and marked in its widget while all conditions hold: `complaint` is the
// translation key of what is wrong with it.
struct Doubt
{
    Path path;
    std::array<When, 4> when{};
    const char* complaint = "";
    Numbers numbers{};

    constexpr void eachPath(auto visit) { visit(path), visit(when); }
};

// Object names with blanks between them: widgets of rows, or other parts of a form.
struct Targets : Name
{
    using Name::Name;
    bool areParts = false; // frames, labels and buttons, which no row has
};

constexpr Targets parts(auto... names)
{
    Targets targets(names...);
    targets.areParts = true;
    return targets;
}

// Widgets that are enabled, or on show with their labels, while the conditions hold: all of them, or `any`.
struct Enable
{
    enum class Effect : std::uint8_t { Enabled, Shown };

    Targets targets;
    std::array<When, 4> when{};
    bool any = false;
    Effect effect = Effect::Enabled;
    Numbers numbers{};

    constexpr void eachPath(auto visit) { visit(when); }

    constexpr Enable showing() const
    {
        Enable changed = *this;
        changed.effect = Effect::Shown;
        return changed;
    }
};

constexpr Enable enable(Targets targets, When first, When second = {}, When third = {}, When fourth = {})
{
    return {.targets = targets, .when = {first, second, third, fourth}};
}

constexpr Enable enableAny(Targets targets, When first, When second = {}, When third = {}, When fourth = {})
{
    return {.targets = targets, .when = {first, second, third, fourth}, .any = true};
}

constexpr Enable show(Targets targets, When first, When second = {})
{
    return enable(targets, first, second).showing();
}

} // namespace vlk
