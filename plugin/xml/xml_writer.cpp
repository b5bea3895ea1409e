#include "xml/xml_writer.h"

#include "xml/xml_node.h"
#include "xml/xml_text.h"

#include <QTextCodec>

CXmlWriter::CXmlWriter(QByteArray* target) : QTextStream(target, QIODevice::WriteOnly)
{
    static QTextCodec* const windows1251 = QTextCodec::codecForName("windows-1251");
    setCodec(windows1251);
}

void CXmlWriter::writeDocument(const CXmlNode& root)
{
    *this << "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n";
    writeElement(root);
    flush();
}

void CXmlWriter::writeChildren(const CXmlNode& node)
{
    for (const auto& child : node.children) {
        *this << indent_;
        switch (child->kind) {
        case CXmlNode::Text:
            writeText(*child);
            break;
        case CXmlNode::Empty:
            *this << '<' << child->name;
            writeAttributes(*child);
            *this << "/>\n";
            break;
        default:
            writeElement(*child);
        }
    }
}

void CXmlWriter::writeElement(const CXmlNode& element)
{
    const QString name = vlk::escapeName(element.name);
    *this << '<' << name;
    writeAttributes(element);
    *this << ">\n";
    indent_ += '\t';
    writeChildren(element);
    indent_.chop(1);
    *this << indent_ << "</" << name << ">\n";
}

void CXmlWriter::writeText(const CXmlNode& element)
{
    const QString name = vlk::escapeName(element.name);
    if (element.value.isEmpty())
        *this << '<' << name << " />\n";
    else
        *this << '<' << name << '>' << vlk::encodeValue(element.value) << "</" << name << ">\n";
    writeChildren(element);
}

void CXmlWriter::writeAttributes(const CXmlNode& element)
{
    for (const CXmlAttribute& attribute : element.attributes)
        *this << ' ' << attribute.name << "=\"" << vlk::encodeValue(attribute.value) << '"';
}
