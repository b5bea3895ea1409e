#pragma once

// The order of records by what one of their columns shows: numbers and times by size, words by alphabet.
// Records that show nothing there come last in either direction, and equal ones keep the order of the file.

#include <Qt>

#include <functional>
#include <limits>
#include <vector>

class QString;

namespace vlk {

inline constexpr double kNoKey = std::numeric_limits<double>::quiet_NaN();

// By record; kNoKey where it shows nothing.
using OrderKeys = std::vector<double>;

// The records by their keys.
std::vector<int> ordered(const std::vector<int>& records, const OrderKeys& keys, Qt::SortOrder order);

// Keys in the place of codes: the place of each code's words in the alphabet. `words` is asked once a code,
// with a record that has it.
OrderKeys alphabetical(OrderKeys codes, const std::function<QString(int record)>& words);

} // namespace vlk
