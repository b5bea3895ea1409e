#pragma once

// One element of a document for reading alone: what a section of it would give, without a table of its own.
// To be used while the document is there and as it was.

#include "xml/xml_node.h"

#include <optional>

namespace vlk {

class XmlElement
{
public:
    explicit XmlElement(const CXmlNode* node = nullptr) : node_(node) {}

    explicit operator bool() const { return node_; }
    // The first one of that name; none where there is none.
    XmlElement child(const QString& name) const;
    // The text of the attribute, else of the child of that name. Names are mostly asked for in the order in
    // which they stand.
    std::optional<QString> find(const QString& name) const;

private:
    const CXmlNode* node_;
    mutable std::size_t next_ = 0; // attribute that is looked at first
};

} // namespace vlk
