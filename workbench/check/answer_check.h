#pragma once

// Whether an answer to a request that only reads can be right: one that carries a record by its form and by
// what was asked, the values of lines by their text, live values by the seal of their record. The other
// answers carry nothing that would tell. Knows no widget.

#include "check/record_check.h"

#include <functional>

namespace workbench {

// A request, and what it asks for where it says so.
struct Asked
{
    Message request{};
    std::optional<quint32> number; // of a record
    std::optional<qint64> time;    // Unix seconds
    QByteArray lines;              // "21,22,23"
};

class AnswerCheck
{
public:
    // A number and a time outside of what the tracker holds give its nearest record. The records of a period
    // that is being saved lie within.
    explicit AnswerCheck(std::function<bool()> isSaving) : isSaving_(std::move(isSaving)) {}

    void note(const Asked& asked);
    std::optional<AnswerProblem> look(Message answer, const void* p1, const Asked& asked);
    // Another tracker may have another time.
    void forget();

private:
    std::optional<AnswerProblem> lookAtRecord(Message answer, const QByteArray& bytes, const Asked& asked);
    std::optional<AnswerProblem> compare(const RecordContent& content, const Asked& asked) const;

    std::function<bool()> isSaving_;
    RecordCheck records_;
    // Ends of the period that was asked for last.
    std::optional<qint64> first_;
    std::optional<qint64> last_;
};

} // namespace workbench
