#pragma once

// Files that are saved whole or not at all: what was there before stays until the new one is complete. In the
// header alone, so that the workbench, which links nothing of the plug-in, saves in the same way.

#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace vlk {

// True when all that was written to the file has reached the disk; `error` tells what the disk said, if it
// said anything.
inline bool flushToDisk(QFileDevice& file, QString* error)
{
    if (!file.flush())
        return false;
#ifdef Q_OS_UNIX
    if (fdatasync(file.handle()) != 0) {
        *error = qt_error_string(errno);
        return false;
    }
#endif
    return true;
}

// The reason why a save came to nothing.
inline QString whyNotSaved(QFileDevice& file)
{
#ifdef Q_OS_UNIX
    // Qt gives no reason for a write that was done in part. One more byte gives it, and harms nothing in a
    // file that is thrown away.
    if (file.isOpen() && write(file.handle(), "", 1) < 0)
        return qt_error_string(errno);
#endif
    return file.errorString();
}

// `write` puts the content into the file and says whether it could. On failure `reason`, where given, says
// why.
template <class Write>
bool saveWhole(QSaveFile& file, Write write, QString* reason = nullptr)
{
    // commit() alone misses a last buffer that was written in part and a disk that refused the data.
    QString error;
    const bool saved =
        file.open(QIODevice::WriteOnly) && write(file) && flushToDisk(file, &error) && file.commit();
    if (!saved && reason)
        *reason = error.isEmpty() ? whyNotSaved(file) : error;
    return saved;
}

inline bool saveWhole(QSaveFile& file, const QByteArray& content, QString* reason = nullptr)
{
    return saveWhole(
        file, [&content](QIODevice& device) { return device.write(content) == content.size(); }, reason);
}

} // namespace vlk
