#include "settings/kinds/choice.h"

#include "base/number_text.h"

namespace vlk {

namespace {

bool fits(const char* pattern, const QString& text)
{
    for (std::size_t i = 0; pattern[i] != '\0'; ++i) {
        if (pattern[i] != '*' && (pattern[i] == '1') != (digitAt(text, i) != 0))
            return false;
    }
    return true;
}

} // namespace

const Code* codeOf(const Choice& row, const QString& text)
{
    const QString wanted = row.numeric ? spelled(static_cast<qint64>(leadingInt(text)), text) : text;
    const auto is = [&](const Code& code) {
        return code.pattern ? fits(code.pattern, text) : QLatin1String(code.code) == wanted;
    };
    const auto found = std::ranges::find_if(row.codes, is);
    if (found == row.codes.end())
        return nullptr;
    return found->means ? codeOf(row, QString::fromLatin1(found->means)) : &*found;
}

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

QString offeredCode(const Choice& row, const Limits& limits, const QString* behind)
{
    const char* found = row.none;
    bool passed = !behind;
    for (const Code& code : row.codes) {
        if (offersCode(code, limits)) {
            found = code.code;
            if (passed)
                break;
        }
        passed = passed || QLatin1String(code.code) == *behind;
    }
    return QString::fromLatin1(found);
}

QString normalised(const Choice& row, const Reading& reading)
{
    // A list without a current item is nothing that a file could ask for.
    if (reading.source == Source::Edit && isNoItem(row, reading.text))
        return reading.text;
    const Code* code = codeOf(row, reading.text);
    if (code && offersCode(*code, reading.limits))
        return spelled(QLatin1String(code->code), reading.text);
    const QString fallback = row.fallback ? QString::fromLatin1(row.fallback) : reading.before;
    if (!code)
        return reading.limits.taken.contains(fallback) ? reading.before : fallback;
    return row.unoffered == Unoffered::KeepsValue ? reading.before
           : row.none                             ? QString::fromLatin1(row.none)
                                                  : fallback;
}

} // namespace vlk
