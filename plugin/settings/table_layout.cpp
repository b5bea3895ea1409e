#include "settings/table_layout.h"

#include <algorithm>
#include <map>
#include <mutex>

namespace vlk {

namespace {

void addRows(TableLayout& layout)
{
    QString elementName;
    QString elementPlace;
    for (const Setting& setting : layout.table->rows) {
        const RowBase& base = setting.base();
        const QString key = numberedName(base.key, base.numbers);
        const QString name = base.name ? numberedName(base.name, base.numbers) : key;
        const int place = static_cast<int>(layout.rows.size());
        if (const auto* group = setting.as<Group>()) {
            const QStringList path = key.split(QLatin1Char('/'));
            for (TableLayout::Element& above : layout.elements)
                above.nested = above.nested || above.path == path.mid(0, path.size() - 1);
            layout.elements.push_back({group, path, false, false, place, place});
            elementName = name + QLatin1Char('/');
            elementPlace = layout.prefix() + key + QLatin1Char('/');
            continue;
        }
        TableLayout::Element& element = layout.elements.back();
        element.endRow = place + 1;
        element.stored = element.stored || base.stored;
        const auto* link = setting.as<Link>();
        layout.rows.push_back({.setting = &setting,
                               .base = &base,
                               .path = elementName + name,
                               .filePath = elementPlace + key,
                               .key = key,
                               .group = static_cast<int>(layout.elements.size()) - 1,
                               .target = link ? link->target.row : place});
        if (const auto* text = setting.as<Text>(); text && text->load.follows())
            layout.following.push_back(place);
        else
            layout.rows.back().load = loadDefault(setting);
        layout.byPath.insert(layout.rows.back().path, place);
    }
}

// Once it is known what an element holds.
void addStored(TableLayout& layout)
{
    // What is in the file with others in it, or without a row.
    for (TableLayout::Element& element : layout.elements)
        element.stored = element.stored || element.nested || element.firstRow == element.endRow;
    // What lives in the window alone is not in the file: beside values that are, it starts anew, and links
    // and rules fill it; an element of its own is left as it stands.
    for (const TableLayout::Row& row : layout.rows) {
        if (!row.base->stored && row.base->missing == Missing::LoadDefault &&
            layout.elements[row.group].stored)
            layout.anew.push_back(row.target);
    }
}

// A row is asked for its rules, and there are many of both.
void addRules(TableLayout& layout)
{
    using Row = TableLayout::Row;
    const auto add = [&](auto Row::*list, const auto& item, auto... rows) {
        for (const int row : {rows...}) {
            if (row < 0)
                continue;
            auto& known = layout.rows[row].*list;
            if (std::ranges::find(known, item) == known.end())
                known.push_back(item);
        }
    };
    for (const Sets& rule : layout.table->all<Sets>()) {
        if (rule.moment == Moment::Edit || rule.moment == Moment::EditOrRead)
            add(&Row::sets, &rule, rule.when.row);
        else if (rule.moment == Moment::Save)
            add(&Row::saves, &rule, rule.path.row);
        else
            (rule.moment == Moment::Always ? layout.always : layout.afterRead).push_back(&rule);
    }
    for (const RangeWhen& rule : layout.table->all<RangeWhen>()) {
        add(&Row::ranges, &rule, rule.path.row);
        add(&Row::follows, &rule, rule.when.row);
    }
    for (const Distance& rule : layout.table->all<Distance>())
        add(&Row::distances, &rule, rule.first.row, rule.second.row, rule.gapFrom.row);
    for (const Presets& rule : layout.table->all<Presets>())
        add(&Row::presets, &rule, rule.trigger.row);
    for (const ExclusiveChoice& sharer : layout.table->all<ExclusiveChoice>()) {
        for (const ExclusiveChoice& rule : layout.table->all<ExclusiveChoice>()) {
            if (rule.listHash == sharer.listHash)
                add(&Row::sharers, &sharer, rule.path.row, rule.when.row, rule.also.row, rule.split.row);
        }
    }
}

} // namespace

const TableLayout& layoutOf(const SettingsTable& table)
{
    // Many files are read in several threads at once.
    static std::mutex mutex;
    static std::map<const SettingsTable*, TableLayout> layouts;
    const std::lock_guard lock(mutex);
    const auto [place, isNew] = layouts.try_emplace(&table);
    if (isNew) {
        TableLayout& layout = place->second;
        layout.table = &table;
        layout.section = QString::fromLatin1(table.section);
        addRows(layout);
        addStored(layout);
        addRules(layout);
    }
    return place->second;
}

} // namespace vlk
