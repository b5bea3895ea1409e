#pragma once

// The value of an element as the XML form has it, told by file_form.h.

#include "telemetry/files/file_form.h"
#include "telemetry/files/number_text.h"
#include "telemetry/record/element_values.h"

#include <cmath>

namespace vlk {

// Hands an integer, or a double that is to be written in its shortest text, to `put`.
template <class Put>
void withFileNumber(ElementIndex index, std::uint64_t raw, Put put)
{
    const FileForm& form = kFileForms[index];
    const ValueType type = kElements[index].type;
    if (form.divisor != 1)
        put(numberOf(raw, type) / form.divisor);
    else if (form.type == ValueType::F32)
        put(numberOf(raw, type));
    else if (form.type == ValueType::I16)
        put(static_cast<std::int16_t>(raw));
    else if (isSigned(form.type))
        put(integerOf(raw, type));
    else
        put(raw);
}

} // namespace vlk
