#pragma once

// A rule of advice as a row: when it speaks, how grave that is, what it says, which settings it names, and
// what would mend it.
//
//     rule("server_port", Severity::Error, "adv_003")
//         .each(3)
//         .when(isOn("TRANS/SRV%1/use"), isNot("TRANS/SRV%1/addr", kNoAddress), is("TRANS/SRV%1/port", "0"))
//         .naming("TRANS/SRV%1/port")
//         .telling(outerNumber())
//
// Paths begin with the section. In a rule over a family %1 is the number of the one, %2 that of the other. A
// path that no setting has does not compile (advice_paths.h).

#include "review/advice.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace vlk::review::advice {

// A position of a mask or of a string of digits, counted from 0, for the last number of the rule.
using Position = int (*)(int number);

template <int position>
constexpr int at(int /*number*/)
{
    return position;
}

struct Condition
{
    enum class Test : std::uint8_t {
        Nothing, // no condition
        On,      // neither empty nor 0
        Off,
        OneOf,
        NoneOf,
        Numbered, // the value is the last number of the rule
        Same,     // as the value at `other`, whatever its case
        Like,     // fits the pattern
        Unlike,
        Below, // as numbers: the value at `other`, or `number`
        NotBelow,
        DigitOn,
        Lacks,       // the record does not hold the field
        RecordAbove, // bytes of the record
        Unread       // the file holds one of the codes where no setting reads it
    };
    // Over numbers that take the place of %2.
    enum class Over : std::uint8_t { One, Every, Some };

    Test test = Test::Nothing;
    const char* path = nullptr;
    const char* other = nullptr;
    const char* text = ""; // codes "NU|NS+", or a pattern
    double number = 0;
    Position position = nullptr;
    Over over = Over::One;
    std::uint8_t count = 0;
};

constexpr Condition is(const char* path, const char* codes)
{
    return {.test = Condition::Test::OneOf, .path = path, .text = codes};
}
constexpr Condition isNot(const char* path, const char* codes)
{
    return {.test = Condition::Test::NoneOf, .path = path, .text = codes};
}
constexpr Condition isOn(const char* path)
{
    return {.test = Condition::Test::On, .path = path};
}
constexpr Condition isOff(const char* path)
{
    return {.test = Condition::Test::Off, .path = path};
}
constexpr Condition isNumbered(const char* path)
{
    return {.test = Condition::Test::Numbered, .path = path};
}
constexpr Condition same(const char* path, const char* other)
{
    return {.test = Condition::Test::Same, .path = path, .other = other};
}
constexpr Condition like(const char* path, const char* pattern)
{
    return {.test = Condition::Test::Like, .path = path, .text = pattern};
}
constexpr Condition unlike(const char* path, const char* pattern)
{
    return {.test = Condition::Test::Unlike, .path = path, .text = pattern};
}
constexpr Condition below(const char* path, const char* other)
{
    return {.test = Condition::Test::Below, .path = path, .other = other};
}
constexpr Condition below(const char* path, double number)
{
    return {.test = Condition::Test::Below, .path = path, .number = number};
}
constexpr Condition notBelow(const char* path, const char* other)
{
    return {.test = Condition::Test::NotBelow, .path = path, .other = other};
}
constexpr Condition notBelow(const char* path, double number)
{
    return {.test = Condition::Test::NotBelow, .path = path, .number = number};
}
constexpr Condition digitOn(const char* path, Position position)
{
    return {.test = Condition::Test::DigitOn, .path = path, .position = position};
}
constexpr Condition lacks(Position field)
{
    return {.test = Condition::Test::Lacks, .position = field};
}
constexpr Condition recordAbove(int bytes)
{
    return {.test = Condition::Test::RecordAbove, .number = static_cast<double>(bytes)};
}
constexpr Condition isUnread(const char* path, const char* codes)
{
    return {.test = Condition::Test::Unread, .path = path, .text = codes};
}

// A condition on the numbers from 1 to `count`, which take the place of %2 in its path.
constexpr Condition every(std::uint8_t count, Condition condition)
{
    condition.over = Condition::Over::Every;
    condition.count = count;
    return condition;
}
constexpr Condition some(std::uint8_t count, Condition condition)
{
    condition.over = Condition::Over::Some;
    condition.count = count;
    return condition;
}

// What takes the place of %1 and so on in the text.
struct Argument
{
    enum class Kind : std::uint8_t {
        Nothing,
        OuterNumber,
        InnerNumber,
        Value, // with its unit
        Caption,
        Title,  // that it stands under: "Backup 1"
        Field,  // the box of the data set that the record lacks
        Unread, // as the quick window calls it
        RecordBytes,
        MostBytes
    };

    Kind kind = Kind::Nothing;
    const char* path = nullptr;
    Position position = nullptr;
};

constexpr Argument outerNumber()
{
    return {Argument::Kind::OuterNumber};
}
constexpr Argument innerNumber()
{
    return {Argument::Kind::InnerNumber};
}
constexpr Argument valueOf(const char* path)
{
    return {Argument::Kind::Value, path};
}
constexpr Argument captionOf(const char* path)
{
    return {Argument::Kind::Caption, path};
}
constexpr Argument titleOf(const char* path)
{
    return {Argument::Kind::Title, path};
}
constexpr Argument boxOf(Position field)
{
    return {Argument::Kind::Field, nullptr, field};
}
constexpr Argument unreadAt(const char* path)
{
    return {Argument::Kind::Unread, path};
}
constexpr Argument recordBytes()
{
    return {Argument::Kind::RecordBytes};
}
constexpr Argument mostBytes()
{
    return {Argument::Kind::MostBytes};
}

// A setting to be edited, and the value that it gets.
struct Mending
{
    const char* path = nullptr;
    const char* value = nullptr;
};

struct Rule
{
    const char* id = "";
    Severity severity = Severity::Hint;
    const char* text = "";
    std::uint8_t outer = 0; // numbers of the family; 0: the rule is one
    std::uint8_t inner = 0;
    bool pairs = false;             // the other number is the larger one of the same family
    std::array<Condition, 8> all{}; // hold together
    std::array<Condition, 4> any{}; // of which one holds, if there are any
    std::array<const char*, 4> names{};
    std::array<Argument, 4> arguments{};
    std::array<Mending, 2> mendings{}; // one after the other
    Position tick = nullptr;           // the field that the mend brings into the record
    // A choice that the mend sets to its first code that no other one has, and that the switch leaves free:
    // %2 of it is the code.
    const char* freeChoice = nullptr;
    const char* freeUnless = nullptr;

    constexpr Rule each(std::uint8_t count) const
    {
        Rule changed = *this;
        changed.outer = count;
        return changed;
    }
    constexpr Rule each(std::uint8_t count, std::uint8_t otherCount) const
    {
        Rule changed = each(count);
        changed.inner = otherCount;
        return changed;
    }
    constexpr Rule eachPair(std::uint8_t count) const
    {
        Rule changed = each(count, count);
        changed.pairs = true;
        return changed;
    }
    constexpr Rule when(auto... conditions) const { return with(&Rule::all, conditions...); }
    constexpr Rule whenAny(auto... conditions) const { return with(&Rule::any, conditions...); }
    constexpr Rule naming(auto... paths) const { return with(&Rule::names, paths...); }
    constexpr Rule telling(auto... parts) const { return with(&Rule::arguments, parts...); }
    constexpr Rule mending(const char* path, const char* value) const
    {
        Rule changed = *this;
        (mendings[0].path ? changed.mendings[1] : changed.mendings[0]) = {path, value};
        return changed;
    }
    constexpr Rule ticking(Position field) const
    {
        Rule changed = *this;
        changed.tick = field;
        return changed;
    }
    constexpr Rule freeing(const char* choice, const char* unless) const
    {
        Rule changed = *this;
        changed.freeChoice = choice;
        changed.freeUnless = unless;
        return changed;
    }

private:
    template <class Item, std::size_t n>
    constexpr Rule with(std::array<Item, n> Rule::*list, auto... items) const
    {
        static_assert(sizeof...(items) <= n);
        Rule changed = *this;
        changed.*list = {items...};
        return changed;
    }
};

constexpr Rule rule(const char* id, Severity severity, const char* text)
{
    Rule made;
    made.id = id;
    made.severity = severity;
    made.text = text;
    return made;
}

} // namespace vlk::review::advice
