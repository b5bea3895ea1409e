#include "telemetry/files/usual_pages.h"

#include "telemetry/files/file_form.h"
#include "telemetry/files/value_reading.h"
#include "telemetry/record/record_head.h"

#include <cstring>
#include <limits>

namespace vlk {

namespace {

constexpr std::string_view kPageEnd = "\t</Page>\r\n";
// Longer ones are not lines of a page any more.
constexpr std::size_t kLongestValue = 64;
// Whole numbers up to this many digits fit 32 bits for certain, and those of a fraction a double.
constexpr int kSafeDigits = 9;
constexpr int kSafeMantissa = 15;

bool isNext(const char* at, const char* end, std::string_view text)
{
    return static_cast<std::size_t>(end - at) >= text.size() &&
           std::memcmp(at, text.data(), text.size()) == 0;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::uint64_t largest(ValueType type)
{
    const int bits = 8 * width(type) - (isSigned(type) ? 1 : 0);
    return bits >= 64 ? std::numeric_limits<std::uint64_t>::max() : (std::uint64_t{1} << bits) - 1;
}

// Whole numbers of few digits; false for any other, which are left to readValue().
bool takeWhole(std::string_view text, const FileForm& form, int bytes, std::uint8_t* to)
{
    const bool negative = text[0] == '-';
    text.remove_prefix(negative ? 1 : 0);
    if (text.empty() || text.size() > kSafeDigits || (negative && !isSigned(form.type)))
        return false;
    std::uint64_t number = 0;
    for (const char character : text) {
        if (!isDigit(character))
            return false;
        number = 10 * number + static_cast<std::uint64_t>(character - '0');
    }
    if (number > largest(form.type))
        return false;
    number = negative ? std::uint64_t{0} - number : number;
    for (int i = 0; i < bytes; ++i)
        to[i] = static_cast<std::uint8_t>(number >> 8 * i);
    return true;
}

// Digits with a point among them: the quotient of two numbers that a double holds is the double next to the
// text, and where that is a float it is the float next to the text.
bool takeFraction(std::string_view text, std::uint8_t* to)
{
    static constexpr double kPowers[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negative = text[0] == '-';
    text.remove_prefix(negative ? 1 : 0);
    if (text.empty() || text.size() > kSafeMantissa || !isDigit(text.front()) || !isDigit(text.back()))
        return false;
    std::int64_t mantissa = 0;
    std::size_t point = text.size() - 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isDigit(text[i]))
            mantissa = 10 * mantissa + (text[i] - '0');
        else if (text[i] == '.' && point == text.size() - 1)
            point = i;
        else
            return false;
    }
    const double number = static_cast<double>(mantissa) / kPowers[text.size() - 1 - point];
    const auto single = static_cast<float>(negative ? -number : number);
    if (static_cast<double>(single) != (negative ? -number : number))
        return false;
    qToLittleEndian(std::bit_cast<quint32>(single), to);
    return true;
}

// False where it is no number.
bool take(std::string_view text, ElementIndex index, std::uint8_t* to)
{
    const FileForm& form = kFileForms[index];
    const bool isTaken = !text.empty() && form.divisor == 1 &&
                         (form.type == ValueType::F32 ? takeFraction(text, to)
                                                      : takeWhole(text, form, kElements[index].width, to));
    return isTaken || readValue(index, text, to);
}

} // namespace

std::size_t UsualPages::take(std::string_view text, RecordStore& records)
{
    if (pageLine_.empty() || !text.starts_with(pageLine_))
        return 0;
    if (lines_.empty())
        prepare();
    const char* at = text.data() + pageLine_.size();
    const char* const end = text.data() + text.size();
    std::uint8_t* to = payload_.data();
    for (const Line& line : lines_) {
        if (!isNext(at, end, line.opening))
            return 0;
        at += line.opening.size();
        const auto room = std::min<std::size_t>(end - at, kLongestValue);
        const auto* const next = static_cast<const char*>(std::memchr(at, '<', room));
        if (!next || !isNext(next, end, line.closing))
            return 0;
        const std::string_view value(at, static_cast<std::size_t>(next - at));
        if (value.find('\n') != value.npos || !vlk::take(value, line.element, to))
            return 0;
        to += kElements[line.element].width;
        at = next + line.closing.size();
    }
    if (!isNext(at, end, kPageEnd))
        return 0;
    records.add(layout_, payload_);
    return static_cast<std::size_t>(at - text.data()) + kPageEnd.size();
}

void UsualPages::remember(std::string_view pageLine, std::uint8_t ver, const FieldMask& mask)
{
    if (pageLine_ == pageLine || !pageLine.ends_with('\n'))
        return;
    pageLine_ = pageLine;
    layout_ = {RecordLayout::Record, kTelemetryRecord, ver, mask, mask};
    for (const ElementIndex head : kAlwaysWritten)
        layout_.held.set(kElements[head].field);
    lines_.clear();
}

void UsualPages::prepare()
{
    for (int i = 0; i < kElementCount; ++i) {
        if (!layout_.held.test(kElements[i].field))
            continue;
        const std::string name(kElements[i].name);
        lines_.push_back({"\t\t<" + name + ">", "</" + name + ">\r\n", static_cast<ElementIndex>(i)});
    }
    payload_.assign(layout_.held.payloadSize(), 0);
}

} // namespace vlk
