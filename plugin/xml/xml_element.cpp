#include "xml/xml_element.h"

#include "xml/xml_text.h"

namespace vlk {

XmlElement XmlElement::child(const QString& name) const
{
    return XmlElement(node_ ? node_->child(name) : nullptr);
}

std::optional<QString> XmlElement::find(const QString& name) const
{
    if (!node_)
        return std::nullopt;
    const std::size_t count = node_->attributes.size();
    for (std::size_t passed = 0; passed < count; ++passed) {
        const CXmlAttribute& attribute = node_->attributes[next_];
        next_ = next_ + 1 == count ? 0 : next_ + 1;
        if (attribute.isNamed(name))
            return sectionText(attribute.value);
    }
    const CXmlNode* found = node_->child(name);
    return found ? std::optional(sectionText(found->value)) : std::nullopt;
}

} // namespace vlk
