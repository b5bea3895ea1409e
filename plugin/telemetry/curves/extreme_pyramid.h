#pragma once

// The least and the greatest of any run of a million numbers in a few steps: levels over the numbers, each a
// sixteenth of the one below. NaN is no number and takes no part.

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>
#include <vector>

namespace vlk {

struct Extremes
{
    double least = std::numeric_limits<double>::infinity();
    double greatest = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return least > greatest; }
    void add(double number)
    {
        least = number < least ? number : least;
        greatest = number > greatest ? number : greatest;
    }
    void add(const Extremes& other)
    {
        least = std::min(least, other.least);
        greatest = std::max(greatest, other.greatest);
    }
};

class ExtremePyramid
{
public:
    // Takes in more numbers; those that it had before are still the first of them.
    void grow(std::span<const double> numbers);

    // From `first` to before `last`, of the numbers that it grew by.
    Extremes over(std::span<const double> numbers, std::size_t first, std::size_t last) const;

private:
    std::vector<std::vector<Extremes>> levels_;
    std::size_t size_ = 0;
};

} // namespace vlk
