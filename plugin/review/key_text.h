#pragma once

// Single keys in the text of a configuration document: all the rest of the text stays as it stands, comments,
// white space and what nobody knows, and its encoding.

#include <QByteArray>
#include <QString>

namespace vlk::review {

// The document with `value` at the path "TRACK/POINTS/angle": in the place of the value that counts now, else
// as the last key of its element, which is made where there is none.
QByteArray withKey(const QByteArray& document, const QString& path, const QString& value);
// Without it, and without its element if that held nothing else.
QByteArray withoutKey(const QByteArray& document, const QString& path);

} // namespace vlk::review
