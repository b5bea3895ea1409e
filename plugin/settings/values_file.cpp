// How a table reads documents and writes them.

#include "settings/values.h"

#include "xml/xml_section.h"

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

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

// The elements of the groups in a document, as far as it has them.
class Elements
{
public:
    Elements(const CXmlSection* section, const TableLayout& layout)
        : section_(section), layout_(layout), opened_(layout.groups.size())
    {
    }

    // Null where the document has none.
    const CXmlSection* of(int group)
    {
        Opened& opened = opened_[group];
        if (std::exchange(opened.asked, true))
            return opened.element.get();
        const TableLayout::Group& place = layout_.groups[group];
        const CXmlSection* parent = place.parent < 0 ? section_ : of(place.parent);
        if (parent)
            opened.element = parent->existing(place.path.last());
        return opened.element.get();
    }

private:
    struct Opened
    {
        CXmlSectionPtr element;
        bool asked = false;
    };

    const CXmlSection* section_;
    const TableLayout& layout_;
    std::vector<Opened> opened_;
};

} // namespace

void Values::read(const CXmlSection& root, std::vector<ReadNote>* notes)
{
    if (!root.document())
        return;
    const CXmlSectionPtr own = layout_->section.isEmpty() ? nullptr : root.existing(layout_->section);
    // A file without the section is one that lacks all keys.
    const CXmlSection* const section = layout_->section.isEmpty() ? &root : own.get();
    // Keys that no row knows are noted where a save drops them; elsewhere a save keeps them.
    if (notes && section && table().emptied)
        noteStrangersIn(*section, *layout_, notes);
    for (const int row : layout_->anew)
        values_[row] = normalise(setting(row), loadDefault(setting(row)), values_[row], limits(row)).value;
    for (const TableLayout::Distance& rule : layout_->distances) {
        if (rule.gapFrom >= 0)
            values_[rule.gapFrom] = QStringLiteral("0");
    }
    std::vector<ReadNote> taken;
    readGroups(section, notes ? &taken : nullptr, notes);
    derive();
    keepBounds(nullptr);
    if (!notes)
        return;
    // A value may have found no room beside another, or what came later has moved it.
    for (ReadNote& note : taken) {
        if (const QString& held = value(note.row); held != note.value) {
            note.value = held;
            note.change = Change::byRule;
        }
        if (note.change != Change::none)
            notes->push_back(note);
    }
}

void Values::readGroups(const CXmlSection* section, std::vector<ReadNote>* taken,
                        std::vector<ReadNote>* strangers)
{
    Elements elements(section, *layout_);
    using Late = std::vector<int>;
    const auto readLate = [&](Late& rows) {
        for (const int row : rows)
            readRow(row, elements.of(layout_->rows[row].group), taken);
        rows.clear();
    };
    Late late;
    Late lateOfNumber; // of the repetition that is being read
    int number = 0;
    for (int i = 0; i < static_cast<int>(layout_->groups.size()); ++i) {
        const TableLayout::Group& group = layout_->groups[i];
        if (std::exchange(number, group.number) != group.number)
            readLate(lateOfNumber);
        if (!group.stored || !holds(group.readable))
            continue;
        const CXmlSection* element = elements.of(i);
        for (int row = group.firstRow; row < group.endRow; ++row) {
            if (setting(row).last)
                (number > 0 ? lateOfNumber : late).push_back(row);
            else
                readRow(row, element, taken);
        }
        if (strangers && element && !group.kept)
            noteStrangersIn(*element, *layout_, group, strangers);
    }
    readLate(lateOfNumber);
    readLate(late);
}

void Values::readRow(int row, const CXmlSection* element, std::vector<ReadNote>* notes)
{
    const TableLayout::Row& place = layout_->rows[row];
    const Setting& setting = *place.setting;
    if (!setting.stored || setting.kind == Kind::constant || !holds(place.present))
        return;
    const QString* found = element ? element->find(place.key) : nullptr;
    if (!found && setting.stays)
        return;
    const bool isAbsent = !element && setting.unlessThere >= 0;
    const QString missing = found      ? QString()
                            : isAbsent ? QString::number(setting.unlessThere)
                                       : loadDefault(setting);
    const QString& text = found ? *found : missing;

    // A link gives its value to another row, which says what the value can be.
    const int target = place.target;
    Normalised taken = normalise(this->setting(target), text, values_[target], limits(target));
    if (setting.boundOnRead && !holds(place.free)) {
        const QString bound = QString::fromLatin1(setting.otherwise);
        taken = {bound, bound == text ? Change::none : Change::byRule};
    }
    const QString before = values_[target];
    assign(target, taken.value, nullptr);
    if (notes)
        notes->push_back({ReadNote::What::value, place.filePath, row, found ? text : QString(), taken.value,
                          found ? taken.change : Change::missing});
    pull(target, true, before, nullptr);
}

void Values::write(CXmlSection& root) const
{
    if (!root.document())
        return;
    const CXmlSectionPtr own = layout_->section.isEmpty() ? nullptr : root.child(layout_->section);
    CXmlSection& section = own ? *own : root;
    if (table().emptied)
        section.clear();
    if (own) {
        section.setString(QStringLiteral("page"), layout_->section);
        section.commit();
    }
    for (const TableLayout::Group& group : layout_->groups) {
        if (group.stored && holds(group.present) && isWritten(group))
            writeGroup(group, section);
    }
}

void Values::writeGroup(const TableLayout::Group& group, CXmlSection& section) const
{
    CXmlSectionPtr parent;
    for (int depth = 0; depth + 1 < group.path.size(); ++depth)
        parent = (parent ? *parent : section).child(group.path[depth]);
    const CXmlSectionPtr element =
        (parent ? *parent : section)
            .child(group.path.last(), group.kept || group.nested ? CXmlNode::Element : CXmlNode::Empty);
    if (!group.kept)
        element->clear();
    for (int row = group.firstRow; row < group.endRow; ++row) {
        const TableLayout::Row& place = layout_->rows[row];
        const QString* before = place.setting->carried ? element->find(place.key) : nullptr;
        if (place.setting->stored && holds(place.present))
            element->setString(place.key, written(row, before ? *before : value(row)));
    }
    element->commit();
}

} // namespace vlk
