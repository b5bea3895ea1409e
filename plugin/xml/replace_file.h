#pragma once

// Puts a whole new document in the place of a file.

#include <QByteArray>
#include <QString>

namespace vlk {

// True when the file at `path` now holds `document`. Otherwise it holds what it held before, and the log
// (vlk.xml) says why. At every moment in between the file is one of the two, whole. Symbolic links are
// followed and permissions kept. Where no file may be made beside it, the file is written over in place;
// while that lasts it may end in blank lines, which mean nothing in XML.
bool replaceFile(const QString& path, const QByteArray& document);

} // namespace vlk
