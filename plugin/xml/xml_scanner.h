#pragma once

// Goes through the text of a document from tag to tag and tells where everything stands, in time that grows
// with the text alone: for a look before a reader whose time does not, and for edits that leave the rest of
// the text as it is. It checks nothing; what is no document gives tags all the same.
//
// Bytes in an encoding that contains ASCII are scanned as QString::fromLatin1() gives them: then a place is
// that of a byte.

#include <QString>

#include <vector>

namespace vlk {

// From `begin` up to `end`.
struct TextSpan
{
    int begin = 0;
    int end = 0;

    bool isEmpty() const { return begin == end; }
    int size() const { return end - begin; }
};

class XmlScanner
{
public:
    enum class Token { Start, End, None };
    struct Attribute
    {
        TextSpan name;
        TextSpan value; // between its quotes
        int end = 0;    // behind them
    };

    explicit XmlScanner(const QString& text) : text_(text) {}

    // The next tag; none behind the last one.
    Token next();

    // The last tag: its text, its name, its attributes.
    const TextSpan& tag() const { return tag_; }
    const TextSpan& name() const { return name_; }
    const std::vector<Attribute>& attributes() const { return attributes_; }
    // "<A/>", which no end tag follows.
    bool isClosed() const { return isClosed_; }

    QStringView at(const TextSpan& span) const { return QStringView(text_).mid(span.begin, span.size()); }

private:
    bool skipTo(QLatin1String end);
    bool skipMarkup();
    void skipSpace();
    TextSpan scanName();
    void scanAttributes();

    const QString& text_;
    int at_ = 0;
    TextSpan tag_;
    TextSpan name_;
    std::vector<Attribute> attributes_;
    bool isClosed_ = false;
};

// Whether a document is of a size that readers and trees can bear: a configuration has some hundred elements,
// none of which has a hundred attributes.
bool isOfBearableSize(const QString& text);

} // namespace vlk
