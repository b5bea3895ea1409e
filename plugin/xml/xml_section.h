#pragma once

// The handle through which pages read and write one element of a document. It holds a table, a snapshot of
// the element: first its attributes, then its children with their texts. Gets look into the table, sets
// change the table, and commit() takes it back into the tree; until then no other section sees a change.
//
// Names are case-sensitive and the first entry of a name counts. A value carries 255 bytes of windows-1251,
// the rest is cut off.
//
// Whoever gets a section from section(), firstChild() or nextChild() deletes it, before the document is
// closed; child() gives the same as section() in an owning pointer. Clearing an element invalidates every
// other section below it. A file that cannot be read gives a root section without a document: its gets give
// the defaults, it has no child sections, and nothing is written.
//
// Saving:   auto track = root->child("TRACK");  track->clear();  track->setString("page", "TRACK");
//           auto points = track->child("POINTS", CXmlNode::Empty);  points->setInt("maxSpeed", 100);
//           points->commit(); track->commit();
// Loading:  if (auto track = root->existing("TRACK")) { ... track->getInt("mode", 2) ... }
// Repeated: for (CXmlSectionPtr row(table->firstChild("DATA")); row; row.reset(table->nextChild())) ...

#include "xml/xml_element.h"
#include "xml/xml_record.h"

#include <memory>
#include <vector>

class CSerialize;
struct CXmlSection;
using CXmlSectionPtr = std::unique_ptr<CXmlSection>;

struct CXmlSection
{
    // Opens the document at `path` and takes its root, or an empty one when the root has another name:
    // "DEVICE" for a configuration, "FUEL" for a calibration. An empty path makes a document in memory. The
    // document is closed with closeDocument (serialize.h), or see XmlDocument (xml_document.h).
    CXmlSection(const QString& path, const QString& rootName);
    // The root of a document; null gives a section without one.
    CXmlSection(std::unique_ptr<CSerialize> document, const QString& rootName);
    CXmlSection(CSerialize* document, CXmlNode* node);

    // Element: the child of that name, made where there is none. Attributed: a new child. Empty: a new child
    // that is written as an empty element with attributes only. Null without a document.
    CXmlSection* section(const QString& name, CXmlNode::Kind kind = CXmlNode::Element) const;
    CXmlSectionPtr child(const QString& name, CXmlNode::Kind kind = CXmlNode::Element) const;
    // The first child of that name; null where there is none, which stays so.
    CXmlSectionPtr existing(const QString& name) const;

    // The entries of one name in turn, in the order of the table. Null at the end, and for an entry that was
    // set and not read.
    CXmlSection* firstChild(const QString& name);
    CXmlSection* nextChild();

    // What the document holds now, whatever the table has.
    vlk::XmlElement element() const { return vlk::XmlElement(node_); }
    // The value of an entry, null where there is none.
    const QString* find(const QString& name) const;
    // The default where there is no such entry. Numbers are read as far as they go: "12abc" is 12, "abc" is
    // 0. The decimal sign is the point in every locale, and what is no finite number is 0.
    int getInt(const QString& name, int fallback) const;
    float getFloat(const QString& name, float fallback) const;
    double getDouble(const QString& name, double fallback) const;
    QString getString(const QString& name, const QString& fallback = {}) const;

    void setInt(const QString& name, int value);
    void setString(const QString& name, const QString& value);
    // `chars` in the encoding of the system; null counts as empty.
    void setText(const QString& name, const char* chars);
    // Gives the child of that name, made where there is none, the text: in the tree at once, not in the
    // table.
    void setChildValue(const QString& name, const QString& value);

    // Takes the table into the tree: an entry whose name a child has becomes that child's text, of which only
    // ASCII survives; every other one becomes an attribute.
    void commit();
    // Empties the table, and the element too if it is the root or a child of the root.
    void clear();

    CSerialize* document() const { return document_; }

private:
    void buildTable();
    std::size_t position(const QString& name) const;

    CSerialize* document_ = nullptr;
    CXmlNode* node_ = nullptr;
    std::vector<CXmlRecord> table_;
    QString scanName_;
    std::size_t scanPosition_ = 0;
};
