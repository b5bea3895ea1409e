#include "xml/replace_file.h"

#include "base/whole_file.h"
#include "xml/xml_log.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace vlk {

namespace {

bool writeAt(QFile& file, qint64 position, const QByteArray& bytes)
{
    if (!file.seek(position) || file.write(bytes) != bytes.size())
        return false;
#ifdef Q_OS_UNIX
    fsync(file.handle());
#endif
    return true;
}

// Three steps, each of which leaves a whole document: blank lines behind the old one, which also reserve the
// space; the new one and blank lines over both, in one write; the end cut off.
bool overwrite(const QString& path, const QByteArray& document, QString* error)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() ||
        !file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        *error = file.errorString();
        return false;
    }
    const QByteArray old = file.readAll();
    bool done = old.isEmpty() || document.size() <= old.size() ||
                writeAt(file, old.size(), QByteArray(document.size() - old.size(), '\n'));
    if (done && !writeAt(file, 0, document.leftJustified(old.size(), '\n'))) {
        done = false;
        writeAt(file, 0, old);
    }
    if (!done)
        *error = file.errorString();
    return file.resize(done ? document.size() : old.size()) && done;
}

} // namespace

bool replaceFile(const QString& path, const QByteArray& document)
{
    // An empty file, as the opening of a document leaves one, is nothing to lose. Without it the new one
    // appears in a single step; over an old one it needs a name of its own for a moment.
    const QFileInfo before(path);
    if (before.isFile() && before.size() == 0 && before.isWritable() && !before.isSymLink())
        QFile::remove(path);

    QSaveFile file(path);
    if (saveWhole(file, document))
        return true;
    QString error;
    if (overwrite(path, document, &error))
        return true;
    qCWarning(lcXml).noquote() << "cannot save" << path << ':' << file.errorString() << ';' << error;
    return false;
}

} // namespace vlk
