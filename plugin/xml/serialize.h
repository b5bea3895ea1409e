#pragma once

// One open document: its file and its tree. Documents are read and written in windows-1251, whatever the
// encoding of the system. A file that cannot be read gives no tree; the log (vlk.xml) says why.
//
// An empty file name makes a document in memory: it starts empty and is never saved.

#include "xml/xml_node.h"

#include <QObject>

#include <memory>

class CSerialize : public QObject
{
    Q_OBJECT

public:
    // Bytes. A longer file is refused unread; the largest configuration has less than a fortieth of this.
    static constexpr qint64 kMaxFileSize = 4'000'000;

    explicit CSerialize(QString fileName);

    // Takes a document out of its text; false, and nothing changes, when it is none.
    bool parse(const QByteArray& text);
    // The document as a file would hold it; empty without a tree.
    QByteArray text() const;
    // False when there is a file with content that is not a document. A missing file is made, empty; a
    // missing or empty file gives an empty document.
    bool load();
    // Replaces the file as a whole; saveAs any other, whatever it holds. False when the file does not hold
    // the document now, which replace_file.h tells about. Without a tree, or in memory, there is nothing to
    // save.
    bool save() const;
    bool saveAs(const QString& fileName) const;

    // With a parent: its first child `name` for Element, made where there is none; always a new child of that
    // kind for the others. Without a parent: the root, which is replaced by an empty one when it has another
    // name.
    CXmlNode* node(CXmlNode* parent, const QString& name, CXmlNode::Kind kind = CXmlNode::Element);
    // Drops children and attributes of the root or of a child of the root; a deeper node keeps them.
    void clearContent(CXmlNode* node);

private:
    QString fileName_;
    std::unique_ptr<CXmlNode> root_;
};

// Saves the document if `save` is set, then deletes it. Sections on it must be gone or unused by then. Null,
// of which nothing can be saved, is allowed. False when a save failed.
bool closeDocument(CSerialize* document, bool save);
