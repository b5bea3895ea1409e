// How a table reads documents and writes them.

#include "settings/values.h"

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

} // namespace

void Values::read(const CXmlSection& root)
{
    if (!root.document())
        return;
    // A file without the section is one that lacks all keys.
    const XmlElement section =
        layout_->section.isEmpty() ? root.element() : root.element().child(layout_->section);
    for (const int row : layout_->anew)
        values_[row] = normalised(row, loadDefault(setting(row)), limits(row));
    for (const Distance& rule : table().all<Distance>()) {
        if (rule.gapFrom)
            values_[rule.gapFrom.row] = QStringLiteral("0");
    }
    readElements(section);
    setAll(layout_->afterRead, nullptr);
    for (const Presets& presets : table().all<Presets>()) {
        if (presets.other || presets.settles)
            settle(presets);
    }
    setAll(layout_->always, nullptr);
}

void Values::readElements(const XmlElement& section)
{
    const auto readLate = [&](std::vector<int>& rows) {
        for (const int row : rows)
            readRow(row, opened(section, layout_->elements[layout_->rows[row].group].path));
        rows.clear();
    };
    std::vector<int> late;
    std::vector<int> lateOfNumber; // of the repetition that is being read
    int number = 0;
    for (const TableLayout::Element& element : layout_->elements) {
        const Group& group = *element.group;
        if (std::exchange(number, group.numbers.outer) != group.numbers.outer)
            readLate(lateOfNumber);
        if (!element.stored || !isRead(group))
            continue;
        const XmlElement inFile = opened(section, element.path);
        for (int row = element.firstRow; row < element.endRow; ++row) {
            if (layout_->rows[row].base->last)
                (number > 0 ? lateOfNumber : late).push_back(row);
            else
                readRow(row, inFile);
        }
    }
    readLate(lateOfNumber);
    readLate(late);
}

void Values::readRow(int row, const XmlElement& element)
{
    const TableLayout::Row& place = layout_->rows[row];
    if (!place.base->stored || place.setting->is<Constant>() || !holds(place.base->present))
        return;
    const std::optional<QString> found = element.find(place.key);
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
    assign(target, normalised(target, text, limits(target)), nullptr);
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
        std::vector<int> rows;
        for (int row = element.firstRow; row < element.endRow; ++row) {
            if (isWritten(row))
                rows.push_back(row);
        }
        if (element.stored && isPresent(*element.group) &&
            (!rows.empty() || element.group->save != ElementSave::anewIfAny))
            writeElement(element, rows, section);
    }
}

void Values::writeElement(const TableLayout::Element& element, const std::vector<int>& rows,
                          CXmlSection& section) const
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
    for (const int row : rows) {
        const TableLayout::Row& place = layout_->rows[row];
        const QString* before = place.base->onSave == OnSave::document ? saved->find(place.key) : nullptr;
        saved->setString(place.key, written(row, before ? *before : value(row)));
    }
    saved->commit();
}

} // namespace vlk
