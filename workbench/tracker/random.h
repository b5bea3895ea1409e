#pragma once

// Random numbers that repeat: each follows from its seed alone, on every machine, so that a record made again
// has the same bytes.

#include <cmath>
#include <cstdint>

namespace tracker {

// A well-mixed number from two others.
constexpr std::uint64_t mix(std::uint64_t a, std::uint64_t b = 0)
{
    std::uint64_t z = a + (b + 1) * 0x9E3779B97F4A7C15ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

// From 0 up to 1.
constexpr double fraction(std::uint64_t bits)
{
    return static_cast<double>(bits >> 11) / 9007199254740992.0;
}

// A smooth curve through random heights from 0 to 1, one at every whole x.
inline double wave(std::uint64_t seed, double x)
{
    const double whole = std::floor(x);
    const auto step = static_cast<std::uint64_t>(static_cast<std::int64_t>(whole));
    const double t = x - whole;
    const double before = fraction(mix(seed, step));
    const double after = fraction(mix(seed, step + 1));
    return before + (after - before) * t * t * (3 - 2 * t);
}

// A series of numbers.
class Random
{
public:
    explicit constexpr Random(std::uint64_t seed) : seed_(seed) {}

    double between(double low, double high) { return low + (high - low) * fraction(mix(seed_, ++count_)); }
    int integer(int low, int high) { return low + static_cast<int>(between(0, high - low + 1)); }

private:
    std::uint64_t seed_;
    std::uint64_t count_ = 0;
};

} // namespace tracker
