#include "base/windows1251.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

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
    // Each byte is a character; asking the codec takes several times as long as looking them up.
    static const auto characters = [] {
        std::array<QChar, 256> all;
        for (std::size_t byte = 0; byte < all.size(); ++byte)
            all[byte] = codec()->toUnicode(QByteArray(1, static_cast<char>(byte)))[0];
        return all;
    }();
    QString text(bytes.size(), Qt::Uninitialized);
    std::ranges::transform(bytes, text.begin(),
                           [](char byte) { return characters[static_cast<std::uint8_t>(byte)]; });
    return text;
}

} // namespace vlk
