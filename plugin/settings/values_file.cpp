// How a configuration reads documents and writes them.

#include "settings/configuration.h"

#include "xml/xml_section.h"

#include <algorithm>
#include <utility>

namespace vlk {

void Configuration::read(const CXmlSection& root, std::vector<ReadNote>* notes)
{
    for (const Part& part : parts_)
        readPart(part, root, notes);
}

void Configuration::read(const CXmlSection& root, const SettingsTable& table, std::vector<ReadNote>* notes)
{
    readPart(partOf(table), root, notes);
}

namespace {

struct Element
{
    CXmlSectionPtr section;
    bool isThere = true; // in the file
};

Element elementOf(const CXmlSection& section, const QStringList& path)
{
    Element element;
    for (const QString& name : path) {
        const CXmlSection& parent = element.section ? *element.section : section;
        element.isThere = element.isThere && parent.find(name);
        element.section = parent.child(name);
    }
    return element;
}

// The section of a table; over several sections the document itself, as `root` stands for it.
template <class Root>
Root* sectionOf(Root& root, const QString& name, CXmlSectionPtr& owner)
{
    if (!name.isEmpty())
        owner = root.child(name);
    Root* section = name.isEmpty() ? &root : owner.get();
    return section && section->document() ? section : nullptr;
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

void noteStrangersIn(const CXmlSection& section, const TableLayout& layout, std::vector<ReadNote>* notes)
{
    QStringList elements;
    for (const TableLayout::Group& group : layout.groups) {
        if (group.stored)
            elements << group.path.first();
    }
    noteStrangers(section, layout.section, {QStringLiteral("page")}, elements, notes);
}

void noteStrangersIn(const CXmlSection& element, const TableLayout& layout, const TableLayout::Group& group,
                     std::vector<ReadNote>* notes)
{
    QStringList keys;
    for (int row = group.firstRow; row < group.endRow; ++row)
        keys << layout.rows[row].key;
    QStringList inside;
    for (const TableLayout::Group& other : layout.groups) {
        if (other.path.size() == group.path.size() + 1 && other.path.mid(0, group.path.size()) == group.path)
            inside << other.path.last();
    }
    noteStrangers(element, layout.prefix() + group.path.join(QLatin1Char('/')), keys, inside, notes);
}

// Whether the group is there for the sake of the row `owner`; -1: of whatever.
bool isOf(const TableLayout::Group& group, int owner)
{
    return owner < 0 || std::any_of(group.present.begin(), group.present.end(),
                                    [&](const auto& condition) { return condition.row == owner; });
}

} // namespace

void Configuration::readPart(const Part& part, const CXmlSection& root, std::vector<ReadNote>* notes)
{
    const TableLayout& layout = *part.layout;
    CXmlSectionPtr owner;
    const CXmlSection* section = sectionOf(root, layout.section, owner);
    if (!section)
        return;
    // Keys that no row knows are noted where a save drops them; elsewhere a save keeps them.
    if (notes && layout.table->emptied)
        noteStrangersIn(*section, layout, notes);
    for (const int row : layout.anew) {
        const Setting& setting = *layout.rows[row].setting;
        const int index = part.first + row;
        values_[index] = normalise(setting, loadDefault(setting), values_[index], limits(index)).value;
    }
    for (const TableLayout::Distance& rule : layout.distances) {
        if (rule.gapFrom >= 0)
            values_[part.first + rule.gapFrom] = QStringLiteral("0");
    }
    readGroups(part, *section, -1, notes);
}

// Of all groups, or of those that are there for the sake of the row `owner`.
void Configuration::readGroups(const Part& part, const CXmlSection& section, int owner,
                               std::vector<ReadNote>* notes)
{
    const TableLayout& layout = *part.layout;
    std::vector<ReadNote> taken;
    std::vector<ReadNote>* const takes = notes ? &taken : nullptr;
    using Late = std::vector<std::pair<int, Element>>;
    const auto readLate = [&](Late& rows) {
        for (const auto& [row, element] : rows)
            readRow(part, row, *element.section, element.isThere, takes);
        rows.clear();
    };
    Late late;
    Late lateOfNumber; // of the repetition that is being read
    int number = 0;
    for (const TableLayout::Group& group : layout.groups) {
        if (std::exchange(number, group.number) != group.number)
            readLate(lateOfNumber);
        if (!group.stored || !isOf(group, owner) || !holds(part, group.readable))
            continue;
        const Element element = elementOf(section, group.path);
        for (int row = group.firstRow; row < group.endRow; ++row) {
            if (layout.rows[row].setting->last)
                (number > 0 ? lateOfNumber : late).emplace_back(row, elementOf(section, group.path));
            else
                readRow(part, row, *element.section, element.isThere, takes);
        }
        if (notes && !group.kept)
            noteStrangersIn(*element.section, layout, group, notes);
    }
    readLate(lateOfNumber);
    readLate(late);
    derive(part);
    keepBounds(part, nullptr);
    if (!notes)
        return;
    // A value may have found no room beside another, or what came later has moved it.
    for (ReadNote& note : taken) {
        if (const QString& held = value(note.index); held != note.value) {
            note.value = held;
            note.change = Change::byRule;
        }
        if (note.change != Change::none)
            notes->push_back(note);
    }
}

void Configuration::readRow(const Part& part, int row, const CXmlSection& element, bool isThere,
                            std::vector<ReadNote>* notes)
{
    const TableLayout::Row& place = part.layout->rows[row];
    const Setting& setting = *place.setting;
    if (!setting.stored || setting.kind == Kind::constant || !holds(part, place.present))
        return;
    const QString* found = element.find(place.key);
    if (!found && setting.stays)
        return;
    const bool isAbsent = !isThere && setting.unlessThere >= 0;
    const QString missing = found      ? QString()
                            : isAbsent ? QString::number(setting.unlessThere)
                                       : loadDefault(setting);
    const QString& text = found ? *found : missing;

    // A link gives its value to another row, which says what the value can be.
    const Setting& holder = *part.layout->rows[place.target].setting;
    const int index = part.first + place.target;
    Normalised taken = normalise(holder, text, values_[index], limits(index));
    if (setting.boundOnRead && !holds(part, place.free)) {
        const QString bound = QString::fromLatin1(setting.otherwise);
        taken = {bound, bound == text ? Change::none : Change::byRule};
    }
    const QString before = values_[index];
    assign(part, place.target, taken.value, nullptr);
    if (notes)
        notes->push_back({ReadNote::What::value, place.filePath, part.first + row, found ? text : QString(),
                          taken.value, found ? taken.change : Change::missing});
    pull(part, place.target, true, before, nullptr);
}

void Configuration::readUnder(const CXmlSection& section, const SettingsTable& table, const QString& owner,
                              const QString& code)
{
    const Part& part = partOf(table);
    const int index = indexOf(owner);
    const QString present = std::exchange(values_[index], code);
    readGroups(part, section, index - part.first, nullptr);
    values_[index] = present;
}

void Configuration::writeUnder(CXmlSection& section, const SettingsTable& table, const QString& owner,
                               const QString& code) const
{
    const Part& part = partOf(table);
    Configuration assumed = *this;
    assumed.values_[indexOf(owner)] = code;
    assumed.writeGroups(part, section, indexOf(owner) - part.first);
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
    CXmlSectionPtr owner;
    CXmlSection* section = sectionOf(root, layout.section, owner);
    if (!section)
        return;
    if (layout.table->emptied)
        section->clear();
    if (owner) {
        section->setString(QStringLiteral("page"), layout.section);
        section->commit();
    }
    writeGroups(part, *section, -1);
}

void Configuration::writeGroups(const Part& part, CXmlSection& section, int owner) const
{
    const TableLayout& layout = *part.layout;
    for (const TableLayout::Group& group : layout.groups) {
        if (!group.stored || !isOf(group, owner) || !holds(part, group.present) || !isWritten(part, group))
            continue;
        CXmlSectionPtr parent;
        for (int depth = 0; depth + 1 < group.path.size(); ++depth)
            parent = (parent ? *parent : section).child(group.path[depth]);
        const CXmlSectionPtr element =
            (parent ? *parent : section).child(group.path.last(), group.kept || group.nested ? 0 : 3);
        if (!group.kept)
            element->clear();
        for (int row = group.firstRow; row < group.endRow; ++row) {
            const int index = part.first + row;
            const TableLayout::Row& place = layout.rows[row];
            const QString* before = place.setting->carried ? element->find(place.key) : nullptr;
            if (place.setting->stored && holds(part, place.present))
                element->setString(place.key, written(index, before ? *before : value(index)));
        }
        element->commit();
    }
}

} // namespace vlk
