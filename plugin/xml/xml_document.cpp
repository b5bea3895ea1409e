#include "xml/xml_document.h"

#include "xml/serialize.h"

namespace vlk {

XmlDocument::XmlDocument(const QString& path, const QString& rootName) : root_(path, rootName) {}

XmlDocument::~XmlDocument()
{
    closeDocument(root_.document(), false);
}

void XmlDocument::save()
{
    if (!isOpen())
        return;
    root_.commit();
    root_.document()->save();
}

} // namespace vlk
