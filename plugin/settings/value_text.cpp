#include "settings/value_text.h"

namespace vlk {

QString captionText(const Setting& setting)
{
    const Shown* shown = setting.shown();
    const Caption parts = captionParts(shown ? shown->captionKey : nullptr,
                                       shown ? shown->captionFormat : "%1", setting.base().numbers.outer);
    return inOneLine(parts.after.isEmpty() ? parts.before
                                           : parts.before + QStringLiteral(" … ") + parts.after);
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
