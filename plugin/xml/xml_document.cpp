#include "xml/xml_document.h"

#include "xml/serialize.h"

namespace vlk {

XmlDocument::XmlDocument(const QString& path, const QString& rootName) : root_(path, rootName) {}

XmlDocument::~XmlDocument()
{
    closeDocument(root_.document(), false);
}

bool XmlDocument::save()
{
    root_.commit();
    return isOpen() && root_.document()->save();
}

bool XmlDocument::saveAs(const QString& path)
{
    root_.commit();
    return isOpen() && root_.document()->saveAs(path);
}

} // namespace vlk
