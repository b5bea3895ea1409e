#pragma once

// One element of a configuration document. A node owns its children and its attributes; the document
// (CSerialize) owns the root.

#include <QString>

#include <memory>
#include <vector>

// What has a name and a text: an attribute, or an element with what it holds.
struct CXmlAttribute
{
    // Names are mostly of another length.
    bool isNamed(const QString& other) const { return name.size() == other.size() && name == other; }

    QString name;
    QString value{};
};

class CXmlNode : public CXmlAttribute
{
public:
    // How an element is written.
    enum Kind : qint32 {
        Element = 0,    // start tag, children, end tag; what a new node is
        Attributed = 1, // as Element; what the reader makes of an element with attributes
        Text = 2,       // start tag, value, end tag on one line; children follow as siblings
        Empty = 3,      // empty element with attributes only, its name unescaped
    };
    using List = std::vector<std::unique_ptr<CXmlNode>>;

    explicit CXmlNode(QString nodeName, CXmlNode* parentNode = nullptr);

    // First child of that name, or null.
    CXmlNode* child(const QString& childName) const;
    // Adds one without looking for a namesake.
    CXmlNode* addChild(const QString& childName, Kind childKind = Element);
    // An attribute stays where it was first set, with the value set last.
    void setAttribute(const QString& attributeName, const QString& attributeValue);

    Kind kind = Element;
    List children;
    std::vector<CXmlAttribute> attributes; // each name once
    std::vector<CXmlAttribute> passedOver; // by the reader: they came behind one of their name
    CXmlNode* parent = nullptr;
};
