#include "settings/configuration.h"

#include "base/number_text.h"
#include "xml/xml_section.h"

#include <algorithm>
#include <utility>

namespace vlk {

Configuration::Configuration(std::vector<const SettingsTable*> tables)
{
    for (const SettingsTable* table : tables) {
        const TableLayout& layout = layoutOf(*table);
        const int first = count();
        parts_.push_back({&layout, first});
        values_.resize(values_.size() + layout.rows.size());
        partOfIndex_.resize(values_.size(), static_cast<int>(parts_.size()) - 1);
        for (std::size_t row = 0; row < layout.rows.size(); ++row)
            byPath_.insert(layout.rows[row].path, first + static_cast<int>(row));
    }
    // A choice that keeps its value and a row that a reset leaves alone start at their load defaults.
    for (int i = 0; i < count(); ++i)
        values_[i] = loadDefault(setting(i));
    reset();
    for (int i = 0; i < count(); ++i) {
        if (setting(i).resets == Setting::Reset::keeps)
            values_[i] = normalise(setting(i), loadDefault(setting(i)), {}, limits(i)).value;
    }
}

const Configuration::Part& Configuration::partOf(int index) const
{
    return parts_[partOfIndex_.at(index)];
}

const Configuration::Part& Configuration::partOf(const SettingsTable& table) const
{
    const auto found = std::find_if(parts_.begin(), parts_.end(),
                                    [&](const Part& part) { return part.layout->table == &table; });
    Q_ASSERT(found != parts_.end());
    return *found;
}

int Configuration::firstOf(const SettingsTable& table) const
{
    return partOf(table).first;
}

const TableLayout::Row& Configuration::row(int index) const
{
    const Part& part = partOf(index);
    return part.layout->rows[index - part.first];
}

const QString& Configuration::value(int index) const
{
    static const QString none;
    if (index < 0 || index >= count())
        return none;
    return values_[holder(index)];
}

int Configuration::holder(int index) const
{
    const Part& part = partOf(index);
    return part.first + part.layout->rows[index - part.first].target;
}

bool Configuration::isWritten(int index) const
{
    const Part& part = partOf(index);
    const TableLayout::Row& row = part.layout->rows[index - part.first];
    return row.setting->stored && holds(part, row.present) &&
           (row.group < 0 || holds(part, part.layout->groups[row.group].present));
}

QString Configuration::written(int index) const
{
    const Part& part = partOf(index);
    const TableLayout::Row& row = part.layout->rows[index - part.first];
    if (!holds(part, row.free))
        return QString::fromLatin1(row.setting->otherwise);
    const QString& value = this->value(index);
    return row.setting->blankIsZero && value.isEmpty() ? QStringLiteral("0") : value;
}

bool Configuration::holds(const Part& part, const TableLayout::Condition& condition) const
{
    if (condition.row < 0)
        return true;
    const QString& value = this->value(part.first + condition.row);
    const bool is = condition.codes.isEmpty() ? !value.isEmpty() && value != QLatin1String("0")
                                              : condition.codes.contains(value);
    return is != condition.negated;
}

bool Configuration::holds(const SettingsTable& table, const TableLayout::Enable& rule) const
{
    const Part& part = partOf(table);
    const auto one = [&](const TableLayout::Condition& condition) { return holds(part, condition); };
    return rule.any ? std::any_of(rule.when.begin(), rule.when.end(), one)
                    : std::all_of(rule.when.begin(), rule.when.end(), one);
}

double Configuration::gapOf(const SettingsTable& table, const TableLayout::Distance& rule) const
{
    return gapOf(partOf(table), rule);
}

double Configuration::gapOf(const Part& part, const TableLayout::Distance& rule) const
{
    return rule.gap + (rule.gapFrom >= 0 ? values_[part.first + rule.gapFrom].toDouble() : 0);
}

Limits Configuration::limits(int index) const
{
    const Part& part = partOf(index);
    const int row = part.layout->rows[index - part.first].target;
    const Setting& setting = *part.layout->rows[row].setting;
    Limits limits{setting.least, setting.most};
    for (const TableLayout::RangeWhen& rule : part.layout->ranges) {
        if (rule.row == row && holds(part, rule.when))
            limits = {rule.rule->least, rule.rule->most};
    }
    // Each of two handles leaves the other one its room.
    for (const TableLayout::Distance& rule : part.layout->distances) {
        if (rule.gapFrom < 0 && row == rule.first)
            limits.most = part.layout->rows[rule.second].setting->most - rule.gap;
        else if (rule.gapFrom < 0 && row == rule.second)
            limits.least = part.layout->rows[rule.first].setting->least + rule.gap;
    }
    return limits;
}

const char* Configuration::unitKey(int index) const
{
    const Part& part = partOf(index);
    const int row = part.layout->rows[index - part.first].target;
    const char* unit = part.layout->rows[row].setting->unitKey;
    for (const TableLayout::RangeWhen& rule : part.layout->ranges) {
        if (rule.row == row && rule.rule->unit && holds(part, rule.when))
            unit = rule.rule->unit;
    }
    return unit;
}

void Configuration::reset()
{
    for (const Part& part : parts_)
        resetPart(part);
}

void Configuration::reset(const SettingsTable& table)
{
    resetPart(partOf(table));
}

void Configuration::resetPart(const Part& part)
{
    const int rows = static_cast<int>(part.layout->rows.size());
    for (int row = 0; row < rows; ++row) {
        const Setting& setting = *part.layout->rows[row].setting;
        if (setting.resets == Setting::Reset::keeps || setting.kind == Kind::link)
            continue;
        const int index = part.first + row;
        values_[index] = normalise(setting, resetValue(setting), values_[index], limits(index)).value;
    }
    for (const TableLayout::Distance& rule : part.layout->distances) {
        if (rule.gapFrom >= 0)
            keepDistances(part, rule.gapFrom, nullptr);
    }
    keepBounds(part, nullptr);
}

std::vector<ReadNote> Configuration::read(const CXmlSection& root)
{
    std::vector<ReadNote> notes;
    for (const Part& part : parts_)
        readPart(part, root, &notes);
    return notes;
}

std::vector<ReadNote> Configuration::read(const CXmlSection& root, const SettingsTable& table)
{
    std::vector<ReadNote> notes;
    readPart(partOf(table), root, &notes);
    return notes;
}

namespace {

CXmlSectionPtr elementOf(const CXmlSection& section, const QStringList& path)
{
    CXmlSectionPtr element = section.child(path.first());
    for (int i = 1; i < path.size() && element; ++i)
        element = element->child(path[i]);
    return element;
}

// What stands in `element` and is none of the known names, or twice.
void noteStrangers(const CXmlSection& element, const QString& path, const QStringList& keys,
                   const QStringList& elements, std::vector<ReadNote>* notes)
{
    QStringList seen;
    for (const CXmlSection::Entry& entry : element.entries()) {
        ReadNote note;
        note.path = path + QLatin1Char('/') + entry.name;
        if (!keys.contains(entry.name) && !(entry.isElement && elements.contains(entry.name)))
            note.what = entry.isElement ? ReadNote::What::foreignElement : ReadNote::What::foreignKey;
        else if (entry.isElement && seen.contains(entry.name))
            note.what = ReadNote::What::doubledElement;
        else {
            if (entry.isElement)
                seen << entry.name;
            continue;
        }
        notes->push_back(note);
    }
}

} // namespace

void Configuration::readPart(const Part& part, const CXmlSection& root, std::vector<ReadNote>* notes)
{
    const TableLayout& layout = *part.layout;
    const CXmlSectionPtr section = root.child(layout.section);
    if (!section)
        return;
    QStringList elements;
    for (const TableLayout::Group& group : layout.groups)
        elements << group.path.first();
    noteStrangers(*section, layout.section, {QStringLiteral("page")}, elements, notes);

    // What lives in the window alone is not in the file: it starts anew, and links and rules fill it.
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        const Setting& setting = *layout.rows[row].setting;
        const int index = part.first + static_cast<int>(row);
        if (!setting.stored)
            values_[index] = normalise(setting, loadDefault(setting), values_[index], limits(index)).value;
    }
    std::vector<std::pair<int, CXmlSectionPtr>> late;
    for (const TableLayout::Group& group : layout.groups) {
        if (!holds(part, group.present))
            continue;
        const CXmlSectionPtr element = elementOf(*section, group.path);
        QStringList keys;
        for (int row = group.firstRow; row < group.endRow; ++row) {
            keys << layout.rows[row].key;
            if (layout.rows[row].setting->last)
                late.emplace_back(row, elementOf(*section, group.path));
            else
                readRow(part, row, *element, notes);
        }
        QStringList inside;
        for (const TableLayout::Group& other : layout.groups) {
            if (other.path.size() == group.path.size() + 1 &&
                other.path.mid(0, group.path.size()) == group.path)
                inside << other.path.last();
        }
        noteStrangers(*element, layout.section + QLatin1Char('/') + group.path.join(QLatin1Char('/')), keys,
                      inside, notes);
    }
    for (const auto& [row, element] : late)
        readRow(part, row, *element, notes);
    derive(part);
    std::vector<int> bound;
    keepBounds(part, &bound);
    for (const int index : bound)
        notes->push_back({ReadNote::What::value, path(index), index, {}, values_[index], Change::byRule});
}

void Configuration::readRow(const Part& part, int row, const CXmlSection& element,
                            std::vector<ReadNote>* notes)
{
    const TableLayout::Row& place = part.layout->rows[row];
    const Setting& setting = *place.setting;
    if (!setting.stored || setting.kind == Kind::constant || !holds(part, place.present))
        return;
    const QString* found = element.find(place.key);
    const QString missing = found ? QString() : loadDefault(setting);
    const QString& text = found ? *found : missing;

    // A link gives its value to another row, which says what the value can be.
    const Setting& holder = *part.layout->rows[place.target].setting;
    const int index = part.first + place.target;
    Normalised taken = normalise(holder, text, values_[index], limits(index));
    if (setting.boundOnRead && !holds(part, place.free)) {
        const QString bound = QString::fromLatin1(setting.otherwise);
        taken = {bound, bound == text ? Change::none : Change::byRule};
    }
    assign(part, place.target, taken.value, nullptr);
    if (!found)
        notes->push_back(
            {ReadNote::What::value, place.path, part.first + row, {}, values_[index], Change::missing});
    else if (taken.change != Change::none)
        notes->push_back(
            {ReadNote::What::value, place.path, part.first + row, text, values_[index], taken.change});
    pull(part, place.target, true, nullptr);
}

// Settings that the file has no key for, from those that it has.
void Configuration::derive(const Part& part)
{
    for (const TableLayout::Derived& rule : part.layout->derived)
        values_[part.first + rule.row] =
            values_[part.first + rule.from] == rule.off ? QStringLiteral("0") : QStringLiteral("1");
    for (const TableLayout::Presets& presets : part.layout->presets) {
        if (!presets.rule->other)
            continue;
        const auto agrees = [&](const PresetRow& row) {
            for (std::size_t field = 0; field < presets.fields.size(); ++field) {
                const char* value = row.values[field];
                if (value && values_[part.first + presets.fields[field]] != QLatin1String(value))
                    return false;
            }
            return true;
        };
        const auto found = std::find_if(presets.rule->rows.begin(), presets.rule->rows.end(), agrees);
        values_[part.first + presets.trigger] =
            QString::fromLatin1(found == presets.rule->rows.end() ? presets.rule->other : found->code);
    }
}

void Configuration::write(CXmlSection& root) const
{
    for (const Part& part : parts_)
        writePart(part, root);
}

void Configuration::write(CXmlSection& root, const SettingsTable& table) const
{
    writePart(partOf(table), root);
}

void Configuration::writePart(const Part& part, CXmlSection& root) const
{
    const TableLayout& layout = *part.layout;
    const CXmlSectionPtr section = root.child(layout.section);
    if (!section)
        return;
    if (layout.table->emptied)
        section->clear();
    section->setString(QStringLiteral("page"), layout.section);
    section->commit();
    for (const TableLayout::Group& group : layout.groups) {
        if (!holds(part, group.present))
            continue;
        CXmlSectionPtr parent;
        for (int depth = 0; depth + 1 < group.path.size(); ++depth)
            parent = (parent ? *parent : *section).child(group.path[depth]);
        const CXmlSectionPtr element =
            (parent ? *parent : *section).child(group.path.last(), group.kept || group.nested ? 0 : 3);
        if (!group.kept)
            element->clear();
        for (int row = group.firstRow; row < group.endRow; ++row) {
            const int index = part.first + row;
            if (isWritten(index))
                element->setString(layout.rows[row].key, written(index));
        }
        element->commit();
    }
}

std::vector<int> Configuration::edit(int index, const QString& text)
{
    std::vector<int> changed;
    const Part& part = partOf(index);
    change(part, part.layout->rows[index - part.first].target, text, &changed);
    keepBounds(part, &changed);
    return changed;
}

void Configuration::change(const Part& part, int row, const QString& text, std::vector<int>* changed)
{
    const int index = part.first + row;
    const Setting& setting = *part.layout->rows[row].setting;
    // A list without a current item is nothing that a file could ask for.
    const bool noItem = setting.none && text == QLatin1String(setting.none);
    const QString value = noItem ? text : normalise(setting, text, values_[index], limits(index)).value;
    if (value == values_[index] || std::find(editing_.begin(), editing_.end(), index) != editing_.end())
        return;
    editing_.push_back(index);
    assign(part, row, value, changed);
    // Another range may hold now.
    for (const TableLayout::RangeWhen& rule : part.layout->ranges) {
        if (rule.when.row != row)
            continue;
        const int ranged = part.first + rule.row;
        const Setting& limited = *part.layout->rows[rule.row].setting;
        put(ranged, normalise(limited, values_[ranged], values_[ranged], limits(ranged)).value, changed);
    }
    pull(part, row, false, changed);
    for (const TableLayout::Presets& presets : part.layout->presets) {
        if (presets.trigger != row)
            continue;
        for (const PresetRow& ready : presets.rule->rows) {
            for (std::size_t field = 0; value == QLatin1String(ready.code) && field < presets.fields.size();
                 ++field) {
                if (ready.values[field])
                    change(part, presets.fields[field], QString::fromUtf8(ready.values[field]), changed);
            }
        }
    }
    editing_.pop_back();
}

void Configuration::pull(const Part& part, int row, bool onRead, std::vector<int>* changed)
{
    std::vector<int> local;
    for (const TableLayout::Pull& rule : part.layout->pulls) {
        if (rule.when.row == row && (rule.onRead || !onRead) && holds(part, rule.when))
            change(part, rule.set, rule.to, changed ? changed : &local);
    }
}

void Configuration::put(int index, const QString& value, std::vector<int>* changed)
{
    if (values_[index] == value)
        return;
    values_[index] = value;
    if (changed && std::find(changed->begin(), changed->end(), index) == changed->end())
        changed->push_back(index);
}

// Sets a value, and moves what has to keep its distance from it.
void Configuration::assign(const Part& part, int row, const QString& value, std::vector<int>* changed)
{
    put(part.first + row, value, changed);
    keepDistances(part, row, changed);
}

void Configuration::keepDistances(const Part& part, int row, std::vector<int>* changed)
{
    for (const TableLayout::Distance& rule : part.layout->distances) {
        if (row != rule.first && row != rule.second && row != rule.gapFrom)
            continue;
        const Setting& low = *part.layout->rows[rule.first].setting;
        const Setting& high = *part.layout->rows[rule.second].setting;
        const int lowIndex = part.first + rule.first;
        const int highIndex = part.first + rule.second;
        double first = shownNumber(low, values_[lowIndex]);
        double second = shownNumber(high, values_[highIndex]);
        const double gap = rule.gap + (rule.gapFrom >= 0 ? values_[part.first + rule.gapFrom].toDouble() : 0);
        const double tiny = 1e-9;
        if (row == rule.first) {
            first = std::min(first, high.most - gap);
            second = std::max(second, first + gap);
        } else if (row == rule.second) {
            second = std::max(second, low.least + gap);
            first = std::min(first, second - gap);
        } else if (second - first < gap - tiny) {
            if (first - gap >= low.least)
                first = second - gap;
            else
                second = first + gap;
        }
        put(lowIndex, fileNumber(low, first), changed);
        put(highIndex, fileNumber(high, second), changed);
    }
}

void Configuration::keepBounds(const Part& part, std::vector<int>* changed)
{
    for (const TableLayout::Bound& rule : part.layout->bounds) {
        if (!holds(part, rule.when))
            continue;
        const int index = part.first + rule.row;
        QString held = rule.to;
        if (part.layout->rows[rule.row].setting->kind == Kind::digits) {
            for (int i = 0; i < held.size() && i < values_[index].size(); ++i) {
                if (held[i] == QLatin1Char('*'))
                    held[i] = values_[index][i];
            }
        }
        put(index, held, changed);
    }
}

std::vector<Difference> Configuration::differences(const Configuration& other) const
{
    std::vector<Difference> all;
    for (int i = 0; i < count() && i < other.count(); ++i) {
        const QString before = isWritten(i) ? written(i) : QString();
        const QString after = other.isWritten(i) ? other.written(i) : QString();
        if (setting(i).stored && before != after)
            all.push_back({i, before, after});
    }
    return all;
}

} // namespace vlk
