#include "review/setting_words.h"

#include "base/shown_text.h"
#include "review/value_text.h"

namespace vlk::review {

SettingWords wordsOf(const TableLayout& layout, int row)
{
    const TableLayout::Row& place = layout.rows[row];
    const Setting& holder = *layout.rows[place.target].setting;
    SettingWords words{inOneLine(translated(layout.table->title)), headingText(*place.setting),
                       captionText(holder)};
    if (words.caption.isEmpty())
        words.caption = holder.shown() && (holder.shown()->widget || holder.is<Digits>())
                            ? words.group.section(QStringLiteral(" / "), -1)
                            : place.key;
    return words;
}

QString placeText(const SettingWords& words)
{
    QStringList parts{words.group, words.caption};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace vlk::review
