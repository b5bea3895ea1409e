#pragma once

// The tracker's identity in the header of the binary form is not stored as it stands.

#include <QByteArray>

#include <span>

namespace vlk {

// Twice as many hexadecimal digits as the identity has bytes: each byte XORed with the key, whose bytes are
// shifted by the product of the two positions.
QByteArray scrambled(const QByteArray& identity, const QByteArray& key);

// The key of a file, from the time of its first record: the first eight digits of it.
QByteArray identityKey(quint32 time);

// The identity that the header of a file tells; empty where it tells none, or is damaged.
QByteArray identityIn(std::span<const std::uint8_t> header);

} // namespace vlk
