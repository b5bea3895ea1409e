#include "command/configuration_input.h"

#include "check/configuration_check.h"
#include "command/file_kind.h"
#include "command/file_names.h"
#include "command/output.h"
#include "command/system_reason.h"
#include "review/preset.h"
#include "window/languages.h"
#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

namespace workbench::command {

namespace {

QString whyOther(FileKind kind)
{
    switch (kind) {
    case FileKind::telemetry:
        return text("cli_009");
    case FileKind::calibration:
        return text("cli_010");
    case FileKind::tachograph:
        return text("cli_011");
    case FileKind::configuration:
    case FileKind::unknown:
        break;
    }
    return text("cli_012");
}

} // namespace

QString whyUnreadable(const QFile& file)
{
    const QFileInfo name(file.fileName());
    if (name.isDir() && name.isReadable())
        return text("cli_143");
    return text("cli_002").arg(systemReason(name.isDir() ? qt_error_string(EACCES) : file.errorString()));
}

std::optional<QByteArray> contentOf(const QString& name, QString* reason)
{
    QFile file(name);
    const bool isOpen =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        *reason = whyUnreadable(file);
        return std::nullopt;
    }
    if (file.size() > CSerialize::maxFileSize) {
        *reason = text("cli_005");
        return std::nullopt;
    }
    // What is no plain file has no size.
    QByteArray bytes;
    while (bytes.size() <= CSerialize::maxFileSize) {
        const QByteArray piece = file.read(CSerialize::maxFileSize + 1 - bytes.size());
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    if (file.error() != QFileDevice::NoError) {
        *reason = whyUnreadable(file);
        return std::nullopt;
    }
    if (bytes.size() > CSerialize::maxFileSize) {
        *reason = text("cli_005");
        return std::nullopt;
    }
    return bytes;
}

QString whyDamaged(const QByteArray& bytes)
{
    using Problem = ConfigurationProblem;
    const std::optional<Problem> problem = checkConfiguration(bytes, {});
    if (problem && problem->kind == Problem::CutShort)
        return text("cli_006").arg(problem->line);
    if (problem && problem->kind == Problem::Damaged)
        return text("cli_007").arg(problem->line).arg(problem->column);
    return text("cli_008");
}

Outcome refusal(const Call& call, const QString& name, const QString& reason)
{
    return call.json ? Outcome{complaintAsJson(name, reason), {}, failed}
                     : Outcome{{}, complaint(name, reason), failed};
}

Outcome withConfiguration(const Call& call, const File& file, const TakeConfiguration& take)
{
    QString reason;
    const std::optional<QByteArray> bytes = contentOf(file.name, &reason);
    if (!bytes)
        return refusal(call, file.name, reason);
    if (bytes->trimmed().isEmpty())
        return refusal(call, file.name, text("cli_004"));
    const FileKind kind = kindOf(*bytes);
    vlk::XmlDocument document(kind == FileKind::configuration ? *bytes : QByteArray(),
                              QStringLiteral("DEVICE"));
    if (document.isOpen()) {
        const bool isPassedOver = !file.isNamed && vlk::review::saysPreset(*document.root());
        return isPassedOver ? Outcome{} : take(*bytes, document);
    }
    if (kind == FileKind::configuration)
        return refusal(call, file.name, whyDamaged(*bytes));
    if (!file.isNamed && kind != FileKind::unknown)
        return {};
    return refusal(call, file.name, whyOther(kind));
}

} // namespace workbench::command
