#include "xml/xml_text.h"

#include "base/windows1251.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <iterator>

namespace vlk {

namespace {

// In the order in which they are replaced, in both directions.
constexpr char16_t kEscapedInNames[] = u" &><\"'!:;%`~@#$^*()-+=|\\\u00F7\u00D7,/";
constexpr int kEscapedCount = std::size(kEscapedInNames) - 1;

// The code is that of a signed byte, so U+00F7 and U+00D7 have negative ones.
QString escapeOf(char16_t character)
{
    return QStringLiteral("_%1_").arg(static_cast<qint8>(character));
}

const QString* escapes()
{
    static const auto table = [] {
        std::array<QString, kEscapedCount> made;
        std::transform(kEscapedInNames, kEscapedInNames + kEscapedCount, made.begin(), escapeOf);
        return made;
    }();
    return table.data();
}

// In the order in which they are replaced: "&amp;lt;" becomes "&lt;" and then "<".
constexpr struct
{
    const char* entity;
    char character;
} kEntities[] = {
    {"&amp;", '&'},  {"&nbsp;", ' '},  {"&gt;", '>'}, {"&lt;", '<'},
    {"&quot;", '"'}, {"&apos;", '\''}, {"_33_", '!'},
};

// Without NUL.
bool isAscii(const QString& text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() - 1U < 0x7F; });
}

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

// The characters of windows-1251, each of which is one byte. A codec call for every text would cost more than
// all the rest of a section.
const std::bitset<0x10000>& carriedCharacters()
{
    static const auto characters = [] {
        std::bitset<0x10000> made;
        for (int byte = 0; byte < 0x100; ++byte) {
            const QByteArray bytes(1, static_cast<char>(byte));
            const QString text = fromWindows1251(bytes);
            if (text.size() == 1 && toWindows1251(text) == bytes)
                made.set(text[0].unicode());
        }
        return made;
    }();
    return characters;
}

} // namespace

QString escapeName(const QString& name)
{
    QString escaped = name;
    for (int i = 0; i < kEscapedCount; ++i)
        escaped.replace(QChar(kEscapedInNames[i]), escapes()[i]);
    return escaped;
}

QString unescapeName(const QString& name)
{
    if (!name.contains('_'))
        return name;
    QString plain = name;
    for (int i = 0; i < kEscapedCount; ++i)
        plain.replace(escapes()[i], QString(QChar(kEscapedInNames[i])));
    return plain;
}

QString encodeValue(const QString& value)
{
    if (std::ranges::none_of(value, encoded))
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
    if (std::ranges::none_of(value, [](QChar sign) { return sign == '&' || sign == '_'; }))
        return value;
    QString text = value;
    for (const auto& [entity, character] : kEntities)
        text.replace(QLatin1String(entity), QLatin1String(&character, 1));
    return text;
}

QString sectionText(const QString& text)
{
    if (text.size() <= kSectionTextLimit && isAscii(text))
        return text;
    const auto& carriedOnes = carriedCharacters();
    const auto stands = [&carriedOnes](QChar character) {
        return !character.isNull() && carriedOnes[character.unicode()];
    };
    if (text.size() <= kSectionTextLimit && std::ranges::all_of(text, stands))
        return text;
    QString carried;
    for (int i = 0; i < text.size() && !text[i].isNull() && carried.size() < kSectionTextLimit; ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        carried += stands(text[i]) ? text[i] : QChar('?');
    }
    return carried;
}

} // namespace vlk
