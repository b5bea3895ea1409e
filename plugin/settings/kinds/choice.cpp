#include "settings/kinds/choice.h"

#include "base/number_text.h"
#include "settings/kinds/spelling.h"

namespace vlk {

namespace {

bool fits(const char* pattern, const QString& text)
{
    const std::string_view positions(pattern);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (positions[i] != '*' && (positions[i] == '1') != (digitAt(text, i) != 0))
            return false;
    }
    return true;
}

const Code* find(const Choice& row, const QString& text)
{
    const QString wanted = row.numeric ? spelled(static_cast<qint64>(leadingInt(text)), text) : text;
    const auto is = [&](const Code& code) {
        return code.pattern ? fits(code.pattern, text) : QLatin1String(code.code) == wanted;
    };
    const auto found = std::find_if(row.codes.begin(), row.codes.end(), is);
    if (found == row.codes.end())
        return nullptr;
    return found->means ? find(row, QString::fromLatin1(found->means)) : &*found;
}

} // namespace

bool offersCode(const Code& code, const Limits& limits)
{
    const QLatin1String text(code.code);
    return (limits.offers ? isListed(limits.offers, text) : code.offered && !code.means) &&
           !limits.taken.contains(text);
}

bool isNoItem(const Choice& row, const QString& value)
{
    return row.none && value == QLatin1String(row.none);
}

QString firstOffered(const Choice& row, const Limits& limits)
{
    const auto found = std::find_if(row.codes.begin(), row.codes.end(),
                                    [&](const Code& code) { return offersCode(code, limits); });
    return QString::fromLatin1(found == row.codes.end() ? row.none : found->code);
}

QString nextOffered(const Choice& row, const QString& value, const Limits& limits)
{
    const char* found = row.none;
    bool behind = false;
    for (const Code& code : row.codes) {
        if (offersCode(code, limits)) {
            found = code.code;
            if (behind)
                break;
        }
        behind = behind || QLatin1String(code.code) == value;
    }
    return QString::fromLatin1(found);
}

QString codeText(const Code& code)
{
    const QString text = QString::fromLatin1(code.format).arg(captionParts(code.label).before);
    return code.second ? text.arg(translated(code.second)) : text;
}

Normalised normalised(const Choice& row, const Reading& reading)
{
    const Code* code = find(row, reading.text);
    if (code && offersCode(*code, reading.limits))
        return normalisedTo(spelled(QLatin1String(code->code), reading.text), reading.text,
                            Change::otherForm);
    const QString fallback = row.fallback ? QString::fromLatin1(row.fallback) : reading.before;
    if (!code)
        return normalisedTo(reading.limits.taken.contains(fallback) ? reading.before : fallback, reading.text,
                            Change::unknownCode);
    return normalisedTo(row.unoffered == Unoffered::keepsValue ? reading.before
                        : row.none                             ? QString::fromLatin1(row.none)
                                                               : fallback,
                        reading.text, Change::notOffered);
}

QString toldText(const Choice& row, const QString& value, const char* /*unit*/)
{
    for (const Code& code : row.codes) {
        if (QLatin1String(code.code) == value && *code.label)
            return codeText(code);
    }
    return value;
}

} // namespace vlk
