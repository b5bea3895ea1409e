#pragma once

// Builds the tree of a document from the events of the XML reader. Values arrive decoded by the reader and
// are decoded once more here; names are unescaped. Of attributes of one name the first counts. A document
// nested deeper than kMaxDepth is refused, which keeps every walk over a tree short.

#include "xml/xml_node.h"

#include <QXmlDefaultHandler>

#include <memory>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
class CXmlDefaultHandler : public QXmlDefaultHandler
{
public:
    static constexpr int kMaxDepth = 100;

    bool startDocument() override;
    bool startElement(const QString& uri, const QString& localName, const QString& qualifiedName,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& uri, const QString& localName, const QString& qualifiedName) override;
    bool characters(const QString& text) override;

    // The tree read so far; null when there was no element.
    std::unique_ptr<CXmlNode> takeRoot();

private:
    std::unique_ptr<CXmlNode> root_;
    CXmlNode* current_ = nullptr;
    bool sawContent_ = false;
    int depth_ = 0;
};
QT_WARNING_POP
