#include "road/chosen_settings.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace workbench {

namespace {

struct Element
{
    QString name;
    std::vector<std::pair<QString, QString>> attributes; // in their order
    QString text;
    std::vector<std::unique_ptr<Element>> children;

    // "A" is the first of its name, "A[2]" the second.
    Element* child(const QString& step, bool make = false)
    {
        const QString wanted = step.section(QLatin1Char('['), 0, 0);
        int left =
            std::max(1, step.section(QLatin1Char('['), 1).chopped(step.endsWith(QLatin1Char(']'))).toInt());
        for (const auto& child : children) {
            if (child->name == wanted && --left == 0)
                return child.get();
        }
        // One that is further on needs those before it.
        if (!make || left > 1)
            return nullptr;
        children.push_back(std::make_unique<Element>());
        children.back()->name = wanted;
        return children.back().get();
    }
    auto attribute(const QString& key)
    {
        return std::ranges::find_if(attributes,
                                    [&key](const auto& attribute) { return attribute.first == key; });
    }
};

void read(QXmlStreamReader& xml, Element& element)
{
    element.name = xml.qualifiedName().toString();
    for (const QXmlStreamAttribute& attribute : xml.attributes())
        element.attributes.emplace_back(attribute.qualifiedName().toString(), attribute.value().toString());
    while (xml.readNext() != QXmlStreamReader::EndElement && !xml.atEnd()) {
        if (xml.isStartElement()) {
            element.children.push_back(std::make_unique<Element>());
            read(xml, *element.children.back());
        } else if (xml.isCharacters() && !xml.isWhitespace()) {
            element.text += xml.text();
        }
    }
}

std::optional<Element> read(const QByteArray& document)
{
    QXmlStreamReader xml(document);
    xml.setNamespaceProcessing(false);
    Element root;
    if (!xml.readNextStartElement())
        return {};
    read(xml, root);
    if (xml.hasError())
        return {};
    return root;
}

void write(QXmlStreamWriter& xml, const Element& element)
{
    if (element.children.empty() && element.text.isEmpty())
        xml.writeEmptyElement(element.name);
    else
        xml.writeStartElement(element.name);
    for (const auto& [name, value] : element.attributes)
        xml.writeAttribute(name, value);
    if (element.children.empty() && element.text.isEmpty())
        return;
    if (!element.text.isEmpty())
        xml.writeCharacters(element.text);
    for (const auto& child : element.children)
        write(xml, *child);
    xml.writeEndElement();
}

// An element without attributes counts as a key, too.
void copyElement(Element& parent, const Element* from, const QString& step)
{
    Element* there = parent.child(step, from != nullptr);
    if (from && there) {
        there->text = from->text;
    } else if (there && there->attributes.empty() && there->children.empty()) {
        parent.children.erase(std::ranges::find_if(
            parent.children, [there](const auto& child) { return child.get() == there; }));
    }
}

void setKey(Element& root, Element& other, const QString& path)
{
    QStringList steps = path.split(QLatin1Char('/'));
    const QString key = steps.takeLast();
    Element* from = &other;
    for (const QString& step : std::as_const(steps))
        from = from ? from->child(step) : nullptr;
    const bool isAttribute = from && from->attribute(key) != from->attributes.end();
    const Element* element = from ? from->child(key) : nullptr;
    Element* to = &root;
    QString place;
    for (const QString& step : std::as_const(steps)) {
        const bool isNew = to && !to->child(step);
        to = to ? to->child(step, isAttribute || element) : nullptr;
        place += (place.isEmpty() ? QString() : QStringLiteral("/")) + step;
        // A section says its own name.
        if (to && isNew && place == step)
            to->attributes.emplace_back(QStringLiteral("page"), step);
    }
    if (!to)
        return;
    const auto there = to->attribute(key);
    if (isAttribute && there != to->attributes.end())
        there->second = from->attribute(key)->second;
    else if (isAttribute)
        to->attributes.emplace_back(key, from->attribute(key)->second);
    else if (there != to->attributes.end())
        to->attributes.erase(there);
    else
        copyElement(*to, element, key);
}

} // namespace

QByteArray withChosen(const QByteArray& document, const QByteArray& other, const QStringList& paths)
{
    std::optional<Element> root = read(document);
    std::optional<Element> from = read(other);
    if (!root || !from)
        return {};
    for (const QString& path : paths)
        setKey(*root, *from, path);
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setCodec("windows-1251");
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    write(xml, *root);
    xml.writeEndDocument();
    return text;
}

} // namespace workbench
