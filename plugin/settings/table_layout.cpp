#include "settings/table_layout.h"

#include <algorithm>
#include <map>
#include <memory>

namespace vlk {

namespace {

class LayoutMaker
{
public:
    explicit LayoutMaker(const SettingsTable& table)
    {
        layout_.table = &table;
        layout_.section = QString::fromLatin1(table.section);
    }

    TableLayout make()
    {
        addRows();
        joinRows();
        addRules();
        return std::move(layout_);
    }

private:
    void addRows()
    {
        for (const Setting& setting : layout_.table->rows) {
            if (setting.kind == Kind::group) {
                TableLayout::Group group;
                group.path = numberedName(setting.key, setting.number, setting.inner).split(QLatin1Char('/'));
                group.name = setting.name ? numberedName(setting.name, setting.number, setting.inner)
                                          : group.path.join(QLatin1Char('/'));
                group.kept = setting.kept;
                group.unlessEmpty = setting.unlessEmpty;
                group.number = setting.number;
                group.firstRow = group.endRow = static_cast<int>(layout_.rows.size());
                layout_.groups.push_back(group);
                groupSettings_.push_back(&setting);
                continue;
            }
            TableLayout::Row row;
            row.setting = &setting;
            row.key = numberedName(setting.key, setting.number, setting.inner);
            row.group = static_cast<int>(layout_.groups.size()) - 1;
            row.target = static_cast<int>(layout_.rows.size());
            QString below =
                setting.name ? numberedName(setting.name, setting.number, setting.inner) : row.key;
            row.filePath = row.key;
            if (row.group >= 0) {
                TableLayout::Group& group = layout_.groups.back();
                below = group.name + QLatin1Char('/') + below;
                row.filePath = group.path.join(QLatin1Char('/')) + QLatin1Char('/') + row.key;
                ++group.endRow;
            }
            row.path = layout_.prefix() + below;
            row.filePath = layout_.prefix() + row.filePath;
            if (layout_.byPath.contains(below))
                layout_.problems << row.path + QStringLiteral(" stands twice");
            layout_.byPath.insert(below, row.target);
            layout_.rows.push_back(row);
        }
    }

    // Conditions and links name rows that may come later.
    void joinRows()
    {
        for (TableLayout::Row& row : layout_.rows) {
            const Setting& setting = *row.setting;
            row.present = conditions(setting, setting.present, setting.presentToo);
            row.free = condition(setting.free, setting.number, setting.inner);
            if (setting.kind == Kind::link)
                row.target = rowAt(setting.target, setting.number, setting.inner);
        }
        for (std::size_t i = 0; i < layout_.groups.size(); ++i) {
            TableLayout::Group& group = layout_.groups[i];
            const Setting& setting = *groupSettings_[i];
            group.present = conditions(setting, setting.present, setting.presentToo);
            group.readable = setting.readOtherwise
                                 ? conditions(setting, setting.readable, setting.readableToo)
                                 : group.present;
            const QStringList above = group.path.mid(0, group.path.size() - 1);
            for (std::size_t other = 0; other < layout_.groups.size() && !above.isEmpty(); ++other) {
                if (layout_.groups[other].path != above)
                    continue;
                group.parent = static_cast<int>(other);
                layout_.groups[other].nested = true;
            }
            if (group.parent < 0 && !above.isEmpty())
                layout_.problems << QStringLiteral("no element around %1").arg(group.name);
            const auto first = layout_.rows.begin() + group.firstRow;
            const auto end = layout_.rows.begin() + group.endRow;
            group.stored =
                first == end || std::any_of(first, end, [](const auto& row) { return row.setting->stored; });
        }
        for (TableLayout::Group& group : layout_.groups)
            group.stored = group.stored || group.nested;
        // What lives in the window alone is not in the file: beside values that are, it starts anew, and
        // links and rules fill it; a group of its own is left as it stands.
        for (const TableLayout::Row& row : layout_.rows) {
            const Setting& setting = *row.setting;
            if (!setting.stored && !setting.stays && (row.group < 0 || layout_.groups[row.group].stored))
                layout_.anew.push_back(static_cast<int>(&row - layout_.rows.data()));
        }
    }

    // Configuration asks a row for its rules, and there are many of both.
    void addTo(int row, std::vector<int> TableLayout::Row::*rules, std::size_t rule)
    {
        if (row >= 0)
            (layout_.rows[row].*rules).push_back(static_cast<int>(rule));
    }

    void addRules()
    {
        const SettingsTable& table = *layout_.table;
        for (const Pull& rule : table.pulls)
            layout_.pulls.push_back({condition(rule.when, rule.number, rule.inner),
                                     rowAt(rule.set, rule.number, rule.inner), QString::fromLatin1(rule.to),
                                     rule.onRead, condition(rule.also, rule.number, rule.inner), rule.onset});
        for (const Bound& rule : table.bounds)
            layout_.bounds.push_back({condition(rule.when, rule.number, rule.inner),
                                      rowAt(rule.path, rule.number, rule.inner),
                                      QString::fromLatin1(rule.to)});
        for (const Distance& rule : table.distances)
            layout_.distances.push_back({rowAt(rule.first, rule.number, rule.inner),
                                         rowAt(rule.second, rule.number, rule.inner), rule.gap,
                                         rule.gapFrom ? rowAt(rule.gapFrom, rule.number, rule.inner) : -1,
                                         numberedName(rule.slider, rule.number, rule.inner)});
        for (const RangeWhen& rule : table.ranges)
            layout_.ranges.push_back({condition(rule.when, rule.number, rule.inner),
                                      rowAt(rule.path, rule.number, rule.inner), &rule});
        for (std::size_t i = 0; i < layout_.ranges.size(); ++i) {
            addTo(layout_.ranges[i].row, &TableLayout::Row::ranges, i);
            if (layout_.ranges[i].rule->startsOver)
                addTo(layout_.ranges[i].when.row, &TableLayout::Row::startOver, i);
        }
        for (std::size_t i = 0; i < layout_.pulls.size(); ++i)
            addTo(layout_.pulls[i].when.row, &TableLayout::Row::pulls, i);
        for (std::size_t i = 0; i < layout_.distances.size(); ++i) {
            const TableLayout::Distance& rule = layout_.distances[i];
            for (const int row : {rule.first, rule.second, rule.gapFrom})
                addTo(row, &TableLayout::Row::distances, i);
        }
        for (const Sole& rule : table.soles)
            addSole(rule);
        for (const Presets& rule : table.presets) {
            TableLayout::Presets presets{rowAt(rule.trigger, rule.number, rule.inner), {}, &rule};
            for (const char* field : rule.fields) {
                if (field)
                    presets.fields.push_back(rowAt(field, rule.number, rule.inner));
            }
            layout_.presets.push_back(presets);
        }
        for (const Derived& rule : table.derived)
            layout_.derived.push_back(
                {rowAt(rule.path, rule.number, rule.inner), conditions(rule, rule.any)});
        for (const MaskPositions& rule : table.masks)
            layout_.masks.push_back(
                {rowAt(rule.path, rule.number, rule.inner), conditions(rule, rule.when), &rule});
        for (const Doubt& rule : table.doubts)
            layout_.doubts.push_back(
                {rowAt(rule.path, rule.number, rule.inner), conditions(rule, rule.when), &rule});
        for (const Enable& rule : table.enables) {
            TableLayout::Enable enable;
            enable.targets = numberedName(rule.targets, rule.number, rule.inner)
                                 .split(QLatin1Char(' '), Qt::SkipEmptyParts);
            enable.when = conditions(rule, rule.when);
            enable.any = rule.any;
            enable.number = rule.number;
            enable.shows = rule.effect == Enable::Effect::shown;
            layout_.enables.push_back(enable);
        }
    }

    TableLayout::Condition condition(const When& when, int number, int inner)
    {
        if (!when.path)
            return {};
        return {rowAt(when.path, number, inner),
                QString::fromLatin1(when.codes).split(QLatin1Char('|'), Qt::SkipEmptyParts), when.negated,
                when.other ? rowAt(when.other, number, inner) : -1};
    }

    void addSole(const Sole& rule)
    {
        const QString name = numberedName(rule.list, rule.number, rule.inner);
        auto& lists = layout_.soleLists;
        auto list =
            std::find_if(lists.begin(), lists.end(), [&](const auto& known) { return known.name == name; });
        if (list == lists.end())
            list = lists.insert(lists.end(), {name, {}, std::vector<bool>(layout_.rows.size())});
        const TableLayout::Sole sole{
            rowAt(rule.path, rule.number, rule.inner), condition(rule.when, rule.number, rule.inner),
            condition(rule.also, rule.number, rule.inner), numberedName(rule.holder, rule.number, rule.inner),
            rule.split ? rowAt(rule.split, rule.number, rule.inner) : -1};
        for (const int row : {sole.row, sole.when.row, sole.also.row, sole.split}) {
            if (row >= 0)
                list->triggers[row] = true;
        }
        list->soles.push_back(sole);
    }

    // Those that name a row, with the numbers of `owner`.
    template <class Owner, std::size_t count>
    std::vector<TableLayout::Condition> conditions(const Owner& owner, const std::array<When, count>& list)
    {
        std::vector<TableLayout::Condition> all;
        for (const When& when : list) {
            if (when.path)
                all.push_back(condition(when, owner.number, owner.inner));
        }
        return all;
    }

    std::vector<TableLayout::Condition> conditions(const Setting& setting, When first, When second)
    {
        return conditions(setting, std::array<When, 2>{first, second});
    }

    int rowAt(const char* path, int number, int inner)
    {
        const QString name = numberedName(path, number, inner);
        const int row = layout_.rowAt(name);
        if (row < 0)
            layout_.problems << QStringLiteral("no row %1%2").arg(layout_.prefix(), name);
        return row;
    }

    TableLayout layout_;
    std::vector<const Setting*> groupSettings_;
};

} // namespace

QString numberedName(const char* name, int number, int inner)
{
    QString text = QString::fromLatin1(name);
    if (number > 0)
        text.replace(QLatin1String("%1"), QString::number(number));
    if (inner > 0)
        text.replace(QLatin1String("%2"), QString::number(inner));
    return text;
}

const TableLayout& layoutOf(const SettingsTable& table)
{
    static std::map<const SettingsTable*, std::unique_ptr<const TableLayout>> layouts;
    std::unique_ptr<const TableLayout>& layout = layouts[&table];
    if (!layout)
        layout = std::make_unique<const TableLayout>(LayoutMaker(table).make());
    return *layout;
}

} // namespace vlk
