#include "review/setting_words.h"

#include "base/shown_text.h"
#include "review/setting_parts.h"
#include "review/value_text.h"

#include <algorithm>

namespace vlk::review {

namespace {

// What no window shows, by the end of its path in the file.
struct Unshown
{
    const char* end;
    const char* caption;
};
constexpr Unshown kUnshown[] = {
    {"/MOVESENS/mode", "rev_240"},  {"/pullUp", "rev_241"},          {"/thld", "cfgt8_017"},
    {"/trhldOff", "cfgt8_018"},     {"/CHANNEL1/device", "rev_242"}, {"/CHANNEL1/macaddr", "rev_243"},
    {"/CHANNEL1/pass", "rev_244"},  {"/oper", "cfgt17_059"},         {"/type", "cfgt17_025"},
    {"/OPTIONS/owner2", "rev_247"}, {"/lowLvl", "cfgt8_024"},        {"/highLvl", "cfgt8_025"},
};

QString captionOfUnshown(const TableLayout::Row& row)
{
    const auto found = std::ranges::find_if(
        kUnshown, [&](const Unshown& unshown) { return row.filePath.endsWith(QLatin1String(unshown.end)); });
    return found == std::end(kUnshown) ? row.key : inOneLine(translated(found->caption));
}

// A choice may be one box to tick, which says what it chooses.
QString boxText(const Setting& setting)
{
    const auto* choice = setting.as<Choice>();
    if (!choice || std::ranges::count_if(choice->codes, [](const Code& code) { return !!code.widget; }) != 1)
        return {};
    return codeText(*std::ranges::find_if(choice->codes, [](const Code& code) { return !!code.widget; }));
}

bool isAlike(const TableLayout& layout, int row, int other)
{
    const TableLayout::Row& own = layout.rows[row];
    const TableLayout::Row& beside = layout.rows[other];
    const RowBase& base = own.setting->base();
    const RowBase& besideBase = beside.setting->base();
    return beside.group != own.group && beside.key == own.key && besideBase.heading == base.heading &&
           besideBase.numbers.outer == base.numbers.outer && besideBase.numbers.inner == base.numbers.inner;
}

// Each use of a line and each type of sensor has an element of its own, with keys that others have too; one
// heading stands above all. Which it is, "Frequency input"; the name of the element where no list has it.
// Nothing for what all uses share.
QString useText(const TableLayout& layout, int row)
{
    if (layout.rows[row].group < 0 || layout.rows[row].target != row)
        return {};
    const TableLayout::Element& element = layout.elements[layout.rows[row].group];
    const When& when = element.group->present;
    if (when.row < 0 || when.negated || when.same)
        return {};
    for (int other = 0; other < static_cast<int>(layout.rows.size()); ++other) {
        if (!isAlike(layout, row, other))
            continue;
        const QStringList uses = codeTexts(*layout.rows[when.row].setting, when.codes);
        return uses.isEmpty() ? element.path.last() : uses.join(QStringLiteral(" / "));
    }
    return {};
}

} // namespace

SettingWords wordsOf(const TableLayout& layout, int row)
{
    const TableLayout::Row& place = layout.rows[row];
    const Setting& holder = *layout.rows[place.target].setting;
    SettingWords words{inOneLine(translated(layout.table->title)), headingText(*place.setting),
                       captionText(holder)};
    if (words.caption.isEmpty())
        words.caption = boxText(holder);
    if (words.caption.isEmpty())
        words.caption =
            canBeShown(holder) ? words.group.section(QStringLiteral(" / "), -1) : captionOfUnshown(place);
    if (const QString use = useText(layout, row); !use.isEmpty())
        words.caption += QStringLiteral(" (%1)").arg(use);
    return words;
}

QString placeText(const SettingWords& words)
{
    QStringList parts{words.group, words.caption};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace vlk::review
