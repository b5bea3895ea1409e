#include "xml/serialize.h"

#include "base/replace_file.h"
#include "base/windows1251.h"
#include "xml/xml_handler.h"
#include "xml/xml_log.h"
#include "xml/xml_scanner.h"
#include "xml/xml_writer.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlSimpleReader>

#include <utility>

// Deprecated, but the rules of the format are those of this reader.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace {

// True when the document type in front of the root element has no declarations of its own.
bool hasPlainDocumentType(const QString& text)
{
    static const QRegularExpression plain(
        QStringLiteral(
            R"(\A\s*(?:<\?.*?\?>\s*|<!--.*?-->\s*)*+<!DOCTYPE(?:[^"'\[>]++|"[^"]*+"|'[^']*+')*+>)"),
        QRegularExpression::DotMatchesEverythingOption);
    return plain.match(text).hasMatch();
}

// Text whose declaration names windows-1251 is decoded here: the reader would look the codec up by name for
// every document, which takes it as long as reading some kilobytes.
void setContent(QXmlInputSource& source, const QByteArray& text)
{
    static const QRegularExpression declaration(
        QStringLiteral(R"(\A<\?xml\s[^>]*encoding\s*=\s*["']windows-1251["'])"),
        QRegularExpression::CaseInsensitiveOption);
    // The declaration as it is written here; others are compared more slowly.
    static const QByteArray own(R"(<?xml version="1.0" encoding="windows-1251"?>)");
    if (text.startsWith(own) || declaration.match(QString::fromLatin1(text.left(100))).hasMatch())
        source.setData(vlk::fromWindows1251(text));
    else
        source.setData(text);
}

// Declarations could nest or expand without bound, so a document type that may hold some is refused.
class DocumentTypeCheck : public QXmlDefaultHandler
{
public:
    explicit DocumentTypeCheck(QString text) : text_(std::move(text)) {}

    bool startDTD(const QString&, const QString&, const QString&) override
    {
        return hasPlainDocumentType(text_);
    }

private:
    QString text_;
};

} // namespace

bool CSerialize::parse(const QByteArray& text)
{
    QXmlInputSource source;
    setContent(source, text);
    const QString decoded = source.data();
    // The reader compares each attribute of an element with all the others, and a tree has no end.
    if (!vlk::isOfBearableSize(decoded))
        return false;
    CXmlDefaultHandler handler;
    DocumentTypeCheck documentType(decoded);
    QXmlSimpleReader reader;
    reader.setFeature("http://xml.org/sax/features/namespaces", false);
    reader.setFeature("http://xml.org/sax/features/namespace-prefixes", true);
    reader.setContentHandler(&handler);
    reader.setLexicalHandler(&documentType);
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
    if (file.size() <= kMaxFileSize && parse(file.read(file.size())))
        return true;
    qCWarning(vlk::lcXml).noquote() << fileName_ << "is not a document";
    return false;
}

bool CSerialize::save() const
{
    return fileName_.isEmpty() || saveAs(fileName_);
}

QByteArray CSerialize::text() const
{
    QByteArray text;
    if (root_)
        CXmlWriter(&text).writeDocument(*root_);
    return text;
}

bool CSerialize::saveAs(const QString& fileName) const
{
    return !root_ || vlk::replaceFile(fileName, text());
}

CXmlNode* CSerialize::node(CXmlNode* parent, const QString& name, CXmlNode::Kind kind)
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
    node->passedOver.clear();
}

bool closeDocument(CSerialize* document, bool save)
{
    const bool done = !save || (document && document->save());
    delete document;
    return done;
}
