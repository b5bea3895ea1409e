#pragma once

// The nodes of a filter that conditions on words and moments come to.

#include "telemetry/files/filter_names.h"
#include "telemetry/files/filter_values.h"

#include <algorithm>
#include <limits>

namespace vlk::nodes {

inline FilterNode condition(const FilterColumn& column, Comparison comparison, double number)
{
    return {.column = column, .comparison = comparison, .number = number};
}

// Parts of the same kind are parts of the whole; one part stands alone.
inline FilterNode joined(FilterNode::Kind kind, std::vector<FilterNode> parts)
{
    FilterNode node{.kind = kind};
    for (FilterNode& part : parts) {
        if (part.kind == kind)
            std::ranges::move(part.parts, std::back_inserter(node.parts));
        else
            node.parts.push_back(std::move(part));
    }
    if (node.parts.size() > 1)
        return node;
    FilterNode only = std::move(node.parts.front());
    return only;
}

inline FilterNode inside(const FilterColumn& column, const CodeRange& codes)
{
    if (codes.first == codes.last)
        return condition(column, Comparison::equal, codes.first);
    FilterNode from = condition(column, Comparison::greaterOrEqual, codes.first);
    if (codes.last == std::numeric_limits<double>::infinity())
        return from;
    return joined(FilterNode::all, {from, condition(column, Comparison::lessOrEqual, codes.last)});
}

inline FilterNode outside(const FilterColumn& column, const CodeRange& codes)
{
    if (codes.first == codes.last)
        return condition(column, Comparison::notEqual, codes.first);
    FilterNode below = condition(column, Comparison::less, codes.first);
    if (codes.last == std::numeric_limits<double>::infinity())
        return below;
    return joined(FilterNode::any, {below, condition(column, Comparison::greater, codes.last)});
}

inline FilterNode compared(const FilterColumn& column, Comparison comparison, const MomentSpan& moment)
{
    const CodeRange range{static_cast<double>(moment.first), static_cast<double>(moment.last)};
    switch (comparison) {
    case Comparison::equal:
        return inside(column, range);
    case Comparison::notEqual:
        return outside(column, range);
    case Comparison::less:
    case Comparison::greaterOrEqual:
        return condition(column, comparison, range.first);
    case Comparison::greater:
    case Comparison::lessOrEqual:
        break;
    }
    return condition(column, comparison, range.last);
}

} // namespace vlk::nodes
