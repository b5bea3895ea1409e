#include "review/document_walk.h"

#include "review/file_keys.h"
#include "xml/serialize.h"
#include "xml/xml_section.h"
#include "xml/xml_text.h"

#include <QHash>

namespace vlk::review {

namespace {

using Take = std::function<void(const QString& path, const QString& text)>;

void walk(const CXmlNode& element, const QString& path, const Take& take)
{
    const bool isSection = !path.contains(QLatin1Char('/'));
    int taken = 0;
    for (const CXmlAttribute& attribute : element.attributes) {
        if (isSection && attribute.name == QLatin1String("page"))
            continue;
        take(path + QLatin1Char('/') + sectionText(attribute.name), attribute.value);
        ++taken;
    }
    QHash<QString, int> seen;
    for (const CXmlAttribute& attribute : element.passedOver) {
        if (isSection && attribute.name == QLatin1String("page"))
            continue;
        const QString name = sectionText(attribute.name);
        take(QStringLiteral("%1/%2[%3]").arg(path, name).arg(++seen[name] + 1), attribute.value);
    }
    seen.clear();
    for (const auto& child : element.children) {
        QString below = path + QLatin1Char('/') + child->name;
        // Settings read a key from an element of its name too.
        if (child->children.empty() && child->attributes.empty() && FileKeys::all().at(below) >= 0) {
            take(below, child->value);
            continue;
        }
        if (const int number = ++seen[child->name]; number > 1)
            below += QStringLiteral("[%1]").arg(number);
        walk(*child, below, take);
    }
    if (taken == 0 && element.children.empty() && !FileKeys::all().hasElement(path))
        take(path, {});
}

} // namespace

void eachKey(CXmlSection& root, const Take& take)
{
    if (!root.document())
        return;
    QHash<QString, int> seen;
    for (const auto& section : root.document()->node(nullptr, QStringLiteral("DEVICE"))->children) {
        const int number = ++seen[section->name];
        walk(*section, number > 1 ? section->name + QStringLiteral("[%1]").arg(number) : section->name, take);
    }
}

} // namespace vlk::review
