#include "xml/xml_text.h"

#include "base/windows1251.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vlk {

namespace {

// In the order in which they are replaced, in both directions.
constexpr char16_t escapedInNames[] = u" &><\"'!:;%`~@#$^*()-+=|\\\u00F7\u00D7,/";
constexpr int escapedCount = std::size(escapedInNames) - 1;

// The code is that of a signed byte, so U+00F7 and U+00D7 have negative ones.
QString escapeOf(char16_t character)
{
    return QStringLiteral("_%1_").arg(static_cast<qint8>(character));
}

const QString* escapes()
{
    static const auto table = [] {
        std::array<QString, escapedCount> made;
        std::transform(escapedInNames, escapedInNames + escapedCount, made.begin(), escapeOf);
        return made;
    }();
    return table.data();
}

// In the order in which they are replaced: "&amp;lt;" becomes "&lt;" and then "<".
constexpr struct
{
    const char* entity;
    char character;
} entities[] = {
    {"&amp;", '&'},  {"&nbsp;", ' '},  {"&gt;", '>'}, {"&lt;", '<'},
    {"&quot;", '"'}, {"&apos;", '\''}, {"_33_", '!'},
};

const char* encoded(QChar character)
{
    switch (character.unicode()) {
    case '&':
        return "&amp;";
    case '>':
        return "&gt;";
    case '<':
        return "&lt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&apos;";
    case '\t':
    case '\n':
    case '\r':
        return nullptr;
    default:
        return character.unicode() < 0x20 ? "?" : nullptr;
    }
}

} // namespace

QString escapeName(const QString& name)
{
    QString escaped = name;
    for (int i = 0; i < escapedCount; ++i)
        escaped.replace(QChar(escapedInNames[i]), escapes()[i]);
    return escaped;
}

QString unescapeName(const QString& name)
{
    if (!name.contains('_'))
        return name;
    QString plain = name;
    for (int i = 0; i < escapedCount; ++i)
        plain.replace(escapes()[i], QString(QChar(escapedInNames[i])));
    return plain;
}

QString encodeValue(const QString& value)
{
    if (std::none_of(value.begin(), value.end(), encoded))
        return value;
    QString text;
    text.reserve(value.size() + 16);
    for (const QChar character : value) {
        if (const char* replacement = encoded(character))
            text += QLatin1String(replacement);
        else
            text += character;
    }
    return text;
}

QString decodeValue(const QString& value)
{
    if (!value.contains('&') && !value.contains('_'))
        return value;
    QString text = value;
    for (const auto& [entity, character] : entities)
        text.replace(QLatin1String(entity), QLatin1String(&character, 1));
    return text;
}

QString sectionText(const QString& text)
{
    const auto carriedAsItStands = [](QChar character) {
        return character.unicode() != 0 && character.unicode() < 0x80;
    };
    if (text.size() <= sectionTextLimit && std::all_of(text.begin(), text.end(), carriedAsItStands))
        return text;
    // Two code units make at most one byte, so no more than this of a long text is looked at.
    QByteArray bytes = toWindows1251(text.left(2 * sectionTextLimit));
    const int end = bytes.indexOf('\0');
    bytes.truncate(std::min(end < 0 ? bytes.size() : end, sectionTextLimit));
    return fromWindows1251(bytes);
}

} // namespace vlk
