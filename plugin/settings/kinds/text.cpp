#include "settings/kinds/text.h"

#include "base/masked_text.h"
#include "base/model_text.h"
#include "base/translated.h"
#include "xml/xml_text.h"

namespace vlk {

QString fileText(const Text&, const DefaultText& text)
{
    const QString format = QString::fromUtf8(text.format);
    if (text.namesModel)
        return format.arg(modelText());
    return text.key ? format.arg(translated(text.key)) : format;
}

QString normalised(const Text& row, const Reading& reading)
{
    const QString carried = sectionText(reading.text);
    return row.mask ? maskedText(QString::fromLatin1(row.mask), carried)
                    : carried.left(row.maxLength > 0 ? row.maxLength : carried.size());
}

} // namespace vlk
