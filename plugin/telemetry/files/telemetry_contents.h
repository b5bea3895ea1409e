#pragma once

// What the files of telemetry are made of and what reading them gives.

#include "telemetry/record/record_store.h"
#include "telemetry/record/telemetry_titles.h"

#include <optional>
#include <utility>
#include <vector>

class QIODevice;

namespace vlk {

// What a file tells of the tracker that its records come from.
struct TelemetryOrigin
{
    QString model;
    QString vendor;
    QString trackerId;
    qint32 timeOffset = 0; // the zone that the user chose, in seconds east of UTC
    TelemetryTitles titles;
};

// Something that a file does not hold as it was written. The checksums are those of the binary form.
struct FileDamage
{
    enum Kind : std::uint8_t {
        NotThisForm,     // the file does not begin as this form does
        HeaderChecksum,  // the header is not what was written
        Records,         // these bytes hold no record
        CutShort,        // the file ends within these bytes, which begin a record or the header
        RecordsChecksum, // something behind the header is not what was written
        RecordCount,     // the header counts other than there are
        SharedLine,      // elements stand on one line, while the XML form has a line for each
    };

    Kind kind;
    qint64 offset;  // where in the file
    qint64 bytes;   // how many
    int record = 0; // the records before it
};

// What is read of a damaged file.
enum class TelemetryReading : std::uint8_t {
    AsTold,  // a page without an end hides the next one, and gives what there is of it; a line is one element
    Salvage, // every whole record, and no other, whatever stands on its lines
};

// What a file gives. Titles, zone and vendor come from the XML form only, the tracker's number from none; the
// damages are in the order in which they were found.
struct TelemetryContents
{
    TelemetryOrigin origin;
    RecordStore records;
    std::vector<FileDamage> damages;
    std::optional<quint32> announced; // how many records the file says that it holds
    bool lastIsCut = false;           // of the last record there is only the beginning
    std::vector<int> damaged; // rising: records with something in them that is not as it was written, or cut
    int hidden = 0;           // whole records that salvaging would give besides these
    bool mayHideMore = false; // lines were not taken apart that elements share
};

// Whether at least half of the records are none, but what is left of several whose elements share lines.
inline bool areTornBySharedLines(const TelemetryContents& contents)
{
    return contents.mayHideMore &&
           2 * contents.damaged.size() >= static_cast<std::size_t>(contents.records.size());
}

// The time of a record, or of an extra packet's head.
inline quint32 timeOf(const TmiPage_Zeta3& page)
{
    constexpr ElementIndex time = element("Time");
    return page.isExtra() ? page.extra().value<time>() : page.value<time>();
}

// The number of the record, likewise; 0: it has none.
inline quint32 recordNumberOf(const TmiPage_Zeta3& page)
{
    constexpr ElementIndex number = element("NumPage");
    return page.isExtra() ? page.extra().value<number>() : page.value<number>();
}

// The hole of a period that was saved in part: its first and its last record come first, and then the others
// in their order.
struct PeriodHole
{
    quint32 before; // numbers of the records at its sides
    quint32 behind;

    quint32 missing() const { return behind - before - 1; }
};

// Of so many records, by the numbers of the first one and of the last two. Other gaps are none: whoever has
// chosen records has made them.
inline std::optional<PeriodHole> holeOfPart(qint64 records, quint32 first, quint32 before, quint32 behind)
{
    const bool isInOrder = records > 1 && qint64{before} - first == records - 2;
    return isInOrder && qint64{behind} - before > 1 ? std::optional(PeriodHole{before, behind})
                                                    : std::nullopt;
}

// The event code of a record, or of an extra packet's head.
inline quint16 codeOf(const TmiPage_Zeta3& page)
{
    constexpr ElementIndex code = element("Code");
    return page.isExtra() ? page.extra().value<code>() : page.value<code>();
}

} // namespace vlk
