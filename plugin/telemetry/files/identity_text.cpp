#include "telemetry/files/identity_text.h"

#include "telemetry/files/binary_layout.h"
#include "telemetry/files/checksums.h"

#include <QtEndian>

#include <algorithm>

namespace vlk {

QByteArray scrambled(const QByteArray& identity, const QByteArray& key)
{
    QByteArray bytes = identity;
    for (int i = 0; i < bytes.size(); ++i) {
        auto byte = static_cast<quint8>(bytes[i]);
        // All of it in eight bits: signed or not, the sum of the key byte and the product is the same there.
        for (int j = 0; j < key.size(); ++j)
            byte ^= static_cast<quint8>(static_cast<quint8>(key[j]) +
                                        static_cast<quint8>(i) * static_cast<quint8>(j));
        bytes[i] = static_cast<char>(byte);
    }
    return bytes.toHex();
}

QByteArray identityKey(quint32 time)
{
    return QByteArray::number(time).left(8);
}

QByteArray identityIn(std::span<const std::uint8_t> header)
{
    if (header.size() < binary::kHeaderBytes ||
        qFromLittleEndian<quint32>(&header[binary::kMagicAt]) != binary::kMagic ||
        qFromLittleEndian<quint16>(&header[binary::kHeaderCrcAt]) != crc8(header.first(binary::kHeaderCrcAt)))
        return {};
    const int length = std::min<int>(header[binary::kIdentityLengthAt], binary::kIdentityBytes);
    const QByteArray text(reinterpret_cast<const char*>(&header[binary::kIdentityAt]), length);
    const auto firstTime = qFromLittleEndian<quint32>(&header[binary::kFirstTimeAt]);
    // Doing it twice undoes it.
    return QByteArray::fromHex(scrambled(QByteArray::fromHex(text), identityKey(firstTime)));
}

} // namespace vlk
