#include "telemetry/files/identity_text.h"

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

} // namespace vlk
