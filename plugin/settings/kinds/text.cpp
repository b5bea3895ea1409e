#include "settings/kinds/text.h"

#include "base/masked_text.h"
#include "base/model_text.h"
#include "base/translated.h"

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
    if (row.mask)
        return maskedText(QString::fromLatin1(row.mask), reading.text);
    return row.maxLength > 0 ? reading.text.left(row.maxLength) : reading.text;
}

} // namespace vlk
