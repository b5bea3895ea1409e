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
        return condition(column, Comparison::Equal, codes.first);
    FilterNode from = condition(column, Comparison::GreaterOrEqual, codes.first);
    if (codes.last == std::numeric_limits<double>::infinity())
        return from;
    return joined(FilterNode::All, {from, condition(column, Comparison::LessOrEqual, codes.last)});
}

inline FilterNode outside(const FilterColumn& column, const CodeRange& codes)
{
    if (codes.first == codes.last)
        return condition(column, Comparison::NotEqual, codes.first);
    FilterNode below = condition(column, Comparison::Less, codes.first);
    if (codes.last == std::numeric_limits<double>::infinity())
        return below;
    return joined(FilterNode::Any, {below, condition(column, Comparison::Greater, codes.last)});
}

inline FilterNode compared(const FilterColumn& column, Comparison comparison, const MomentSpan& moment)
{
    const CodeRange range{static_cast<double>(moment.first), static_cast<double>(moment.last)};
    switch (comparison) {
    case Comparison::Equal:
        return inside(column, range);
    case Comparison::NotEqual:
        return outside(column, range);
    case Comparison::Less:
    case Comparison::GreaterOrEqual:
        return condition(column, comparison, range.first);
    case Comparison::Greater:
    case Comparison::LessOrEqual:
        break;
    }
    return condition(column, comparison, range.last);
}

} // namespace vlk::nodes
