#pragma once

// Whether an answer of the tracker that carries a record can be right: its header belongs to the request and
// agrees with the record, its bytes are all there, its length is the one that its mask asks for, its time
// lies between 2000 and 2100 and not years from that of the record before. Knows no widget.

#include "check/plugin_names.h"
#include "plugin/host/host_interface.h"

#include <optional>

namespace workbench {

struct AnswerProblem
{
    enum Kind { CutShort, Damaged, TimeOutside, TimeJumps, OtherNumber, OutsidePeriod };

    Kind kind;
    qint64 bytes;      // that came
    qint64 expected;   // for CutShort: how many there should be, 0 when not even that is known;
                       // for OtherNumber: the number that was asked for
    qint64 time = 0;   // Unix seconds, of the record
    qint64 before = 0; // for TimeJumps: of the record before
    qint64 number = 0; // for OtherNumber: of the record

    // The tracker may hold it as it came, so that it comes again when it is asked for again.
    bool mayBeHeld() const { return kind != CutShort && kind != Damaged; }
};

// What a record whose bytes agree with each other says of itself.
struct RecordContent
{
    bool agrees = false;
    std::optional<quint32> number;
    std::optional<qint64> time;
};

class RecordCheck
{
public:
    // Whether a message carries a record at all.
    static bool carriesRecord(Message answer);

    // The protocol version in a record's head: 10, 20 or 30. 0 for what is no record, packets among them.
    static int versionOf(Message answer, const QByteArray& bytes);
    // What the record in an answer holds.
    static RecordContent contentOf(Message answer, const QByteArray& bytes);
    // None for a record that can be right. A right one is what the next one's time is compared with; where
    // two that follow each other agree on another time, it was the one before them that was wrong.
    std::optional<AnswerProblem> look(Message answer, const QByteArray& bytes);
    // Another tracker may have another time.
    void forget();

private:
    std::optional<qint64> lastTime_;
    std::optional<qint64> doubted_;
};

} // namespace workbench
