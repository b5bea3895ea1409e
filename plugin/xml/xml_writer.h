#pragma once

// Writes the tree of a document as text: declared and encoded as windows-1251 on every system, one tab of
// indent a level, "\n" at the line ends. Attributes stand in the order in which they were first set, each
// with its last value.

#include <QTextStream>

class CXmlNode;

class CXmlWriter : public QTextStream
{
public:
    explicit CXmlWriter(QByteArray* target);

    void writeDocument(const CXmlNode& root);

private:
    void writeChildren(const CXmlNode& node);
    void writeElement(const CXmlNode& element);
    void writeText(const CXmlNode& element);
    void writeAttributes(const CXmlNode& element);

    QString indent_;
};
