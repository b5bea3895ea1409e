#pragma once

// One setting of the tracker as data: where its value stands in the configuration file, what kind of value it
// is, which values it can hold, what it is worth when the file lacks it, what a new configuration holds, and
// which widget shows it. Rows stand in one table a page (settings_table.h); Configuration (configuration.h)
// gives them values.
//
//     constexpr auto kRows = rowsOf(
//         group("POINTS"),
//         flag("useMaxSpeed", 0).in("Always_checkBox_MaxSpeed"),
//         integer("maxSpeed", 100).range(1, 180).unit("abbr_024").in("Always_spinBox_MaxSpeed_Value"));
//
// A value is always the text that the file holds: "100", "2.5", "NB+". Ranges are in units of the widget;
// `factor` says what one of them is in the file. Captions, units and labels are translation keys.
//
// In a repeated row (repeat() in settings_table.h) every name may hold %1, the number of the repetition, and
// %2, the number of a repetition inside it; the text of a caption may hold %1 too. Object names may tell a
// form of the page that is made later, or that has widgets of the same names as another one:
// "TACH/comboBox_Type".

#include <array>
#include <cstdint>
#include <limits>
#include <span>

namespace vlk {

enum class Kind : std::uint8_t {
    group,    // not a value: the element that the rows behind it stand in
    constant, // always the same text, read and ignored, no widget
    link,     // a key whose value is that of another row: several elements keep one value
    flag,     // 0 or 1, or 0 and `on`
    integer,  // a whole number, in the file times `factor`
    real,     // a text with `decimals` digits behind the point
    scaled,   // in the widget a number with `decimals`, in the file a whole number, `factor` times as much
    text,
    choice, // one of `codes`
    period, // seconds over several boxes, `parts`
    digits, // a string with a digit a position, `positions`
    mask,   // a long string of 0 and 1
};

// Holds while the value at `path` is one of `codes` ("NS+|NB+"), or not 0 and not empty where `codes` is
// empty, or the same as that at `other`. Without a path it always holds.
struct When
{
    const char* path = nullptr;
    const char* codes = "";
    bool negated = false;
    const char* other = nullptr;
};

constexpr When when(const char* path, const char* codes = "")
{
    return {path, codes, false};
}

constexpr When unless(const char* path, const char* codes = "")
{
    return {path, codes, true};
}

constexpr When whenSame(const char* path, const char* other)
{
    return {path, "", false, other};
}

// A text of the file, or one that follows the language or the host: `format` with the translation of `key`,
// or with the model as the host calls it, for its %1. Null where the default is a number.
struct DefaultText
{
    const char* format = nullptr;
    const char* key = nullptr;
    bool namesModel = false;
};

// One value of a choice.
struct Code
{
    const char* code;       // what the file holds
    const char* label = ""; // text or translation key
    const char* format = "%1";
    const char* second = nullptr; // translation key for %2 of the format
    const char* widget = nullptr; // of a choice over several boxes: the one of this value
    // How the file may spell it: '1' a digit other than 0, '0' anything else, '*' whatever.
    const char* pattern = nullptr;
    const char* means = nullptr; // an older spelling of that code
    bool offered = true;         // false: known in files, but not in the list
};

// One box of a period, from the largest unit down.
struct PeriodPart
{
    const char* widget;
    int seconds; // of one unit
    int least;
    int most;
    const char* unit;
};

// One position of a string of digits. Without a widget it is always 0.
struct Position
{
    const char* widget = nullptr;
    const char* caption = "";
    int top = 1;               // largest digit
    const char* box = nullptr; // check box beside a list: unchecked is 0, whatever item the list has
};

// One widget of a mask and the positions that it sets: a check box all of them alike, a list each as its item
// says.
struct MaskField
{
    const char* widget = nullptr;
    const char* caption = "";
    const char* format = "%1"; // of the text: the caption for %1, the number for %2
    std::uint8_t number = 0;   // for the %1 in the name of the widget
    std::array<std::uint8_t, 4> positions{};
    std::uint8_t count = 0; // of the positions
    bool always = false;    // checked, whatever the file holds
    bool anyReads = false;  // checked where any position is set; else the first one counts
    // Of a list: what its positions hold for each item. A mask that has none of them there leaves it as it
    // is.
    std::span<const Code> items{};
};

struct Setting
{
    enum class Reset : std::uint8_t { toLoadDefault, toOwn, keeps };

    Kind kind = Kind::text; // small fields stand together, so that a row has no gaps
    bool stored = true;     // false: lives in the window alone, the file has no such key
    Reset resets = Reset::toLoadDefault;
    std::uint8_t decimals = 0;
    bool hexadecimal = false; // in the file two digits or more: "0F"
    bool singleRead = false;  // read in single precision
    std::uint8_t number = 0;
    std::uint8_t inner = 0;

    const char* key = ""; // of a group its path below the section
    // In the path, where the key stands twice in one element, or the element in one section; null: the key.
    const char* name = nullptr;
    const char* target = nullptr; // of a link: path of the row that holds the value

    double loadNumber = 0; // default of a number
    DefaultText loadText{};
    double resetNumber = 0;
    DefaultText resetText{};

    double least = std::numeric_limits<std::int32_t>::min();
    double most = std::numeric_limits<std::int32_t>::max();
    double step = 0; // of the widget; 0: as the form says
    std::int32_t factor = 1;
    std::int32_t on = 1;       // of a flag; other than 1: only this value is on
    bool inverted = false;     // of a flag: the box is checked for 0
    bool zeroIsOff = false;    // 0 for off, or a number of the range
    bool negativeIsOn = false; // and a number below 0 is not off but the least
    bool blankIsZero = false;  // an empty value stays empty on show and is 0 in the file
    std::int32_t wrap = 0;     // of a period: a read drops what is beyond so many seconds
    double switchedOnAt = -1;  // number that switching on brings; -1: the one that was there before
    std::span<const Code> codes{};
    const char* offers = nullptr;   // codes of the list, "NU|NS+"; null: those with `offered`
    const char* fallback = nullptr; // what an unknown code stands for, or `none`; null: the value stays
    const char* none = nullptr; // saved for a code that is not offered, or `fallback`; null: the value stays
    std::span<const PeriodPart> parts{};
    std::span<const Position> positions{};
    std::span<const MaskField> fields{};
    const char* pattern = nullptr;   // what can be typed
    const char* inputMask = nullptr; // form of the text, for line edits with a mask
    // What the text should look like, and the translation key of what is wrong with it otherwise. Another one
    // is taken and saved as it is, and marked in the widget.
    const char* expectedPattern = nullptr;
    const char* unexpectedKey = nullptr;

    int maxLength = 0; // characters; 0: no limit
    int column = 0;    // the widget is a tree; the cell of this column in the row of the number
    const char* unitKey = nullptr;
    const char* captionKey = nullptr;
    const char* captionFormat = "%1";
    const char* widget = nullptr;
    const char* companion = nullptr; // check box or slider beside the widget

    // Else the key is neither read nor written. Of a group both have to hold.
    When present{};
    When presentToo{};
    When readable{}; // with `readOtherwise`
    When readableToo{};
    When free{}; // else `otherwise` is written
    const char* otherwise = "";
    double unlessThere = -1; // default where the file lacks the whole element; -1: the same

    bool unofferedStays = false; // a code that is not offered leaves the value as it stands
    bool numeric = false;        // codes are compared as numbers
    bool readOtherwise = false;  // of a group: read while both `readable` hold, whenever it is written
    bool boundOnRead = false;    // `otherwise` is also what a read gives
    bool last = false;           // read after all others; in a repetition after those of its number
    bool kept = false;           // of a group: an element that is there keeps what else it holds
    bool unlessEmpty = false;    // of a group: not written while none of its keys is
    bool stays = false;          // a file without the key leaves the value as it stands
    bool carried = false;        // a save starts from what the document holds under the key, if it does

    template <class Field, class Value>
    constexpr Setting having(Field Setting::*field, Value value) const
    {
        Setting changed = *this;
        changed.*field = value;
        return changed;
    }

    // What follows describes a row; each gives the row back.
    constexpr Setting in(const char* name) const { return having(&Setting::widget, name); }
    constexpr Setting beside(const char* name) const { return having(&Setting::companion, name); }
    // The format holds %1 for the text, as in "%1 2".
    constexpr Setting caption(const char* text, const char* format = "%1") const
    {
        return having(&Setting::captionKey, text).having(&Setting::captionFormat, format);
    }
    constexpr Setting unit(const char* text) const { return having(&Setting::unitKey, text); }
    constexpr Setting range(double from, double to) const
    {
        return having(&Setting::least, from).having(&Setting::most, to);
    }
    constexpr Setting stepping(double width) const { return having(&Setting::step, width); }
    constexpr Setting resetTo(double value) const
    {
        return having(&Setting::resets, Reset::toOwn).having(&Setting::resetNumber, value);
    }
    constexpr Setting resetTo(const char* text) const
    {
        return having(&Setting::resets, Reset::toOwn).having(&Setting::resetText, DefaultText{text});
    }
    constexpr Setting keepOnReset() const { return having(&Setting::resets, Reset::keeps); }
    constexpr Setting offAtZero(const char* checkBox) const
    {
        return having(&Setting::zeroIsOff, true).having(&Setting::companion, checkBox);
    }
    constexpr Setting onUnlessZero() const { return having(&Setting::negativeIsOn, true); }
    constexpr Setting switchedOnTo(double value) const { return having(&Setting::switchedOnAt, value); }
    constexpr Setting blankable() const { return having(&Setting::blankIsZero, true); }
    constexpr Setting checkedForZero() const { return having(&Setting::inverted, true); }
    constexpr Setting inCell(const char* tree, int number) const
    {
        return in(tree).having(&Setting::column, number);
    }
    constexpr Setting unknownIs(const char* code) const { return having(&Setting::fallback, code); }
    constexpr Setting noItemIs(const char* code) const { return having(&Setting::none, code); }
    // Of digits in combo boxes: the item of each digit.
    constexpr Setting listing(std::span<const Code> items) const { return having(&Setting::codes, items); }
    constexpr Setting offering(const char* list) const { return having(&Setting::offers, list); }
    constexpr Setting unofferedLeavesIt() const { return having(&Setting::unofferedStays, true); }
    constexpr Setting byNumber() const { return having(&Setting::numeric, true); }
    constexpr Setting onValue(std::int32_t value) const { return having(&Setting::on, value); }
    constexpr Setting readSingle() const { return having(&Setting::singleRead, true); }
    constexpr Setting wrapping(std::int32_t seconds) const { return having(&Setting::wrap, seconds); }
    constexpr Setting atLeast(double seconds) const { return having(&Setting::least, seconds); }
    constexpr Setting upTo(int characters) const { return having(&Setting::maxLength, characters); }
    constexpr Setting typed(const char* expression) const { return having(&Setting::pattern, expression); }
    constexpr Setting expected(const char* expression, const char* complaint) const
    {
        return having(&Setting::expectedPattern, expression).having(&Setting::unexpectedKey, complaint);
    }
    constexpr Setting masked(const char* mask) const { return having(&Setting::inputMask, mask); }
    constexpr Setting readLast() const { return having(&Setting::last, true); }
    constexpr Setting keeping() const { return having(&Setting::kept, true); }
    constexpr Setting ifAny() const { return having(&Setting::unlessEmpty, true); }
    constexpr Setting staying() const { return having(&Setting::stays, true); }
    constexpr Setting carriedOver() const { return having(&Setting::carried, true); }
    constexpr Setting withoutElement(double value) const { return having(&Setting::unlessThere, value); }
    constexpr Setting onlyWhen(When condition, When too = {}) const
    {
        return having(&Setting::present, condition).having(&Setting::presentToo, too);
    }
    // Without a condition: always.
    constexpr Setting readWhen(When condition = {}, When too = {}) const
    {
        return having(&Setting::readOtherwise, true)
            .having(&Setting::readable, condition)
            .having(&Setting::readableToo, too);
    }
    // Saved as `text` unless the condition holds; `bound`: and read as that.
    constexpr Setting savedAs(const char* text, When condition, bool bound = false) const
    {
        return having(&Setting::otherwise, text)
            .having(&Setting::free, condition)
            .having(&Setting::boundOnRead, bound);
    }
    constexpr Setting named(const char* pathName) const { return having(&Setting::name, pathName); }
    // Lives in the window alone.
    constexpr Setting notStored() const { return having(&Setting::stored, false); }
};

constexpr Setting group(const char* path)
{
    return {.kind = Kind::group, .key = path};
}

constexpr Setting constant(const char* key, const char* text)
{
    return {.kind = Kind::constant, .key = key, .loadText = {text}};
}

// The value of `target` under another key; a missing one is worth `loadDefault`.
constexpr Setting link(const char* key, const char* target, double loadDefault)
{
    return {.kind = Kind::link, .key = key, .target = target, .loadNumber = loadDefault};
}

constexpr Setting flag(const char* key, int loadDefault)
{
    return {.kind = Kind::flag, .key = key, .loadNumber = static_cast<double>(loadDefault)};
}

constexpr Setting integer(const char* key, int loadDefault, std::int32_t factor = 1)
{
    return {
        .kind = Kind::integer, .key = key, .loadNumber = static_cast<double>(loadDefault), .factor = factor};
}

// `loadDefault` as a number; the file holds two digits of base 16.
constexpr Setting hexadecimal(const char* key, int loadDefault)
{
    return integer(key, loadDefault).having(&Setting::hexadecimal, true);
}

constexpr Setting real(const char* key, double loadDefault, std::uint8_t decimals)
{
    return {.kind = Kind::real, .decimals = decimals, .key = key, .loadNumber = loadDefault};
}

// `loadDefault` is what the file holds.
constexpr Setting scaled(const char* key, int loadDefault, std::int32_t factor, std::uint8_t decimals)
{
    return {.kind = Kind::scaled,
            .decimals = decimals,
            .key = key,
            .loadNumber = static_cast<double>(loadDefault),
            .factor = factor};
}

// Whole millivolts in the file, volts in the widget.
constexpr Setting volts(const char* key, int loadDefault)
{
    return scaled(key, loadDefault, 1000, 2).stepping(0.01).unit("abbr_011");
}

constexpr Setting text(const char* key, DefaultText loadDefault)
{
    return {.kind = Kind::text, .key = key, .loadText = loadDefault};
}

constexpr Setting text(const char* key, const char* loadDefault)
{
    return text(key, DefaultText{loadDefault});
}

constexpr Setting choice(const char* key, std::span<const Code> codes, const char* loadDefault)
{
    return {.kind = Kind::choice, .key = key, .loadText = {loadDefault}, .codes = codes};
}

constexpr Setting period(const char* key, int loadDefault, std::span<const PeriodPart> parts)
{
    return {.kind = Kind::period,
            .key = key,
            .loadNumber = static_cast<double>(loadDefault),
            .least = 0,
            .parts = parts};
}

constexpr Setting digits(const char* key, const char* loadDefault, std::span<const Position> positions)
{
    return {.kind = Kind::digits, .key = key, .loadText = {loadDefault}, .positions = positions};
}

// Positions that no field sets are always 0; a mask without fields takes them all as they come.
constexpr Setting mask(const char* key, const char* loadDefault, int length,
                       std::span<const MaskField> fields = {})
{
    return {.kind = Kind::mask, .key = key, .loadText = {loadDefault}, .fields = fields, .maxLength = length};
}

} // namespace vlk
