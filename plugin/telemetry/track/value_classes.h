#pragma once

// The values along a track in a few classes with round limits, each with a colour: the greater, the further
// from the background, so that the order is seen without telling colours apart.

#include <QColor>

#include <vector>

class QPalette;

namespace vlk {

class ValueClasses
{
public:
    static constexpr int kMost = 6;

    // Divides the values between these; one class where they are the same.
    ValueClasses(double least, double greatest);
    ValueClasses() = default; // of no values

    int count() const { return count_; }
    // -1 for no value.
    int classOf(double value) const;
    double from(int place) const { return first_ + place * step_; }

    // The colour of a class, and of -1 for no value.
    QColor colour(int place, const QPalette& palette) const;

private:
    double first_ = 0;
    double step_ = 1;
    int count_ = 0;
};

} // namespace vlk
