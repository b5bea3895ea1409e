#pragma once

// One element of a configuration document, or one attribute of an element. A node owns its children and its
// attributes; the document (CSerialize) owns the root.

#include <QString>

#include <memory>
#include <vector>

class CXmlNode
{
public:
    // How an element is written.
    enum Kind : qint32 {
        Element = 0,    // start tag, children, end tag; what a new node is
        Attributed = 1, // the same; what the reader makes of an element with attributes
        Text = 2,       // start tag, value, end tag on one line; children follow as siblings
        Empty = 3,      // empty element with attributes only, its name unescaped
    };
    using List = std::vector<std::unique_ptr<CXmlNode>>;

    explicit CXmlNode(QString nodeName, CXmlNode* parentNode = nullptr);

    // Names are mostly of another length.
    bool isNamed(const QString& other) const { return name.size() == other.size() && name == other; }
    // First child of that name, or null.
    CXmlNode* child(const QString& childName) const;
    // Both add without looking for a namesake.
    CXmlNode* addChild(const QString& childName, Kind childKind = Element);
    void addAttribute(const QString& attributeName, const QString& attributeValue);

    // The attributes that count: every name once, where it was first set, with the value set last.
    std::vector<CXmlNode*> lastAttributes() const;

    QString name;
    QString value;
    Kind kind = Element;
    List children;
    List attributes;
    CXmlNode* parent = nullptr;
};
