#pragma once

// Numbers as people and spreadsheets write them: "1 234,5", with blanks of any width between thousands. Qt
// Core alone, for what reads files as well as for what is typed.

#include <QRegularExpression>
#include <QString>

namespace vlk {

// The number without blanks between its thousands. Blanks that stand elsewhere stay: "12 34" is no number,
// and must not become another one.
inline QString withoutThousandsBlanks(const QString& number)
{
    static const QRegularExpression grouped(
        QStringLiteral("^[0-9]{1,3}([ \\x{a0}\\x{2009}\\x{202f}][0-9]{3})+([.,].*)?$"));
    static const QRegularExpression blank(QStringLiteral("[ \\x{a0}\\x{2009}\\x{202f}]"));
    return grouped.match(number).hasMatch() ? QString(number).remove(blank) : number;
}

} // namespace vlk
