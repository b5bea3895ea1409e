#include "windows/carried_text.h"

#include "xml/xml_text.h"

namespace vlk {

QValidator::State CarriedText::validate(QString& text, int& place) const
{
    return sectionText(text) == text ? QRegularExpressionValidator::validate(text, place) : Invalid;
}

} // namespace vlk
