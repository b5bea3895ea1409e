#include "xml/xml_node.h"

#include <algorithm>
#include <utility>

CXmlNode::CXmlNode(QString nodeName, CXmlNode* parentNode)
    : CXmlAttribute{std::move(nodeName)}, parent(parentNode)
{
}

CXmlNode* CXmlNode::child(const QString& childName) const
{
    const auto found =
        std::ranges::find_if(children, [&](const auto& node) { return node->isNamed(childName); });
    return found == children.end() ? nullptr : found->get();
}

CXmlNode* CXmlNode::addChild(const QString& childName, Kind childKind)
{
    CXmlNode* const added = children.emplace_back(std::make_unique<CXmlNode>(childName, this)).get();
    added->kind = childKind;
    return added;
}

void CXmlNode::setAttribute(const QString& attributeName, const QString& attributeValue)
{
    const auto known = std::ranges::find_if(
        attributes, [&](const CXmlAttribute& attribute) { return attribute.isNamed(attributeName); });
    if (known == attributes.end())
        attributes.push_back({attributeName, attributeValue});
    else
        known->value = attributeValue;
}
