#include "telemetry/curves/extreme_pyramid.h"

#include <algorithm>

namespace vlk {

namespace {

constexpr std::size_t kStep = 16;

// Makes the blocks of `level` anew from the one that holds the entry `from` of what is below.
template <class Below>
void growLevel(std::vector<Extremes>& level, const Below& below, std::size_t from)
{
    level.resize((below.size() + kStep - 1) / kStep);
    for (std::size_t block = from / kStep; block < level.size(); ++block) {
        const std::size_t end = std::min((block + 1) * kStep, below.size());
        Extremes extremes;
        for (std::size_t i = block * kStep; i < end; ++i)
            extremes.add(below[i]);
        level[block] = extremes;
    }
}

} // namespace

void ExtremePyramid::grow(std::span<const double> numbers)
{
    std::size_t from = size_;
    size_ = numbers.size();
    if (levels_.empty())
        levels_.emplace_back();
    growLevel(levels_.front(), numbers, from);
    for (std::size_t level = 1; levels_[level - 1].size() > 1; ++level) {
        from /= kStep;
        if (level == levels_.size())
            levels_.emplace_back();
        growLevel(levels_[level], levels_[level - 1], from);
    }
}

Extremes ExtremePyramid::over(std::span<const double> numbers, std::size_t first, std::size_t last) const
{
    Extremes extremes;
    // What is left of whole blocks and right of them is taken from this level, the blocks from those above.
    const auto takeEnds = [&](const auto& entries) {
        while (first < last && first % kStep != 0)
            extremes.add(entries[first++]);
        while (first < last && last % kStep != 0)
            extremes.add(entries[--last]);
        first /= kStep;
        last /= kStep;
    };
    takeEnds(numbers);
    for (std::size_t level = 0; first < last && level < levels_.size(); ++level)
        takeEnds(levels_[level]);
    return extremes;
}

} // namespace vlk
