#include "review/key_text.h"

#include "xml/xml_scanner.h"
#include "xml/xml_text.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTextCodec>

#include <algorithm>
#include <optional>

namespace vlk::review {

namespace {

using Token = XmlScanner::Token;

// Where a key stands, or where it would: the deepest of its elements that is there.
struct KeyPlace
{
    int known = -1;   // elements of the path that are there; -1: not even the root
    TextSpan name{};  // of the deepest one
    TextSpan start{}; // its tags; no end where the start closes it
    TextSpan end{};
    bool isClosed = false;
    bool hasChildren = false;
    int attributes = 0;
    int attributesEnd = 0;            // behind the last one, or the element's name
    std::optional<TextSpan> before{}; // of the key as an attribute, the white space in front of it too
    TextSpan value{};
    // The key as a child with a text.
    std::optional<TextSpan> child{};
    TextSpan childText{}; // empty where its tag closes it
    bool isChildClosed = false;
};

class KeySearch
{
public:
    KeySearch(const QString& text, const QString& path)
        : scanner_(text), names_(path.split(QLatin1Char('/'))), key_(names_.takeLast())
    {
    }

    KeyPlace run()
    {
        int depth = 0;
        for (Token token = scanner_.next(); token != Token::None; token = scanner_.next()) {
            // Children of the deepest element that was found stand at this depth.
            const int inside = place_.known + 1;
            if (token == Token::Start) {
                if (depth == inside)
                    lookAtChild();
                if (place_.isClosed)
                    break;
                depth += !scanner_.isClosed();
            } else {
                --depth;
                if (depth == inside && place_.child && place_.child->isEmpty()) {
                    place_.childText.end = scanner_.tag().begin;
                    place_.child->end = scanner_.tag().end;
                }
                if (depth < inside) {
                    place_.end = scanner_.tag();
                    break;
                }
            }
        }
        return place_;
    }

private:
    void lookAtChild()
    {
        const QString name = unescapeName(scanner_.at(scanner_.name()).toString());
        place_.hasChildren = true;
        const bool isNext =
            place_.known < 0 || (place_.known < names_.size() && name == names_[place_.known]);
        if (isNext) {
            enter();
        } else if (place_.known == names_.size() && name == key_ && scanner_.attributes().empty() &&
                   !place_.child) {
            place_.isChildClosed = scanner_.isClosed();
            place_.child = {scanner_.tag().begin,
                            place_.isChildClosed ? scanner_.tag().end : scanner_.tag().begin};
            place_.childText = {scanner_.tag().end, scanner_.tag().end};
        }
    }

    void enter()
    {
        place_ = {.known = place_.known + 1,
                  .name = scanner_.name(),
                  .start = scanner_.tag(),
                  .isClosed = scanner_.isClosed(),
                  .attributes = static_cast<int>(scanner_.attributes().size()),
                  .attributesEnd = scanner_.name().end};
        for (const XmlScanner::Attribute& attribute : scanner_.attributes()) {
            if (!place_.before && place_.known == names_.size() && scanner_.at(attribute.name) == key_) {
                place_.before = TextSpan{place_.attributesEnd, attribute.end};
                place_.value = attribute.value;
            }
            place_.attributesEnd = attribute.end;
        }
    }

    XmlScanner scanner_;
    QStringList names_;
    QString key_;
    KeyPlace place_;
};

QTextCodec* codecOf(const QByteArray& document)
{
    static const QRegularExpression declared(
        QStringLiteral(R"(^[^<]*<\?xml\s[^>]*encoding\s*=\s*["']([\w.-]+))"));
    const QByteArray name = declared.match(QString::fromLatin1(document.left(200))).captured(1).toLatin1();
    QTextCodec* codec = name.isEmpty() ? nullptr : QTextCodec::codecForName(name);
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

QByteArray attributeText(const QString& name, const QByteArray& value)
{
    return ' ' + name.toLatin1() + "=\"" + value + '"';
}

// Elements, one in another, of which the innermost holds the key.
QByteArray elementsText(const QStringList& names, const QByteArray& key, bool isSection,
                        const QByteArray& indent)
{
    const QByteArray name = escapeName(names.first()).toLatin1();
    const QByteArray start = indent + '<' + name + (isSection ? " page=\"" + name + '"' : QByteArray());
    const QByteArray lineEnd = indent.isEmpty() ? "" : "\n";
    if (names.size() == 1)
        return start + key + "/>" + lineEnd;
    return start + '>' + lineEnd +
           elementsText(names.mid(1), key, false, indent.isEmpty() ? indent : indent + '\t') + indent + "</" +
           name + '>' + lineEnd;
}

// Where the line begins in which nothing stands in front of the tag; none where something does.
std::optional<int> lineStart(const QByteArray& document, int tag)
{
    while (tag > 0 && (document[tag - 1] == '\t' || document[tag - 1] == ' '))
        --tag;
    return tag > 0 && document[tag - 1] == '\n' ? std::optional(tag) : std::nullopt;
}

QByteArray withElements(const QByteArray& document, const KeyPlace& place, const QStringList& missing,
                        const QByteArray& key)
{
    const bool isSection = place.known == 0;
    QByteArray text = document;
    if (place.isClosed) {
        const QByteArray name = document.mid(place.name.begin, place.name.size());
        return text.replace(place.attributesEnd, place.start.end - place.attributesEnd,
                            '>' + elementsText(missing, key, isSection, {}) + "</" + name + '>');
    }
    const std::optional<int> line = lineStart(document, place.end.begin);
    return text.insert(
        line.value_or(place.end.begin),
        elementsText(missing, key, isSection, line ? QByteArray(place.known + 1, '\t') : QByteArray()));
}

KeyPlace placeIn(const QByteArray& document, const QString& path)
{
    const QString text = QString::fromLatin1(document);
    return KeySearch(text, path).run();
}

QByteArray withKeyIn(const QByteArray& document, const QString& path, const QString& value,
                     const QTextCodec& codec)
{
    const KeyPlace place = placeIn(document, path);
    if (place.known < 0)
        return document;
    QStringList missing = path.split(QLatin1Char('/')).mid(place.known);
    const QString name = missing.takeLast();
    const QByteArray written = codec.fromUnicode(encodeValue(value));
    QByteArray text = document;
    if (place.before)
        return text.replace(place.value.begin, place.value.size(), written);
    if (place.child && place.isChildClosed)
        return text.replace(place.child->begin, place.child->size(),
                            '<' + name.toLatin1() + '>' + written + "</" + name.toLatin1() + '>');
    if (place.child)
        return text.replace(place.childText.begin, place.childText.size(), written);
    if (missing.isEmpty())
        return text.insert(place.attributesEnd, attributeText(name, written));
    return withElements(document, place, missing, attributeText(name, written));
}

QByteArray withoutKeyIn(const QByteArray& document, const QString& path)
{
    const KeyPlace place = placeIn(document, path);
    if (!place.before && !place.child)
        return document;
    const bool wasAll = place.known > 1 && place.attributes == 1 && !place.hasChildren;
    TextSpan gone = place.before ? *place.before : *place.child;
    QByteArray text = document;
    if (wasAll) {
        gone = {place.start.begin, place.isClosed ? place.start.end : place.end.end};
        const std::optional<int> line = lineStart(document, gone.begin);
        if (line && gone.end < document.size() && document[gone.end] == '\n')
            gone = {*line, gone.end + 1};
    }
    return text.remove(gone.begin, gone.size());
}

// Edits the document, one of two or four bytes a sign as UTF-8, so that the edit finds its ASCII.
template <class Edit>
QByteArray editedAsAscii(const QByteArray& document, Edit edit)
{
    const QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
    const QTextCodec* own = QTextCodec::codecForUtfText(document, nullptr);
    if (!own || own == utf8)
        return edit(document, *codecOf(document));
    const QByteArray before = own->toUnicode(document).toUtf8();
    const QByteArray after = edit(before, *utf8);
    return after == before ? document : own->fromUnicode(QString::fromUtf8(after));
}

} // namespace

QByteArray withKey(const QByteArray& document, const QString& path, const QString& value)
{
    return editedAsAscii(document, [&](const QByteArray& text, const QTextCodec& codec) {
        return withKeyIn(text, path, value, codec);
    });
}

QByteArray withoutKey(const QByteArray& document, const QString& path)
{
    return editedAsAscii(document, [&](const QByteArray& text, const QTextCodec& /*codec*/) {
        return withoutKeyIn(text, path);
    });
}

} // namespace vlk::review
