#include "review/settable.h"

#include "base/masked_text.h"
#include "base/number_text.h"
#include "review/file_keys.h"
#include "xml/xml_text.h"

#include <QRegularExpression>

#include <algorithm>

namespace vlk::review {

namespace {

bool fits(const char* pattern, const QString& text)
{
    return QRegularExpression(QLatin1String(pattern)).match(text).hasMatch();
}

// Whether the form of a line edit takes all of the text: it may leave out the signs of the form.
bool isTakenWhole(const char* mask, const QString& text)
{
    const QString form = QString::fromLatin1(mask);
    const auto places = [&form](QString filled) {
        for (const QChar sign : form) {
            if (sign != QLatin1Char('H'))
                filled.remove(sign);
        }
        return filled;
    };
    return places(maskedText(form, text)) == places(text);
}

// No field of a window holds a line break or another control character, and no file brings one back.
bool isOneLine(const QString& text)
{
    return std::ranges::none_of(text, [](QChar sign) {
        return sign.category() == QChar::Other_Control && sign != QLatin1Char('\t');
    });
}

// Whether a line edit takes the text and does not mark it.
bool isProper(const Text& row, const QString& text)
{
    if (text.isEmpty())
        return true;
    if (row.pattern) {
        const QRegularExpression typed(QRegularExpression::anchoredPattern(QLatin1String(row.pattern)));
        const auto match = typed.match(text, 0, QRegularExpression::PartialPreferCompleteMatch);
        if (!match.hasMatch() && !match.hasPartialMatch())
            return false;
    }
    const QString held = row.mask ? maskedText(QString::fromLatin1(row.mask), text) : text;
    return (!row.mask || isTakenWhole(row.mask, text)) &&
           (!row.expectedPattern || fits(row.expectedPattern, held));
}

} // namespace

bool isSettable(const Setting& setting, const QString& text, Change change)
{
    const Number* number = setting.number();
    const auto* line = setting.as<Text>();
    // What a file would not bring back is none either.
    return change != Change::LooseForm && isOneLine(text) && sectionText(text) == text &&
           decodeValue(text) == text && (!line || isProper(*line, text)) &&
           (!number || !number->isPort || leadingLong(text) <= kHighestPort);
}

const Finding* errorOf(const std::vector<Finding>& findings, int key, const QString& value)
{
    const auto found = std::ranges::find_if(findings, [&](const Finding& finding) {
        return finding.severity == Severity::Error && finding.paths == QStringList{FileKeys::all()[key].path};
    });
    return value.isEmpty() || found == findings.end() ? nullptr : &*found;
}

} // namespace vlk::review
