#include "xml/xml_element.h"

#include "xml/xml_text.h"

#include <algorithm>

namespace vlk {

XmlElement XmlElement::child(const QString& name) const
{
    return XmlElement(node_ ? node_->child(name) : nullptr);
}

std::optional<QString> XmlElement::find(const QString& name) const
{
    if (!node_)
        return std::nullopt;
    // Of namesakes the value set last counts.
    const auto attribute = std::find_if(node_->attributes.rbegin(), node_->attributes.rend(),
                                        [&](const auto& node) { return node->isNamed(name); });
    const CXmlNode* found = attribute != node_->attributes.rend() ? attribute->get() : node_->child(name);
    return found ? std::optional(sectionText(found->value)) : std::nullopt;
}

} // namespace vlk
