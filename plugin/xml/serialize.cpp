#include "xml/serialize.h"

#include "xml/replace_file.h"
#include "xml/xml_handler.h"
#include "xml/xml_log.h"
#include "xml/xml_writer.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlSimpleReader>

#include <utility>

// Qt 6 drops this reader; the rules of the format are those of the reader, so it stays.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace {

// A configuration has no document type; one that has is refused, because its declarations could nest or
// expand without bound.
class NoDocumentType : public QXmlDefaultHandler
{
public:
    bool startDTD(const QString&, const QString&, const QString&) override { return false; }
};

} // namespace

bool CSerialize::parse(const QByteArray& text)
{
    QXmlInputSource source;
    source.setData(text);
    CXmlDefaultHandler handler;
    NoDocumentType noDocumentType;
    QXmlSimpleReader reader;
    reader.setFeature("http://xml.org/sax/features/namespaces", false);
    reader.setFeature("http://xml.org/sax/features/namespace-prefixes", true);
    reader.setContentHandler(&handler);
    reader.setLexicalHandler(&noDocumentType);
    if (!reader.parse(source))
        return false;
    root_ = handler.takeRoot();
    return root_ != nullptr;
}

QT_WARNING_POP

CSerialize::CSerialize(QString fileName) : fileName_(std::move(fileName)) {}

bool CSerialize::load()
{
    if (fileName_.isEmpty())
        return true;
    QFile file(fileName_);
    if (!file.exists()) {
        if (!file.open(QIODevice::WriteOnly))
            qCWarning(vlk::lcXml).noquote() << "cannot make" << fileName_ << ':' << file.errorString();
        return true;
    }
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(vlk::lcXml).noquote() << "cannot open" << fileName_ << ':' << file.errorString();
        return false;
    }
    if (file.size() == 0)
        return true;
    if (file.size() <= maxFileSize && parse(file.read(file.size())))
        return true;
    qCWarning(vlk::lcXml).noquote() << fileName_ << "is not a document";
    return false;
}

void CSerialize::save()
{
    if (!root_ || fileName_.isEmpty())
        return;
    QByteArray text;
    CXmlWriter(&text).writeDocument(*root_);
    vlk::replaceFile(fileName_, text);
}

CXmlNode* CSerialize::node(CXmlNode* parent, const QString& name, qint32 kind)
{
    if (!parent) {
        if (!root_ || root_->name != name)
            root_ = std::make_unique<CXmlNode>(name);
        return root_.get();
    }
    CXmlNode* const known = kind == CXmlNode::Element ? parent->child(name) : nullptr;
    return known ? known : parent->addChild(name, kind);
}

void CSerialize::clearContent(CXmlNode* node)
{
    if (!node || (node->parent && node->parent->parent))
        return;
    node->children.clear();
    node->attributes.clear();
}

void closeDocument(CSerialize* document, bool save)
{
    if (document && save)
        document->save();
    delete document;
}
