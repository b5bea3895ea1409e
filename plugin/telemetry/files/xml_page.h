#pragma once

// One page of the XML form while its lines are read: a record or an extra packet, whatever of it comes.

#include "telemetry/files/line_parts.h"
#include "telemetry/files/number_text.h"
#include "telemetry/files/sound_lines.h"
#include "telemetry/record/record_store.h"

#include <bitset>
#include <string>

namespace vlk {

template <class Number>
Number numberAttribute(std::string_view line, std::string_view name)
{
    return numberFrom<Number>(attribute(line, name));
}

// The text of a value that is no number.
QString textOf(std::string_view bytes);

class XmlPage
{
public:
    // What ends it: its own last line, the first one of the next page, or the file.
    enum End : std::uint8_t { Closing, NextPage, OfFile };

    // `line`: the one with which it begins, at that place in the file.
    XmlPage(std::string line, qint64 at);

    // A line between the first and the last.
    void take(std::string_view line);
    // The line that ended it.
    void finish(std::string_view line, qint64 lineAt);

    quint8 type() const { return type_; }
    quint8 ver() const { return numberAttribute<quint8>(line_, "ver"); }
    FieldMask mask() const { return FieldMask::fromText(attribute(line_, "format")); }
    // Whether the mask is written out to its last field.
    bool hasFullMask() const { return attribute(line_, "format").size() == kFieldCount; }
    bool isRecord() const;
    // Whether all came that a page of its kind has.
    bool isWhole() const;
    // Whether one of its elements ends as another one.
    bool mixesElements() const { return mixesElements_; }
    // Whether every line of it is one, with a number where a number belongs, and none came twice or without
    // being in the mask.
    bool isSound() const { return isSound_; }
    // Whether nothing stands behind it on its first line.
    bool hasItsLine() const;
    const std::string& line() const { return line_; }
    qint64 at() const { return at_; }

    // As a record or a packet; nothing of another type.
    void addTo(RecordStore& records) const;

    End end = OfFile;
    qint64 endAt = 0;     // where the line begins that ended it
    std::string nextLine; // that line

private:
    void readElement(std::string_view line);
    std::uint8_t* placeOf(ElementIndex index);
    bool asksForAllThatCame() const;
    void readEntry(std::string_view line);
    void putInArea(std::size_t offset, std::span<const std::uint8_t> bytes);
    ExtraPacket packet() const;

    std::string line_;
    qint64 at_;
    quint8 type_;
    TmiPage_Zeta3::ValueBlock block_{};
    // A packet: its head, and of the area as much as has room; areaSize_ counts all that the lines bring.
    std::array<std::uint8_t, ExtraPacket::kHeadBytes> head_{};
    std::array<std::uint8_t, ExtraPacket::kAreaBytes> area_{};
    std::size_t areaSize_ = 0;
    std::bitset<kElementCount> seen_;
    JoinedLines lines_;
    bool isSound_;
    bool mixesElements_ = false;
};

} // namespace vlk
