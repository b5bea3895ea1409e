#include "xml/xml_node.h"

#include <QHash>

#include <algorithm>
#include <utility>

CXmlNode::CXmlNode(QString nodeName, CXmlNode* parentNode) : name(std::move(nodeName)), parent(parentNode) {}

CXmlNode* CXmlNode::child(const QString& childName) const
{
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const auto& node) { return node->isNamed(childName); });
    return found == children.end() ? nullptr : found->get();
}

CXmlNode* CXmlNode::addChild(const QString& childName, Kind childKind)
{
    CXmlNode* const added = children.emplace_back(std::make_unique<CXmlNode>(childName, this)).get();
    added->kind = childKind;
    return added;
}

void CXmlNode::addAttribute(const QString& attributeName, const QString& attributeValue)
{
    attributes.push_back(std::make_unique<CXmlNode>(attributeName, this));
    attributes.back()->value = attributeValue;
}

std::vector<CXmlNode*> CXmlNode::lastAttributes() const
{
    std::vector<CXmlNode*> unique;
    unique.reserve(attributes.size());
    // Most elements have a handful of attributes, which are sooner compared than hashed.
    constexpr std::size_t few = 16;
    if (attributes.size() <= few) {
        for (const auto& attribute : attributes) {
            const auto known = std::find_if(unique.begin(), unique.end(), [&](const CXmlNode* node) {
                return node->isNamed(attribute->name);
            });
            if (known == unique.end())
                unique.push_back(attribute.get());
            else
                *known = attribute.get();
        }
        return unique;
    }
    QHash<QString, std::size_t> places;
    places.reserve(static_cast<int>(attributes.size()));
    for (const auto& attribute : attributes) {
        const auto known = places.constFind(attribute->name);
        if (known != places.constEnd()) {
            unique[*known] = attribute.get();
            continue;
        }
        places.insert(attribute->name, unique.size());
        unique.push_back(attribute.get());
    }
    return unique;
}
