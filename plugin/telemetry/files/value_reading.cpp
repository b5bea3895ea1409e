#include "telemetry/files/value_reading.h"

#include "telemetry/files/file_form.h"
#include "telemetry/files/number_text.h"

#include <QtEndian>

#include <cmath>
#include <limits>

namespace vlk {

namespace {

template <class Number>
bool put(std::string_view text, std::uint8_t* to)
{
    const std::optional<Number> number = numberIn<Number>(text);
    qToLittleEndian(number.value_or(Number{}), to);
    return number.has_value();
}

// The whole number next to the display value times its divisor, so that 1.2 is 12 again.
template <class Number>
bool putScaled(std::string_view text, int divisor, std::uint8_t* to)
{
    const std::optional<double> number = numberIn<double>(text);
    const double scaled = std::round(number.value_or(0) * divisor);
    const bool fits =
        scaled >= std::numeric_limits<Number>::min() && scaled <= std::numeric_limits<Number>::max();
    qToLittleEndian(fits ? static_cast<Number>(scaled) : Number{}, to);
    return number && fits;
}

} // namespace

bool readValue(ElementIndex index, std::string_view text, std::uint8_t* to)
{
    const FileForm& form = kFileForms[index];
    if (form.divisor != 1) {
        if (form.type == ValueType::U8)
            return putScaled<quint8>(text, form.divisor, to);
        return putScaled<qint32>(text, form.divisor, to);
    }
    switch (form.type) {
    case ValueType::U8:
        return put<quint8>(text, to);
    case ValueType::U16:
        return put<quint16>(text, to);
    case ValueType::U32:
        return put<quint32>(text, to);
    case ValueType::U64:
        return put<quint64>(text, to);
    case ValueType::I8:
        return put<qint8>(text, to);
    case ValueType::I16:
        return put<qint16>(text, to);
    case ValueType::I32:
        return put<qint32>(text, to);
    case ValueType::I64:
        return put<qint64>(text, to);
    case ValueType::F32:
        return put<float>(text, to);
    }
    return false;
}

} // namespace vlk
