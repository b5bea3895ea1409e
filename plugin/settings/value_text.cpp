#include "settings/value_text.h"

#include "settings/kinds/spelling.h"

namespace vlk {

namespace {

// Without the sign behind it that tells that something follows.
QString bare(QString title)
{
    while (title.endsWith(QLatin1Char(':')) || title.endsWith(QChar(0x2026)))
        title.chop(1);
    return title;
}

} // namespace

QString captionText(const Setting& setting)
{
    const Shown* shown = setting.shown();
    const Caption parts = captionParts(shown ? shown->captionKey : nullptr,
                                       shown ? shown->captionFormat : "%1", setting.base().numbers.outer);
    return bare(
        inOneLine(parts.after.isEmpty() ? parts.before : parts.before + QStringLiteral(" … ") + parts.after));
}

QString headingText(const Setting& setting)
{
    const Numbers numbers = setting.base().numbers;
    QString text;
    for (const Heading* heading = setting.base().heading; heading && *heading->title;
         heading = heading->above) {
        const QString title = QString::fromLatin1(heading->format)
                                  .replace(QLatin1String("%3"), QString::number(numbers.inner))
                                  .replace(QLatin1String("%2"), QString::number(numbers.outer))
                                  .replace(QLatin1String("%1"), bare(inOneLine(translated(heading->title))));
        text = text.isEmpty() ? title : title + QStringLiteral(" / ") + text;
    }
    return text;
}

QString valueText(const Values& values, int row)
{
    return valueText(values, row, values.value(row));
}

QString valueText(const Values& values, int row, const QString& value)
{
    if (values.row(row).base->secret && !value.isEmpty())
        return QStringLiteral("•••");
    return valueText(values.setting(values.holder(row)), value, values.unitKey(row));
}

} // namespace vlk
