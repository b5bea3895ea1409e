#include "review/needed_setting.h"

#include "review/value_text.h"

#include <algorithm>
#include <string_view>

namespace vlk::review {

namespace {

// Names with blanks between them.
bool isNamed(std::string_view names, std::string_view name)
{
    for (std::size_t at = names.find(name); at != std::string_view::npos; at = names.find(name, at + 1)) {
        const std::size_t end = at + name.size();
        if ((at == 0 || names[at - 1] == ' ') && (end == names.size() || names[end] == ' '))
            return true;
    }
    return false;
}

bool shows(const Enable& rule, const Setting& setting)
{
    const Shown* shown = setting.shown();
    return rule.effect == Enable::Effect::Shown && !rule.targets.areParts && shown && shown->widget &&
           rule.numbers.outer == shown->numbers.outer && rule.numbers.inner == shown->numbers.inner &&
           rule.targets.form() == shown->widget.form() && isNamed(rule.targets.tail, shown->widget.tail);
}

// From the outermost element inwards, and then of the widget. Null where all are met.
const When* unmetOf(const Values& values, int row)
{
    const TableLayout& layout = values.layout();
    const TableLayout::Row& place = layout.rows[row];
    const QStringList& own = layout.elements[place.group].path;
    for (const TableLayout::Element& element : layout.elements) {
        const bool isAround = element.path.size() <= own.size() &&
                              std::equal(element.path.begin(), element.path.end(), own.begin());
        for (const When* when : {&element.group->present, &element.group->presentToo}) {
            if (isAround && !values.holds(*when))
                return when;
        }
    }
    if (!values.holds(place.base->present))
        return &place.base->present;
    for (const Enable& rule : values.table().all<Enable>()) {
        if (shows(rule, *place.setting) && !values.holds(rule))
            return std::ranges::find_if_not(rule.when, [&](const When& when) { return values.holds(when); });
    }
    return nullptr;
}

} // namespace

std::optional<Needed> neededToShow(const Values& values, int row)
{
    const When* unmet = unmetOf(values, row);
    return unmet ? std::optional(neededFor(values, *unmet)) : std::nullopt;
}

Needed neededFor(const Values& values, const When& unmet)
{
    int needed = unmet.row;
    const char* codes = unmet.codes;
    // What no window shows follows what one does.
    for (const Sets& rule : values.table().all<Sets>()) {
        const Shown* shown = values.setting(needed).shown();
        if (shown && shown->widget)
            break;
        if (rule.path.row == needed && isListed(codes, QLatin1String(rule.to))) {
            needed = rule.when.row;
            codes = rule.when.codes;
        }
    }
    const Setting& setting = values.setting(needed);
    QString text = captionText(setting);
    if (text.isEmpty())
        text = headingText(setting);
    const bool isAnyOther = unmet.negated || unmet.same;
    const QStringList texts = isAnyOther           ? QStringList()
                              : setting.is<Flag>() ? QStringList(yesNo(true))
                              : *codes             ? codeTexts(setting, codes)
                                                   : QStringList();
    if (!texts.isEmpty())
        text += QStringLiteral(": ") + texts.join(QStringLiteral(" / "));
    return {needed, text};
}

} // namespace vlk::review
