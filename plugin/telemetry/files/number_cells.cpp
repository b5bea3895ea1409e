#include "telemetry/files/number_cells.h"

#include "telemetry/files/value_writing.h"
#include "telemetry/text/item_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>

namespace vlk {

namespace {

constexpr int kDecimalsOfDegrees = 7;

// The power of ten of so many.
constexpr std::int64_t powerOfTen(int exponent)
{
    std::int64_t power = 1;
    for (; exponent > 0; --exponent)
        power *= 10;
    return power;
}

// How many decimals tell multiples of the step exactly, up to three; none where that takes more.
std::optional<int> decimalsOf(double step)
{
    for (int decimals = 0; decimals <= 3; ++decimals) {
        if (std::abs(step * static_cast<double>(powerOfTen(decimals)) - 1) < 1e-9)
            return decimals;
    }
    return {};
}

char letterOf(int field, std::string_view userTypes)
{
    const int slot = field - kElements[element("User1Byte_1")].field;
    if (slot < 0 || slot > kFieldCount - kElements[element("User1Byte_1")].field)
        return 0;
    return static_cast<std::size_t>(slot) < userTypes.size() ? userTypes[slot] : 'u';
}

// Rounds a half away from zero.
std::int64_t inUnits(std::int64_t number, std::int64_t multiplier, std::int64_t divisor)
{
    number *= multiplier;
    const std::int64_t half = divisor / 2;
    return divisor == 1 ? number
                        : number / divisor + (number % divisor >= half + divisor % 2) -
                              (number % divisor <= -half - divisor % 2);
}

} // namespace

NumberCell numberCell(ElementIndex index, std::string_view userTypes)
{
    const Element& element = kElements[index];
    const Measure& measure = element.measure;
    NumberCell cell{.element = index, .unit = measure.unit, .userType = letterOf(element.field, userTypes)};
    if ((cell.userType == 'f' && element.width >= 4) || element.type == ValueType::F32) {
        cell.kind = NumberCell::Single;
    } else if (measure.unit == Unit::UnixSeconds) {
        cell.kind = NumberCell::Moment;
        cell.unit = Unit::None;
    } else if (measure.unit == Unit::Degree && measure.divisor > 1000) {
        const auto divisor = static_cast<std::int64_t>(measure.divisor);
        const std::int64_t units = powerOfTen(kDecimalsOfDegrees);
        const std::int64_t common = std::gcd(divisor, units);
        cell.kind = NumberCell::Fixed;
        cell.decimals = kDecimalsOfDegrees;
        cell.multiplier = units / common;
        cell.divisor = divisor / common;
    } else if (const auto decimals = decimalsOf(measure.multiplier / measure.divisor)) {
        cell.kind = *decimals == 0 ? NumberCell::Whole : NumberCell::Fixed;
        cell.decimals = *decimals;
    } else {
        cell.kind = NumberCell::Real;
    }
    return cell;
}

NumberCell numberCell(ItemIndex index)
{
    const Item& item = kItems[index];
    return {.element = item.element,
            .item = index,
            .kind = NumberCell::OfItem,
            .unit = measureOf(item, item.rule()).unit};
}

NumberCell rawCell(ElementIndex element)
{
    return {.element = element, .kind = NumberCell::AsFile};
}

char* NumberCells::withSign(char* from, char* end) const
{
    std::replace(from, end, '.', decimalSign_);
    return end;
}

char* NumberCells::putShortest(char* to, auto number) const
{
    return std::isfinite(number) ? withSign(to, std::to_chars(to, to + kLongest, number).ptr) : to;
}

char* NumberCells::putReal(char* to, double number, int digits) const
{
    if (!std::isfinite(number))
        return to;
    return withSign(to, std::to_chars(to, to + kLongest, number, std::chars_format::general, digits).ptr);
}

char* NumberCells::putFixed(char* to, const NumberCell& cell, std::int64_t number) const
{
    std::int64_t units = inUnits(number, cell.multiplier, cell.divisor);
    if (units < 0)
        *to++ = '-';
    const std::uint64_t size =
        units < 0 ? 0 - static_cast<std::uint64_t>(units) : static_cast<std::uint64_t>(units);
    const auto power = static_cast<std::uint64_t>(powerOfTen(cell.decimals));
    to = std::to_chars(to, to + kLongest, size / power).ptr;
    *to++ = decimalSign_;
    std::uint64_t rest = size % power;
    for (int digit = cell.decimals - 1; digit >= 0; --digit, rest /= 10)
        to[digit] = static_cast<char>('0' + rest % 10);
    return to + cell.decimals;
}

char* NumberCells::put(char* to, const NumberCell& cell, std::uint64_t raw)
{
    constexpr int digits = 9;
    const ValueType type = kElements[cell.element].type;
    const Measure& measure = kElements[cell.element].measure;
    if (cell.kind == NumberCell::AsFile) {
        withFileNumber(cell.element, raw, [&](auto number) {
            if constexpr (std::is_floating_point_v<decltype(number)>) {
                const QByteArray text = shortestText(number);
                to = withSign(to, std::copy(text.begin(), text.end(), to));
            } else {
                to = std::to_chars(to, to + kLongest, number).ptr;
            }
        });
        return to;
    }
    const std::int64_t integer = integerOf(raw, type);
    if (measure.noValue == integer || (measure.belowZeroIsNone && numberOf(raw, type) < 0))
        return to;
    switch (cell.kind) {
    case NumberCell::Whole:
        if (isSigned(type) || cell.userType == 's') {
            const int unused = 64 - 8 * kElements[cell.element].width;
            return std::to_chars(to, to + kLongest, static_cast<std::int64_t>(raw << unused) >> unused).ptr;
        }
        return std::to_chars(to, to + kLongest, raw).ptr;
    case NumberCell::Fixed:
        return putFixed(to, cell, integer);
    case NumberCell::Real:
        return putReal(to, measure.of(numberOf(raw, type)), digits);
    case NumberCell::Single:
        if (kElements[cell.element].width == 8)
            return putShortest(to, std::bit_cast<double>(raw));
        return putShortest(to, std::bit_cast<float>(static_cast<quint32>(raw)));
    case NumberCell::Moment:
        return times_.put(to, static_cast<quint32>(raw));
    case NumberCell::OfItem:
        return putReal(to, itemNumber(raw, cell.item), digits);
    case NumberCell::AsFile:
        break;
    }
    return to;
}

} // namespace vlk
