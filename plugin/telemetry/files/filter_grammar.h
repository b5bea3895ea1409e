#pragma once

// The grammar of the filter, part by part; what is told of it, and offered, is told by filter_parser.h.

#include "telemetry/files/filter_names.h"

#include <cstdint>

namespace vlk {

class FilterGrammar
{
public:
    enum class Expected : std::uint8_t {
        Name,
        Sign,
        Number,
        Word,
        Moment,
        Joint,
        Closing,
        Quote,
        Flatter,
        Equality
    };

    // The text and the names have to stay.
    FilterGrammar(const QString& text, const FilterNames& names, std::optional<qint32> utcOffset);

    // None where there is a fault.
    std::optional<Filter> parse();

    // Where the fault is, and what is expected there.
    int position() const { return faultAt_; }
    Expected expected() const { return expected_; }
    // What stands in quotes and is none of the words of its column; else null.
    const QString& unknownWord() const { return unknownWord_; }
    // A number with a unit, or the unit alone, that stands where the fault is; else empty. The names of
    // columns that have units end with them.
    QString unit() const;
    // The last name that was read: its column, where it begins and where it ends.
    FilterColumn column() const { return column_; }
    int nameBegin() const { return nameBegin_; }
    int nameEnd() const { return nameEnd_; }

    static bool beginsQuoted(const QString& text);

private:
    std::nullopt_t fault(Expected expected) { return fault(expected, position_); }
    std::nullopt_t fault(Expected expected, int position);
    void passBlanks();
    // Behind one of the words, in whole, if one stands here; else where it began.
    int behindWord(FilterNode::Kind kind) const;
    bool takeWord(FilterNode::Kind kind);
    std::optional<FilterNode> alternatives();
    template <class Part>
    std::optional<FilterNode> chain(FilterNode::Kind kind, Part next);
    std::optional<FilterNode> primary();
    template <class Parse>
    std::optional<FilterNode> deeper(Parse parse);
    std::optional<FilterNode> bracket();
    std::optional<FilterColumn> nameHere(int* end) const;
    // What stands in quotes here; none where they are not closed. `end`: behind them.
    std::optional<QString> quotedHere(int* end) const;
    std::optional<FilterNode> comparison();
    Expected expectedValue() const;
    std::optional<FilterNode> value(Comparison comparison);
    std::optional<FilterNode> wordNode(Comparison comparison, const std::vector<CodeRange>& codes, int begin,
                                       int end);
    std::optional<FilterNode> plainValue(Comparison comparison, const QString& text, int position,
                                         int* end) const;

    const QString& text_;
    const QString folded_;
    const FilterNames& names_;
    const std::optional<qint32> utcOffset_;
    int position_ = 0;
    int depth_ = 0;
    FilterColumn column_{};
    int nameBegin_ = 0;
    int nameEnd_ = -1;
    int faultAt_ = 0;
    QString unknownWord_;
    Expected expected_ = Expected::Name;
};

} // namespace vlk
