#include "settings/table_layout.h"

#include <algorithm>
#include <map>

namespace vlk {

namespace {

void addRows(TableLayout& layout)
{
    for (const Setting& setting : layout.table->rows) {
        const RowBase& base = setting.base();
        const QString name = numberedName(base.pathName(), base.numbers);
        if (const auto* group = setting.as<Group>()) {
            TableLayout::Element element;
            element.group = group;
            element.path = numberedName(base.key, base.numbers).split(QLatin1Char('/'));
            element.name = name;
            element.firstRow = element.endRow = static_cast<int>(layout.rows.size());
            layout.elements.push_back(element);
            continue;
        }
        TableLayout::Element& element = layout.elements.back();
        TableLayout::Row row;
        row.setting = &setting;
        row.base = &base;
        row.key = numberedName(base.key, base.numbers);
        row.group = static_cast<int>(layout.elements.size()) - 1;
        const auto* link = setting.as<Link>();
        row.target = link ? link->target.row : element.endRow;
        row.path = element.name + QLatin1Char('/') + name;
        row.filePath = layout.prefix() + element.path.join(QLatin1Char('/')) + QLatin1Char('/') + row.key;
        layout.byPath.insert(row.path, element.endRow++);
        layout.rows.push_back(row);
    }
}

void joinElements(TableLayout& layout)
{
    for (TableLayout::Element& element : layout.elements) {
        const QStringList above = element.path.mid(0, element.path.size() - 1);
        for (std::size_t other = 0; other < layout.elements.size() && !above.isEmpty(); ++other) {
            if (layout.elements[other].path != above)
                continue;
            element.parent = static_cast<int>(other);
            layout.elements[other].nested = true;
        }
    }
    for (TableLayout::Element& element : layout.elements) {
        const auto first = layout.rows.begin() + element.firstRow;
        const auto end = layout.rows.begin() + element.endRow;
        element.stored = element.nested || first == end ||
                         std::any_of(first, end, [](const auto& row) { return row.base->stored; });
    }
    // What lives in the window alone is not in the file: beside values that are, it starts anew, and links
    // and rules fill it; an element of its own is left as it stands.
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        const RowBase& base = *layout.rows[row].base;
        if (!base.stored && base.missing == Missing::loadDefault &&
            layout.elements[layout.rows[row].group].stored)
            layout.anew.push_back(static_cast<int>(row));
    }
}

void addShared(TableLayout& layout, const ExclusiveChoice& rule)
{
    const QString name = numberedName(rule.list, rule.numbers);
    auto& lists = layout.sharedLists;
    auto list =
        std::find_if(lists.begin(), lists.end(), [&](const auto& known) { return known.name == name; });
    if (list == lists.end())
        list = lists.insert(lists.end(), {name, {}, std::vector<bool>(layout.rows.size())});
    for (const int row : {rule.path.row, rule.when.row, rule.also.row, rule.split.row}) {
        if (row >= 0)
            list->triggers[row] = true;
    }
    list->members.push_back({&rule, numberedName(rule.holder, rule.numbers)});
}

// A row is asked for its rules, and there are many of both.
void addRules(TableLayout& layout)
{
    const auto add = [&](int row, auto TableLayout::Row::*rules, const auto& rule) {
        if (row >= 0)
            (layout.rows[row].*rules).push_back(&rule);
    };
    using Row = TableLayout::Row;
    for (const Sets& rule : layout.table->sets) {
        if (rule.moment == Moment::edit || rule.moment == Moment::editOrRead)
            add(rule.when.row, &Row::sets, rule);
        else if (rule.moment == Moment::save)
            add(rule.path.row, &Row::saves, rule);
    }
    for (const RangeWhen& rule : layout.table->ranges) {
        add(rule.path.row, &Row::ranges, rule);
        if (rule.startsOver)
            add(rule.when.row, &Row::startOver, rule);
    }
    for (const Distance& rule : layout.table->distances) {
        for (const int row : {rule.first.row, rule.second.row, rule.gapFrom.row})
            add(row, &Row::distances, rule);
    }
    for (const ExclusiveChoice& rule : layout.table->exclusives)
        addShared(layout, rule);
}

} // namespace

QString numberedName(std::string_view name, Numbers numbers)
{
    QString text = QString::fromLatin1(name.data(), static_cast<int>(name.size()));
    if (numbers.outer > 0)
        text.replace(QLatin1String("%1"), QString::number(numbers.outer));
    if (numbers.inner > 0)
        text.replace(QLatin1String("%2"), QString::number(numbers.inner));
    return text;
}

QStringList targetNames(const Enable& rule)
{
    return numberedName(rule.targets.names, rule.numbers).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const TableLayout& layoutOf(const SettingsTable& table)
{
    static std::map<const SettingsTable*, TableLayout> layouts;
    const auto [place, isNew] = layouts.try_emplace(&table);
    if (isNew) {
        TableLayout& layout = place->second;
        layout.table = &table;
        layout.section = QString::fromLatin1(table.section);
        addRows(layout);
        joinElements(layout);
        addRules(layout);
    }
    return place->second;
}

} // namespace vlk
