#include "base/windows1251.h"

#include <QTextCodec>

namespace vlk {

namespace {
QTextCodec* codec()
{
    static QTextCodec* const windows1251 = QTextCodec::codecForName("windows-1251");
    return windows1251;
}
} // namespace

QByteArray toWindows1251(const QString& text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec()->fromUnicode(text.constData(), text.size(), &state);
}

QString fromWindows1251(const QByteArray& bytes)
{
    return codec()->toUnicode(bytes);
}

} // namespace vlk
