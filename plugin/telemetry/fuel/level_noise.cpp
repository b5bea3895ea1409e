#include "telemetry/fuel/level_noise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace vlk {

namespace {

constexpr std::size_t kSide = 3;    // medians before and after, at most
constexpr double kLongestGap = 900; // seconds between two of them
constexpr std::size_t kLeastCount = 20;
// Times the median of distances: three standard deviations of normally spread ones.
constexpr double kSpread = 3 * 1.4826;

// At most kSide of them.
double litresOf(std::span<const LevelMedian> medians)
{
    std::array<double, kSide> litres;
    litres.fill(std::numeric_limits<double>::infinity());
    std::ranges::transform(medians, litres.begin(), &LevelMedian::litres);
    std::ranges::sort(litres);
    return (litres[(medians.size() - 1) / 2] + litres[medians.size() / 2]) / 2;
}

bool isOtherState(const LevelMedian& one, const LevelMedian& other)
{
    return one.moves != other.moves || one.burns != other.burns || other.from - one.until > kLongestGap;
}

} // namespace

double levelNoise(const std::vector<LevelMedian>& medians)
{
    std::array<std::vector<double>, 2> differences; // standing and moving
    for (auto begin = medians.begin(); begin != medians.end();) {
        const auto last = std::adjacent_find(begin, medians.end(), isOtherState);
        const std::span<const LevelMedian> run(begin, last == medians.end() ? last : last + 1);
        for (std::size_t i = 1; i < run.size(); ++i) {
            const auto before = run.first(i).last(std::min(i, kSide));
            const auto after = run.subspan(i, std::min(run.size() - i, kSide));
            differences[run[0].moves].push_back(litresOf(after) - litresOf(before));
        }
        begin += run.size();
    }
    double noise = 0;
    for (std::vector<double>& each : differences) {
        if (each.size() < kLeastCount)
            continue;
        const double burnt = medianOf(each);
        std::ranges::transform(each, each.begin(), [burnt](double one) { return std::abs(one - burnt); });
        noise = std::max(noise, kSpread * medianOf(each));
    }
    return noise;
}

} // namespace vlk
