#include "telemetry/track/value_classes.h"

#include "telemetry/curves/curve_looks.h"
#include "typing/kept_palette.h"

#include <QPalette>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace vlk {

namespace {

constexpr QRgb kOnLight[] = {0x7aa6d0, 0x3f7fbf, 0x1f5f9e, 0x5b3a9a, 0x8a1f6a, 0x6a0016};
constexpr QRgb kOnDark[] = {0x3f6ea0, 0x3f93b0, 0x47b39a, 0x84c96a, 0xc8da5a, 0xfff3a0};
static_assert(std::size(kOnLight) == ValueClasses::kMost && std::size(kOnDark) == ValueClasses::kMost);

// The least of 1, 2, 5, 10, 20, ... that is not below.
double roundStep(double step)
{
    const double power = std::pow(10, std::floor(std::log10(step)));
    for (const double factor : {1, 2, 5}) {
        if (factor * power >= step)
            return factor * power;
    }
    return 10 * power;
}

} // namespace

ValueClasses::ValueClasses(double least, double greatest) : first_(least), count_(1)
{
    const double width = greatest - least;
    if (!(width > 0) || !std::isfinite(width))
        return;
    // A limit at either end may take a class more than the width alone.
    for (step_ = roundStep(width / kMost);; step_ = roundStep(step_ * 1.5)) {
        first_ = std::floor(least / step_) * step_;
        const double classes = std::floor((greatest - first_) / step_) + 1;
        if (classes <= kMost) {
            count_ = static_cast<int>(classes);
            return;
        }
    }
}

int ValueClasses::classOf(double value) const
{
    if (std::isnan(value) || count_ == 0)
        return -1;
    return static_cast<int>(std::clamp((value - first_) / step_, 0.0, count_ - 1.0));
}

QColor ValueClasses::colour(int place, const QPalette& palette) const
{
    if (place < 0)
        return between(palette.color(QPalette::Text), palette.color(QPalette::Base));
    // Few classes take colours far apart.
    const int step = count_ < 2 ? kMost / 2 : place * (kMost - 1) / (count_ - 1);
    return QColor(isDark(palette) ? kOnDark[step] : kOnLight[step]);
}

} // namespace vlk
