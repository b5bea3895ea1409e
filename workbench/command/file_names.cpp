#include "command/file_names.h"

#include <QTextCodec>

#include <algorithm>

namespace workbench::command {

namespace {

QString escaped(uchar byte)
{
    return QStringLiteral("%%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper();
}

// Bytes of the letter of UTF-8 that begins here; 0 where none does.
int letterAt(const QByteArray& bytes, int at)
{
    const auto lead = static_cast<uchar>(bytes[at]);
    const int size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    const QByteArray letter = bytes.mid(at, size);
    return QString::fromUtf8(letter).toUtf8() == letter ? size : 0;
}

} // namespace

void prepareFileNames()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
}

QString readable(const QString& name)
{
    const QByteArray bytes = name.toLatin1();
    QString text;
    for (int at = 0; at < bytes.size();) {
        const int size = letterAt(bytes, at);
        text += size > 0 ? QString::fromUtf8(bytes.mid(at, size)) : escaped(static_cast<uchar>(bytes[at]));
        at += std::max(size, 1);
    }
    return text;
}

QString valueInOneLine(const QString& value)
{
    QString line;
    for (const QChar sign : value) {
        if (sign.category() == QChar::Other_Control && sign.unicode() < 0x80)
            line += escaped(static_cast<uchar>(sign.unicode()));
        else if (sign.category() == QChar::Other_Control || sign == QChar::LineSeparator ||
                 sign == QChar::ParagraphSeparator)
            line += QLatin1Char(' ');
        else
            line += sign;
    }
    return line;
}

QString inOneLine(const QString& name)
{
    return valueInOneLine(readable(name));
}

QString systemText(const QString& text)
{
    const bool isBytes = std::ranges::all_of(text, [](QChar sign) { return sign.unicode() < 0x100; });
    return isBytes ? readable(text) : text;
}

} // namespace workbench::command
