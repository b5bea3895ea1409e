#include "document/values_document.h"

#include "xml/xml_section.h"

#include <utility>

namespace vlk {

namespace {

XmlElement opened(XmlElement section, const QStringList& path)
{
    for (const QString& name : path)
        section = section.child(name);
    return section;
}

void readKey(int row, const XmlElement& element, Values& values)
{
    const TableLayout::Row& place = values.row(row);
    if (place.base->stored && !place.setting->is<Constant>() && values.holds(place.base->present))
        values.takeKey(row, element.find(place.key), static_cast<bool>(element));
}

bool isRead(const Group& group, const Values& values)
{
    return group.readable ? values.holds(*group.readable) : values.isPresent(group);
}

void readElements(const XmlElement& section, Values& values)
{
    const TableLayout& layout = values.layout();
    const auto readLate = [&](std::vector<int>& rows) {
        for (const int row : rows)
            readKey(row, opened(section, layout.elements[layout.rows[row].group].path), values);
        rows.clear();
    };
    std::vector<int> late;
    std::vector<int> lateOfNumber; // of the repetition that is being read
    int number = 0;
    for (const TableLayout::Element& element : layout.elements) {
        const Group& group = *element.group;
        if (std::exchange(number, group.numbers.outer) != group.numbers.outer)
            readLate(lateOfNumber);
        if (!element.stored || !isRead(group, values))
            continue;
        const XmlElement inFile = opened(section, element.path);
        for (int row = element.firstRow; row < element.endRow; ++row) {
            if (layout.rows[row].base->last)
                (number > 0 ? lateOfNumber : late).push_back(row);
            else
                readKey(row, inFile, values);
        }
    }
    readLate(lateOfNumber);
    readLate(late);
}

void writeElement(const TableLayout::Element& element, const std::vector<int>& rows, const Values& values,
                  CXmlSection& section)
{
    CXmlSectionPtr parent;
    for (int depth = 0; depth + 1 < element.path.size(); ++depth)
        parent = (parent ? *parent : section).child(element.path[depth]);
    const bool keepsOthers = element.group->save == ElementSave::KeepsOthers;
    const CXmlSectionPtr saved =
        (parent ? *parent : section)
            .child(element.path.last(), keepsOthers || element.nested ? CXmlNode::Element : CXmlNode::Empty);
    if (!keepsOthers)
        saved->clear();
    for (const int row : rows) {
        const TableLayout::Row& place = values.row(row);
        const QString* before = place.base->onSave == OnSave::Document ? saved->find(place.key) : nullptr;
        saved->setString(place.key, values.written(row, before ? *before : values.value(row)));
    }
    saved->commit();
}

} // namespace

void readFrom(const CXmlSection& root, Values& values)
{
    if (!root.document())
        return;
    const QString& section = values.layout().section;
    values.beginRead();
    // A file without the section is one that lacks all keys.
    readElements(section.isEmpty() ? root.element() : root.element().child(section), values);
    values.endRead();
}

void writeTo(CXmlSection& root, const Values& values)
{
    if (!root.document())
        return;
    const TableLayout& layout = values.layout();
    const CXmlSectionPtr own = layout.section.isEmpty() ? nullptr : root.child(layout.section);
    CXmlSection& section = own ? *own : root;
    if (values.table().emptied)
        section.clear();
    if (own) {
        section.setString(QStringLiteral("page"), layout.section);
        section.commit();
    }
    for (const TableLayout::Element& element : layout.elements) {
        std::vector<int> rows;
        for (int row = element.firstRow; row < element.endRow; ++row) {
            if (values.isWritten(row))
                rows.push_back(row);
        }
        if (element.stored && values.isPresent(*element.group) &&
            (!rows.empty() || element.group->save != ElementSave::AnewIfAny))
            writeElement(element, rows, values, section);
    }
}

} // namespace vlk
