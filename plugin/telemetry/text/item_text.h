#pragma once

// The one road from a value to the text that people read, on windows and in exports.

#include "telemetry/record/tmi_page_zeta3.h"
#include "telemetry/text/item.h"
#include "telemetry/text/local_zone.h"
#include "telemetry/text/text_parts.h"

#include <limits>

namespace vlk {

struct TextOptions
{
    // The type letters of the user parameters, in their order: 16 of one byte, 15 of two, 15 of four and 3 of
    // eight. "u" unsigned, "s" signed, "b" binary digits, "f" floating; a slot without a letter is unsigned.
    std::string_view userTypes;
    // The zone of local times, and of pages that have none of their own. Without it each of these looks the
    // zone of the machine up.
    const LocalZone* zone = nullptr;
    // In which the times of a value without a page are shown, in seconds east of UTC; else the present one.
    std::optional<qint32> utcOffset{};
};

// Empty if the record does not hold the item. Of an extra packet the items of its head have their texts.
// Numbers have a decimal point and no groups whatever the locale; words are those of the installed
// translator; times are in the zone of the page.
QString text(const TmiPage_Zeta3& page, ItemIndex item, const TextOptions& options = {});

// The text in parts, for those who look the words up themselves. Not for items of Shape::Special.
TextParts textParts(const TmiPage_Zeta3& page, ItemIndex item, const TextOptions& options = {});

// The parts from the bytes of the element alone, as an unsigned number.
TextParts textParts(std::uint64_t raw, ItemIndex item, const TextOptions& options = {});

// The number behind the text, in the unit of the text: degrees for a coordinate, seconds since 1970 for a
// time, 1 or 0 for a state of two, the code of what has words. No number where the value is the code for
// none. `raw`: the bytes of the element, as an unsigned number.
double itemNumber(std::uint64_t raw, ItemIndex item, std::string_view userTypes = {});

// itemNumber for many values of one item: where one scale holds for all of them nothing else is looked at.
class ItemNumbers
{
public:
    explicit ItemNumbers(ItemIndex item, std::string_view userTypes = {});

    double operator()(std::uint64_t raw) const
    {
        if (!measure_)
            return itemNumber(raw, item_, userTypes_);
        const double number = numberOf(raw, type_);
        if (measure_->noValue == integerOf(raw, type_) || (measure_->belowZeroIsNone && number < 0))
            return std::numeric_limits<double>::quiet_NaN();
        return isScaled_ ? measure_->of(number) : number;
    }

private:
    ItemIndex item_;
    std::string_view userTypes_;
    ValueType type_;
    const Measure* measure_ = nullptr;
    bool isScaled_ = false;
};

} // namespace vlk
