#pragma once

// Puts a whole new content in the place of a file.

#include <QByteArray>
#include <QString>

#include <functional>

class QFile;
class QIODevice;

namespace vlk {

// Puts the content into the device and says whether it could. Asked a second time, it gives the same.
using WriteContent = std::function<bool(QIODevice& device)>;

// True when the file at `path` now holds the content, and the disk has it. Otherwise it holds what it held
// before, and the log (save_log.h) says why. At every moment in between the file is one of the two, whole.
// Symbolic links are followed and permissions kept.
//
// The new file is made beside the old one, hidden, and takes its name. What a killed process leaves there is
// removed by the next save. Where no file may be made beside it, the file is written over in place, from
// memory; while that lasts it may end in blank lines, which mean nothing in any form that we save. When even
// the old content cannot be put back then, the log says that it is lost.
// With a `reason`, that is told there in place of the log.
bool replaceFile(const QString& path, const WriteContent& write, QString* reason = nullptr);
bool replaceFile(const QString& path, const QByteArray& content, QString* reason = nullptr);

// Replaces a file that its owner alone may read, from its first byte on. The log says nothing: `reason` tells
// why it came to nothing.
bool replacePrivateFile(const QString& path, const QByteArray& content, QString* reason);

// A file without a name in the folder of `path`, in which much is collected before putInPlace() makes it the
// content there: of a process that is killed nothing is left. False where the folder takes none.
bool openBeside(QFile& file, const QString& path);
// As replaceFile() does. False where that is not possible; the content is still in the file then.
bool putInPlace(QFile& file, const QString& path);

// Why a file at `path` could not be written now, as the system words it; empty if it could. Tries it out, and
// leaves everything as it was.
QString whyNotReplaceable(const QString& path);

} // namespace vlk
