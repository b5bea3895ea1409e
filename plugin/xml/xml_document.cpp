#include "xml/xml_document.h"

#include "xml/serialize.h"

namespace vlk {

namespace {

std::unique_ptr<CSerialize> parsed(const QByteArray& text)
{
    auto document = std::make_unique<CSerialize>(QString());
    return document->parse(text) ? std::move(document) : nullptr;
}

} // namespace

XmlDocument::XmlDocument(const QString& path, const QString& rootName) : root_(path, rootName) {}

XmlDocument::XmlDocument(const QByteArray& text, const QString& rootName) : root_(parsed(text), rootName) {}

QByteArray XmlDocument::text()
{
    root_.commit();
    return isOpen() ? root_.document()->text() : QByteArray();
}

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
