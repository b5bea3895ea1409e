#include "base/numbered_name.h"

namespace vlk {

QString numberedName(std::string_view name, Numbers numbers)
{
    QString text = QString::fromLatin1(name.data(), static_cast<int>(name.size()));
    // Most names have no place for one.
    const bool isNumbered = name.find('%') != std::string_view::npos;
    if (isNumbered && numbers.outer > 0)
        text.replace(QLatin1String("%1"), QString::number(numbers.outer));
    if (isNumbered && numbers.inner > 0)
        text.replace(QLatin1String("%2"), QString::number(numbers.inner));
    return text;
}

} // namespace vlk
