#include "check/answer_check.h"

#include "check/sealed_record.h"

#include <algorithm>

namespace workbench {

namespace {

// What the seal of a record of live values is of.
struct SealedRow
{
    Message answer;
    Message request;
    int size;
};

constexpr SealedRow kSealedRows[] = {
    {Message::SupplyValues, Message::RequestSupply, sizeof(vlk::SupplyRecord)},
    {Message::AnalogRecord, Message::RequestAnalog, vlk::kAnalogRecordSize},
};

constexpr int kLinesHeader = 7;

// "21:2EE0,22:0": lines that were asked for, each with its millivolts.
bool areLines(const QByteArray& text, const QByteArray& asked)
{
    const QList<QByteArray> wanted = asked.split(',');
    const QList<QByteArray> pairs = text.split(',');
    return text.isEmpty() || std::ranges::all_of(pairs, [&wanted](const QByteArray& pair) {
               const int colon = pair.indexOf(':');
               bool isNumber = false;
               pair.mid(colon + 1).toUShort(&isNumber, 16);
               return colon > 0 && isNumber && wanted.contains(pair.left(colon));
           });
}

} // namespace

void AnswerCheck::note(const Asked& asked)
{
    if (asked.request == Message::RequestRecordOfPeriod) {
        first_ = asked.time;
        last_.reset();
    } else if (asked.request == Message::RequestRecordByTime) {
        last_ = asked.time;
    }
}

std::optional<AnswerProblem> AnswerCheck::look(Message answer, const void* p1, const Asked& asked)
{
    if (!p1)
        return {};
    if (RecordCheck::carriesRecord(answer))
        return lookAtRecord(answer, *static_cast<const QByteArray*>(p1), asked);
    if (answer == Message::LineValues) {
        const auto& text = *static_cast<const QByteArray*>(p1);
        if (text.size() < kLinesHeader)
            return AnswerProblem{AnswerProblem::CutShort, text.size(), 0};
        if (!areLines(text.mid(kLinesHeader), asked.lines))
            return AnswerProblem{AnswerProblem::Damaged, text.size(), 0};
    }
    for (const SealedRow& row : kSealedRows) {
        if (row.answer == answer &&
            !isSealed(QByteArray::fromRawData(static_cast<const char*>(p1), row.size), row.request))
            return AnswerProblem{AnswerProblem::Damaged, row.size, 0};
    }
    return {};
}

std::optional<AnswerProblem> AnswerCheck::lookAtRecord(Message answer, const QByteArray& bytes,
                                                       const Asked& asked)
{
    if (const auto problem = records_.look(answer, bytes))
        return problem;
    const RecordContent content = RecordCheck::contentOf(answer, bytes);
    auto problem = compare(content, asked);
    if (!problem || !isSaving_())
        return {};
    problem->bytes = bytes.size();
    return problem;
}

std::optional<AnswerProblem> AnswerCheck::compare(const RecordContent& content, const Asked& asked) const
{
    if (asked.number && content.number && *content.number != *asked.number)
        return AnswerProblem{.kind = AnswerProblem::OtherNumber,
                             .bytes = 0,
                             .expected = *asked.number,
                             .number = *content.number};
    if (!content.time)
        return {};
    const bool isEarly = asked.request != Message::RequestRecordByTime && first_ && *content.time < *first_;
    const bool isLate = asked.request != Message::RequestRecordOfPeriod && last_ && *content.time > *last_;
    const bool isOfPeriod = asked.number || asked.time;
    if (isOfPeriod && (isEarly || isLate))
        return AnswerProblem{AnswerProblem::OutsidePeriod, 0, 0, *content.time};
    return {};
}

void AnswerCheck::forget()
{
    records_.forget();
    first_.reset();
    last_.reset();
}

} // namespace workbench
