#include "telemetry/view/record_order.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace vlk {

std::vector<int> ordered(const std::vector<int>& records, const OrderKeys& keys, Qt::SortOrder order)
{
    using Keyed = std::pair<double, int>;
    std::vector<Keyed> keyed;
    std::vector<int> last;
    keyed.reserve(records.size());
    for (const int record : records) {
        if (std::isnan(keys[record]))
            last.push_back(record);
        else
            keyed.emplace_back(keys[record], record);
    }
    if (order == Qt::AscendingOrder)
        std::ranges::sort(keyed);
    else
        std::ranges::sort(keyed, [](const Keyed& left, const Keyed& right) {
            return left.first != right.first ? left.first > right.first : left.second < right.second;
        });
    std::vector<int> sorted;
    sorted.reserve(records.size());
    std::ranges::transform(keyed, std::back_inserter(sorted), &Keyed::second);
    sorted.insert(sorted.end(), last.begin(), last.end());
    return sorted;
}

OrderKeys alphabetical(OrderKeys codes, const std::function<QString(int record)>& words)
{
    std::map<double, QString> wordsOf;
    for (std::size_t record = 0; record < codes.size(); ++record) {
        if (!std::isnan(codes[record]) && !wordsOf.contains(codes[record]))
            wordsOf.emplace(codes[record], words(static_cast<int>(record)));
    }
    std::vector<std::pair<double, QString>> byAlphabet(wordsOf.begin(), wordsOf.end());
    std::ranges::stable_sort(byAlphabet, [](const auto& left, const auto& right) {
        return left.second.localeAwareCompare(right.second) < 0;
    });
    std::map<double, double> places;
    double place = 0;
    const QString* before = nullptr;
    for (const auto& [code, text] : byAlphabet) {
        // Codes with the same words are equal.
        if (before && *before != text)
            ++place;
        before = &text;
        places[code] = text.isEmpty() ? kNoKey : place;
    }
    for (double& code : codes) {
        if (!std::isnan(code))
            code = places[code];
    }
    return codes;
}

} // namespace vlk
