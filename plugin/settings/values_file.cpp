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
    for (const TableLayout::Element& element : layout.elements) {
        if (element.stored)
            elements << element.path.first();
    }
    noteStrangers(section, layout.section, {QStringLiteral("page")}, elements, notes);
}

void noteStrangersIn(const CXmlSection& section, const TableLayout& layout,
                     const TableLayout::Element& element, std::vector<ReadNote>* notes)
{
    QStringList keys;
    for (int row = element.firstRow; row < element.endRow; ++row)
        keys << layout.rows[row].key;
    QStringList inside;
    for (const TableLayout::Element& other : layout.elements) {
        if (other.parent >= 0 && layout.elements[other.parent].path == element.path)
            inside << other.path.last();
    }
    noteStrangers(section, layout.prefix() + element.path.join(QLatin1Char('/')), keys, inside, notes);
}

// The elements of a table in a document, as far as it has them.
class Elements
{
public:
    Elements(const CXmlSection* section, const TableLayout& layout)
        : section_(section), layout_(layout), opened_(layout.elements.size())
    {
    }

    // Null where the document has none.
    const CXmlSection* at(int place)
    {
        Opened& opened = opened_[place];
        if (std::exchange(opened.asked, true))
            return opened.element.get();
        const TableLayout::Element& element = layout_.elements[place];
        if (const CXmlSection* parent = element.parent < 0 ? section_ : at(element.parent))
            opened.element = parent->existing(element.path.last());
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
        values_[row] = normalised(row, loadDefault(setting(row)), limits(row));
    for (const Distance& rule : table().distances) {
        if (rule.gapFrom)
            values_[rule.gapFrom.row] = QStringLiteral("0");
    }
    std::vector<ReadNote> taken;
    readElements(section, notes ? &taken : nullptr, notes);
    setAll(Moment::afterRead, nullptr);
    for (const Presets& presets : table().presets) {
        if (presets.other || presets.settles)
            settle(presets);
    }
    setAll(Moment::always, nullptr);
    if (!notes)
        return;
    // A value may have found no room beside another, or what came later has moved it.
    for (ReadNote& note : taken) {
        if (const QString& held = value(note.row); held != note.value) {
            note.value = held;
            note.change = held == note.text && note.change != Change::missing ? Change::none : Change::byRule;
        }
        if (note.change != Change::none)
            notes->push_back(note);
    }
}

bool Values::isRead(const Group& group) const
{
    return group.readOtherwise ? holds(group.readable) && holds(group.readableToo)
                               : holds(group.present) && holds(group.presentToo);
}

void Values::readElements(const CXmlSection* section, std::vector<ReadNote>* taken,
                          std::vector<ReadNote>* strangers)
{
    Elements elements(section, *layout_);
    const auto readLate = [&](std::vector<int>& rows) {
        for (const int row : rows)
            readRow(row, elements.at(layout_->rows[row].group), taken);
        rows.clear();
    };
    std::vector<int> late;
    std::vector<int> lateOfNumber; // of the repetition that is being read
    int number = 0;
    for (int place = 0; place < static_cast<int>(layout_->elements.size()); ++place) {
        const TableLayout::Element& element = layout_->elements[place];
        if (std::exchange(number, element.group->numbers.outer) != element.group->numbers.outer)
            readLate(lateOfNumber);
        if (!element.stored || !isRead(*element.group))
            continue;
        const CXmlSection* inFile = elements.at(place);
        for (int row = element.firstRow; row < element.endRow; ++row) {
            if (layout_->rows[row].base->last)
                (number > 0 ? lateOfNumber : late).push_back(row);
            else
                readRow(row, inFile, taken);
        }
        if (strangers && inFile && element.group->save != ElementSave::keepsOthers)
            noteStrangersIn(*inFile, *layout_, element, strangers);
    }
    readLate(lateOfNumber);
    readLate(late);
}

void Values::readRow(int row, const CXmlSection* element, std::vector<ReadNote>* notes)
{
    const TableLayout::Row& place = layout_->rows[row];
    if (!place.base->stored || place.setting->is<Constant>() || !holds(place.base->present))
        return;
    const QString* found = element ? element->find(place.key) : nullptr;
    if (!found && place.base->missing == Missing::keepsValue)
        return;
    const auto* link = place.setting->as<Link>();
    const QString missing = found ? QString()
                            : link && !element && link->withoutElement >= 0
                                ? QString::number(link->withoutElement)
                                : loadDefault(*place.setting);
    const QString& text = found ? *found : missing;

    // A link gives its value to another row, which says what the value can be.
    const int target = place.target;
    const QString before = values_[target];
    const Normalised taken = normalise(setting(target), {text, before, limits(target)});
    assign(target, taken.value, nullptr);
    if (notes)
        notes->push_back({ReadNote::What::value, place.filePath, row, found ? text : QString(), taken.value,
                          found ? taken.change : Change::missing});
    setBy(target, true, before, nullptr);
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
    for (const TableLayout::Element& element : layout_->elements) {
        if (isWritten(element))
            writeElement(element, section);
    }
}

void Values::writeElement(const TableLayout::Element& element, CXmlSection& section) const
{
    CXmlSectionPtr parent;
    for (int depth = 0; depth + 1 < element.path.size(); ++depth)
        parent = (parent ? *parent : section).child(element.path[depth]);
    const bool keepsOthers = element.group->save == ElementSave::keepsOthers;
    const CXmlSectionPtr saved =
        (parent ? *parent : section)
            .child(element.path.last(), keepsOthers || element.nested ? CXmlNode::Element : CXmlNode::Empty);
    if (!keepsOthers)
        saved->clear();
    for (int row = element.firstRow; row < element.endRow; ++row) {
        const TableLayout::Row& place = layout_->rows[row];
        if (!place.base->stored || !holds(place.base->present))
            continue;
        const QString* before = place.base->onSave == OnSave::document ? saved->find(place.key) : nullptr;
        saved->setString(place.key, written(row, before ? *before : value(row)));
    }
    saved->commit();
}

} // namespace vlk
