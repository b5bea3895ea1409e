#pragma once

// Reads telemetry in the XML form. It is no XML parser: it goes line by line and looks for what it knows, so
// that a damaged or half-written file gives all that is readable in it. A line that it does not know is
// passed over, an unknown element too, and a number that is none counts as 0. Nothing is an error; what is no
// well-formed line, no number where one belongs, or a mask that does not go with its elements, is told as
// damage, and salvaging leaves its record out.
//
// A page without a closing line takes the first line of the next page with it, whose lines then start
// nothing; who salvages gets that page too. Where elements share a line the first one is read; that is told,
// and who salvages gets all of them. Records have the local zone, whatever zone the file names.

#include "telemetry/files/input_buffer.h"
#include "telemetry/files/sound_lines.h"
#include "telemetry/files/telemetry_contents.h"
#include "telemetry/files/usual_pages.h"

namespace vlk {

class XmlPage;

class TelemetryXmlReader
{
public:
    explicit TelemetryXmlReader(QIODevice& device, TelemetryReading reading = TelemetryReading::AsTold);

    // A page, or a line between pages; false at the end.
    bool step();
    qint64 position() const { return input_.position(); }
    // After the last step; between steps what was read so far may be taken out of the records.
    TelemetryContents& contents() { return contents_; }
    void finish();

private:
    // As InputBuffer::line(); who salvages gets a line for each element.
    std::string_view nextLine(std::size_t most);
    void readBetween(std::string_view line, qint64 at);
    void endBetween(std::string_view front, qint64 at);
    void readPage(std::string pageLine, qint64 at);
    bool mayLackElements(const XmlPage& page);
    bool hasDamagedMask(const XmlPage& page) const;
    void endPage(const XmlPage& page);
    void endWithNext(const XmlPage& page, bool isKept);
    void report(FileDamage::Kind kind, qint64 from, qint64 to);
    // Bytes that hold no whole record begin there; they go on to where the next one is.
    void loseFrom(qint64 at);
    void goOnAt(qint64 at);

    InputBuffer input_;
    TelemetryReading reading_;
    UsualPages usual_;
    bool fullMasks_ = false;
    std::string lacking_; // the mask, quoted, of the last page that lacked elements
    TelemetryContents contents_;
    int total_ = 0; // records that were read
    qint64 countAt_ = 0;
    std::optional<FileDamage> lost_;
    JoinedLines between_; // pages
    // Whether a page among the lines that start nothing, for want of its first one, is still without its end.
    bool isHidden_ = false;
    bool areLinesShared_ = false; // by elements, and told
    std::string apart_;           // a line of its own for one of them
};

} // namespace vlk
