#pragma once

// Whether an answer of the tracker that carries a record can be right: its header belongs to the request, its
// bytes are all there, its length is the one that its mask asks for, its time lies between 2000 and 2100 and
// not years from that of the record before. Knows no widget.

#include "plugin/host/host_interface.h"
#include "plugin_names.h"

#include <optional>

namespace workbench {

struct AnswerProblem
{
    enum Kind { CutShort, Damaged, TimeOutside, TimeJumps };

    Kind kind;
    qint64 bytes;      // that came
    qint64 expected;   // for CutShort: how many there should be, 0 when not even that is known
    qint64 time = 0;   // Unix seconds, of the record
    qint64 before = 0; // for TimeJumps: of the record before
};

class RecordCheck
{
public:
    // Whether a message carries a record at all.
    static bool carriesRecord(Message answer);

    // The protocol version in a record's head: 10, 20 or 30. 0 for what is no record, packets among them.
    static int versionOf(Message answer, const QByteArray& bytes);
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
