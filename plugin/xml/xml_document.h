#pragma once

// An open document with its root section: closes the document at its end, so that no way out of a function
// leaks it. Nothing is saved unless save() or saveAs() is called. With an empty path it lives in memory
// alone, to carry a configuration from one window to another or to be saved over whatever a file holds. Child
// sections must be gone before it.

#include "xml/xml_section.h"

namespace vlk {

class XmlDocument
{
public:
    XmlDocument(const QString& path, const QString& rootName);
    // In memory, out of the text of a file.
    XmlDocument(const QByteArray& text, const QString& rootName);
    ~XmlDocument();
    Q_DISABLE_COPY_MOVE(XmlDocument)

    // False for a file that could not be read as a document; the root has no child sections then.
    bool isOpen() const { return root_.document() != nullptr; }
    CXmlSection* root() { return &root_; }

    // What a file would hold; commits the root section.
    QByteArray text();
    // Commit the root section and write the file, its own or another. False when that failed.
    bool save();
    bool saveAs(const QString& path);

private:
    CXmlSection root_;
};

} // namespace vlk
