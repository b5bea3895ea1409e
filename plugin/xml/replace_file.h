#pragma once

// Puts a whole new document in the place of a file.

#include <QByteArray>
#include <QString>

namespace vlk {

// True when the file at `path` now holds `document`, and the disk has it. Otherwise it holds what it held
// before, and the log (save_log.h) says why. At every moment in between the file is one of the two, whole.
// Symbolic links are followed and permissions kept.
//
// The new document is made beside the file, hidden, and takes its name. What a killed process leaves there is
// removed by the next save. Where no file may be made beside it, the file is written over in place; while
// that lasts it may end in blank lines, which mean nothing in XML. When even the old content cannot be put
// back then, the log says that it is lost.
bool replaceFile(const QString& path, const QByteArray& document);

} // namespace vlk
