#include "base/replace_file.h"

#include "base/save_log.h"
#include "base/whole_file.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace vlk {

namespace {

enum class Outcome { Saved, Failed, NoRoomBeside };
enum class Readable { AsBefore, ByOwner };

// The hidden name beside the file under which the new one waits for its place.
QString nameBeside(const QFileInfo& file)
{
    return file.dir().filePath(QStringLiteral(".%1.new").arg(file.fileName()));
}

// Where the system has no files without a name, one that is being written is called after its later name, a
// point and six letters.
void removeStrays(const QString& beside)
{
    constexpr int letters = 7;
    const QFileInfo info(beside);
    const QStringList names = info.dir().entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (name == info.fileName() || (name.startsWith(info.fileName() + QLatin1Char('.')) &&
                                        name.size() == info.fileName().size() + letters))
            QFile::remove(info.dir().filePath(name));
    }
}

Outcome putBeside(const QFileInfo& target, const WriteContent& write, Readable readable, QString* reason)
{
    const QString beside = nameBeside(target);
    removeStrays(beside);
    bool opened = false;
    QSaveFile file(beside);
    const auto writeOpened = [&](QIODevice& device) {
        opened = true;
        if (readable == Readable::ByOwner)
            file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        else if (target.exists())
            file.setPermissions(target.permissions());
        return write(device);
    };
    if (!saveWhole(file, writeOpened, reason))
        return opened ? Outcome::Failed : Outcome::NoRoomBeside;
    if (std::rename(QFile::encodeName(beside).constData(),
                    QFile::encodeName(target.filePath()).constData()) == 0)
        return Outcome::Saved;
    *reason = qt_error_string(errno);
    QFile::remove(beside);
    return Outcome::NoRoomBeside;
}

bool writeAt(QFile& file, qint64 position, const QByteArray& bytes, QString* reason)
{
    // By pwrite, because QFile gives no reason for a write that was done in part.
    for (qint64 done = 0; done < bytes.size();) {
        const auto more = pwrite(file.handle(), bytes.constData() + done,
                                 static_cast<std::size_t>(bytes.size() - done), position + done);
        if (more < 0) {
            *reason = qt_error_string(errno);
            return false;
        }
        done += more;
    }
    return flushToDisk(file, reason);
}

// Three steps, each of which leaves a whole content: blank lines behind the old one, which also reserve the
// space; the new one and blank lines over both, in one write; the end cut off. A step that fails is taken
// back.
bool overwrite(const QString& path, const WriteContent& write, QString* reason)
{
    QByteArray content;
    QBuffer buffer(&content);
    if (!buffer.open(QIODevice::WriteOnly) || !write(buffer))
        return false;
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered);
    const QByteArray old = file.readAll();
    if (!opened || old.size() != file.size()) {
        *reason = file.errorString();
        return false;
    }
    const auto blank = [](int size) { return QByteArray(std::max(size, 0), '\n'); };
    const QByteArray longer = old.isEmpty() ? QByteArray() : blank(content.size() - old.size());
    if (!longer.isEmpty() && !writeAt(file, old.size(), longer, reason)) {
        file.resize(old.size());
        return false;
    }
    if (writeAt(file, 0, content + blank(old.size() - content.size()), reason)) {
        if (file.resize(content.size()))
            return true;
        *reason = file.errorString();
    }
    // On a full disk writing back may fail at a place that was not overwritten, so the content is compared.
    QString error;
    writeAt(file, 0, old + longer, &error);
    if (!file.seek(0) || !file.readAll().startsWith(old) || !flushToDisk(file, &error))
        *reason += QStringLiteral("; what the file held is lost: %1").arg(error);
    file.resize(old.size());
    return false;
}

// Where links lead to.
QFileInfo targetOf(const QString& path)
{
    QFileInfo target(path);
    if (target.isSymLink())
        target.setFile(target.exists() ? target.canonicalFilePath() : target.symLinkTarget());
    return target;
}

// Empty if nothing stands there, too.
QString whyClosed(const QFileInfo& target)
{
    if (!target.exists() || (target.isFile() && target.isWritable()))
        return {};
    return target.isFile() ? qt_error_string(EACCES) : QStringLiteral("not a file");
}

bool replace(const QString& path, const WriteContent& write, Readable readable, QString* reason)
{
    const QFileInfo target = targetOf(path);
    *reason = whyClosed(target);
    if (!reason->isEmpty())
        return false;
    const Outcome outcome = putBeside(target, write, readable, reason);
    if (outcome == Outcome::NoRoomBeside && target.exists())
        return overwrite(target.filePath(), write, reason);
    return outcome == Outcome::Saved;
}

WriteContent writing(const QByteArray& content)
{
    return [&content](QIODevice& device) { return device.write(content) == content.size(); };
}

} // namespace

bool replaceFile(const QString& path, const WriteContent& write, QString* reason)
{
    QString fault;
    if (replace(path, write, Readable::AsBefore, &fault))
        return true;
    if (reason)
        *reason = fault;
    else
        qCWarning(lcSave).noquote().nospace() << path << ": " << fault;
    return false;
}

bool openBeside(QFile& file, const QString& path)
{
    const QFileInfo target = targetOf(path);
    if (!whyClosed(target).isEmpty())
        return false;
    const QByteArray folder = QFile::encodeName(target.path());
    const int number = open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0666);
    return number >= 0 && file.open(number, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle);
}

bool putInPlace(QFile& file, const QString& path)
{
    const QFileInfo target = targetOf(path);
    QString reason;
    if (!whyClosed(target).isEmpty() || !flushToDisk(file, &reason))
        return false;
    if (target.exists())
        file.setPermissions(target.permissions());
    const QString hidden = nameBeside(target);
    removeStrays(hidden);
    const QByteArray beside = QFile::encodeName(hidden);
    const QByteArray nameless = "/proc/self/fd/" + QByteArray::number(file.handle());
    if (linkat(AT_FDCWD, nameless.constData(), AT_FDCWD, beside.constData(), AT_SYMLINK_FOLLOW) != 0)
        return false;
    if (std::rename(beside.constData(), QFile::encodeName(target.filePath()).constData()) == 0)
        return true;
    QFile::remove(hidden);
    return false;
}

QString whyNotReplaceable(const QString& path)
{
    const QFileInfo target = targetOf(path);
    QString reason = whyClosed(target);
    if (!reason.isEmpty())
        return reason;
    // Where no file may be made beside it, one that is there is written over in place.
    QFile old(target.filePath());
    if (target.exists() && old.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return {};
    const QString beside = nameBeside(target);
    removeStrays(beside);
    QFile probe(beside);
    if (!probe.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return probe.errorString();
    // A full disk takes the name of a file, but no byte of it.
    writeAt(probe, 0, QByteArray(1, '\n'), &reason);
    probe.remove();
    return reason;
}

bool replaceFile(const QString& path, const QByteArray& content, QString* reason)
{
    return replaceFile(path, writing(content), reason);
}

bool replacePrivateFile(const QString& path, const QByteArray& content, QString* reason)
{
    return replace(path, writing(content), Readable::ByOwner, reason);
}

} // namespace vlk
