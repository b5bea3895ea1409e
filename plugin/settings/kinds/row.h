#pragma once

// What the rows of all kinds have in common. Each kind of setting is a type in a file pair of its own beside
// this one: what only it has, the modifiers that describe it, and the functions that check it and read it.
// setting.h lists the kinds.

#include "base/code_list.h"
#include "base/name.h"
#include "base/numbered_name.h"

#include <QStringList>

namespace vlk {

// A key whose row is found when its table is made (table_maker.h).
struct Path : Name
{
    using Name::Name;
    std::int16_t row = -1;
};

// One whose row is of one of the kinds.
template <class... Kinds>
struct PathOf : Path
{
    using Path::Path;
};

// Holds while the value at the path is one of `codes` ("NS+|NB+"), or not 0 and not empty where `codes` is
// empty. Of whenSame(): while it is that of the same key in the element `codes`. Without a path it always
// holds.
struct When : Path
{
    bool negated = false;
    bool same = false;
    std::int16_t other = -1; // row of the same key
    const char* codes = "";
};

constexpr When when(Path path, const char* codes = "")
{
    return {path, false, false, -1, codes};
}

constexpr When unless(Path path, const char* codes = "")
{
    return {path, true, false, -1, codes};
}

constexpr When whenSame(Path path, const char* element)
{
    return {path, false, true, -1, element};
}

// What becomes of a value that the file has no key for, or of one that lives in the window alone: its load
// default, or it stays.
enum class Missing : std::uint8_t { LoadDefault, KeepsValue };
// What a reset gives: the load default, a value of its own, or it leaves the value as it stands.
enum class OnReset : std::uint8_t { LoadDefault, Own, KeepsValue };
// What a save starts from: the value, or what the document holds under the key, if it does.
enum class OnSave : std::uint8_t { Value, Document };

// Under which title of its window a row stands, and under which one that title does. Of the format %1 is the
// title, %2 the number of a repeated row and %3 that of a repetition inside it.
struct Heading
{
    const char* title = ""; // text or translation key
    const char* format = "%1";
    const Heading* above = nullptr;
};
inline constexpr Heading kNoHeading{};

struct RowBase
{
    const char* key = "";       // of a group its path below the section
    const char* name = nullptr; // in paths, where the key or element stands twice; null: the key
    const Heading* heading = nullptr;
    When present{}; // where it does not hold, the key is neither read nor written
    Numbers numbers{};
    bool stored = true;  // false: lives in the window alone, the file has no such key
    bool last = false;   // read after all others; in a repetition after those of its number
    bool secret = false; // whoever shows, copies or exports values leaves this one out
    Missing missing = Missing::LoadDefault;
    OnReset onReset = OnReset::LoadDefault;
    OnSave onSave = OnSave::Value;
    std::uint8_t column = 0; // the widget is a tree; the cell of this column in the row of the number

    constexpr const char* pathName() const { return name ? name : key; }
};

// A row whose value a widget can show.
struct Shown : RowBase
{
    const char* captionKey = nullptr;
    const char* captionFormat = "%1"; // %1 for the caption
    Name widget{};
};

// Modifiers describe a row; each gives the changed row back.
template <class Kind, class Base>
struct RowOf : Base
{
    template <class Owner, class Field, class Value>
    constexpr Kind with(Field Owner::*field, Value value) const
    {
        Kind changed = static_cast<const Kind&>(*this);
        changed.*field = value;
        return changed;
    }

    constexpr Kind named(const char* pathName) const { return with(&Kind::name, pathName); }
    constexpr Kind onlyWhen(When condition) const { return with(&Kind::present, condition); }
};

template <class Kind>
struct ShownOf : RowOf<Kind, Shown>
{
    constexpr Kind in(Name widget) const { return this->with(&Kind::widget, widget); }
    // In the line of a tree that the row's number tells.
    constexpr Kind inCell(const char* tree, std::uint8_t number) const
    {
        return in(tree).with(&Kind::column, number);
    }
    // The format holds %1 for the text, as in "%1 2".
    constexpr Kind caption(const char* text, const char* format = "%1") const
    {
        return this->with(&Kind::captionKey, text).with(&Kind::captionFormat, format);
    }
    constexpr Kind notStored() const { return this->with(&Kind::stored, false); }
    constexpr Kind readLast() const { return this->with(&Kind::last, true); }
    constexpr Kind ifMissing(Missing policy) const { return this->with(&Kind::missing, policy); }
    constexpr Kind atReset(OnReset policy) const { return this->with(&Kind::onReset, policy); }
    constexpr Kind resetTo(auto value) const
    {
        return this->with(&Kind::reset, value).with(&Kind::onReset, OnReset::Own);
    }
};

template <class Kind>
constexpr Kind keyed(const char* key, auto loadDefault)
{
    return Kind{}.with(&Kind::key, key).with(&Kind::load, loadDefault);
}

// What a value can be at present: a range in units of the widget; of a choice and of a string of digits the
// codes of the list, "NU|NS+", null for those that are `offered`; codes that others of a shared list hold.
struct Limits
{
    double least = 0;
    double most = 0;
    const char* offers = nullptr;
    QStringList taken{};

    bool operator==(const Limits&) const = default;
};

// Where a text comes from. A file is read as far as it is a number, "12abc" as 12, and its periods wrap
// around where the row says so. An edit or a reset means what it says: a text that is no whole number is 0.
enum class Source { File, Edit };

// What `normalised` of each kind makes a text of the file of, as a window would: limited to the range,
// rounded, cut, or replaced where the text is none of the known codes.
struct Reading
{
    const QString& text;
    const QString& before; // what stays where the text leaves the value alone
    const Limits& limits;
    Source source = Source::File;
};

// The texts of two kinds of defaults.
inline QString fileText(const RowBase&, const char* text)
{
    return QString::fromUtf8(text);
}
inline QString fileText(const RowBase&, int number)
{
    return QString::number(number);
}

} // namespace vlk
