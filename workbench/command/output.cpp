#include "command/output.h"

#include "command/file_names.h"
#include "command/json_line.h"
#include "command/system_reason.h"
#include "plugin/base/replace_file.h"
#include "plugin/base/whole_file.h"
#include "review/value_text.h"
#include "window/languages.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>

namespace workbench::command {

Output::Output(const QString& name, Readers readers) : Output(name, readers, text("cli_003")) {}

Output::Output(const QString& name, Readers readers, const QString& complaint)
    : name_(name == QLatin1String("-") ? QString() : name), readers_(readers), complaint_(complaint)
{
    if (isFile())
        open();
}

void Output::open()
{
    kept_ = std::make_unique<QFile>();
    isBeside_ = readers_ == Readers::Usual && vlk::openBeside(*kept_, name_);
    if (isBeside_)
        return;
    auto temporary = std::make_unique<QTemporaryFile>();
    if (!temporary->open())
        fault_ = temporary->errorString();
    kept_ = std::move(temporary);
}

bool Output::isReachable()
{
    const QFileInfo target(name_);
    if (isFile() && fault_.isEmpty()) {
        // A device is written to as it is.
        if (target.isDir())
            fault_ = qt_error_string(EISDIR);
        else if (target.isFile() || !target.exists())
            fault_ = vlk::whyNotReplaceable(name_);
    }
    return fault_.isEmpty();
}

void Output::write(const QByteArray& bytes)
{
    hasMask_ = hasMask_ || (!isDropped_ && fault_.isEmpty() && bytes.contains(vlk::kSecretDots));
    writeRecords(bytes);
}

void Output::writeRecords(const QByteArray& bytes)
{
    if (bytes.isEmpty() || isDropped_ || !fault_.isEmpty())
        return;
    if (isFile()) {
        if (kept_->write(bytes) != bytes.size())
            fault_ = vlk::whyNotSaved(*kept_);
    } else if (std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout) !=
               static_cast<std::size_t>(bytes.size())) {
        takeError();
    }
}

// Whoever has read enough needs no complaint.
void Output::takeError()
{
    if (errno == EPIPE)
        isDropped_ = true;
    else
        fault_ = qt_error_string(errno);
}

void Output::putInPlace()
{
    const auto copy = [this](QIODevice& device) {
        kept_->seek(0);
        while (!kept_->atEnd()) {
            const QByteArray piece = kept_->read(1 << 20);
            if (piece.isEmpty() || device.write(piece) != piece.size())
                return false;
        }
        return true;
    };
    const QFileInfo target(name_);
    if (!kept_->flush()) {
        fault_ = vlk::whyNotSaved(*kept_);
    } else if (target.isDir()) {
        fault_ = qt_error_string(EISDIR);
    } else if (target.exists() && !target.isFile()) {
        // A device cannot be replaced.
        QFile device(name_);
        if (!device.open(QIODevice::WriteOnly) || !copy(device) || !device.flush())
            fault_ = device.errorString();
    } else if (readers_ == Readers::Owner) {
        kept_->seek(0);
        vlk::replacePrivateFile(name_, kept_->readAll(), &fault_);
    } else if (!isBeside_ || !vlk::putInPlace(*kept_, name_)) {
        vlk::replaceFile(name_, copy, &fault_);
    }
}

bool Output::close()
{
    if (isDropped_)
        return true;
    if (!isFile()) {
        if (fault_.isEmpty() && std::fflush(stdout) != 0)
            takeError();
    } else if (fault_.isEmpty()) {
        putInPlace();
    }
    if (fault_.isEmpty())
        return true;
    // The name of a file is bytes, that of standard output is a text.
    const QString name = isFile() ? inOneLine(name_) : text("cli_320");
    const QString reason = complaint_.arg(systemReason(fault_));
    writeError((name + QStringLiteral(": ") + reason + QLatin1Char('\n')).toUtf8());
    return false;
}

QByteArray complaint(const QString& name, const QString& text)
{
    return (inOneLine(name) + QStringLiteral(": ") + text + QLatin1Char('\n')).toUtf8();
}

QByteArray complaintAsJson(const QString& name, const QString& text)
{
    return JsonLine()
        .add("file", readable(name))
        .add("kind", QStringLiteral("error"))
        .add("text", text)
        .line();
}

void writeError(const QByteArray& lines)
{
    std::fwrite(lines.constData(), 1, static_cast<std::size_t>(lines.size()), stderr);
}

} // namespace workbench::command
