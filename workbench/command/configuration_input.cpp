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
#include "xml/xml_scanner.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <vector>

namespace workbench::command {

namespace {

QString whyOther(FileKind kind)
{
    switch (kind) {
    case FileKind::Telemetry:
        return text("cli_009");
    case FileKind::Calibration:
        return text("cli_010");
    case FileKind::Tachograph:
        return text("cli_011");
    case FileKind::Configuration:
    case FileKind::Unknown:
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
    // Standard input has no name either.
    const bool isUnnamed = file.fileName().isEmpty() && !file.isOpen();
    const QString reason = name.isDir() ? qt_error_string(EACCES)
                           : isUnnamed  ? qt_error_string(ENOENT)
                                        : file.errorString();
    return text("cli_002").arg(systemReason(reason));
}

namespace {

// No more than shows that it is larger than a configuration can be. None with a reason.
std::optional<QByteArray> contentOf(const QString& name, QString* reason)
{
    QFile file(name);
    const bool isOpen =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    // What is no plain file has no size. Room for the largest one would cost more than to read a usual one.
    const qint64 size = std::max<qint64>(file.size(), 1 << 16);
    QByteArray bytes;
    while (isOpen && bytes.size() <= CSerialize::kMaxFileSize) {
        const QByteArray piece = file.read(std::min(size, CSerialize::kMaxFileSize + 1 - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    if (isOpen && file.error() == QFileDevice::NoError)
        return bytes;
    *reason = whyUnreadable(file);
    return std::nullopt;
}

// Whether there may be what the reader of documents passes although it is damage: names that stand twice,
// references to nothing, signs that the encoding does not have. To look closely at every file would cost half
// as much as to check it.
bool isDoubtful(const QByteArray& bytes)
{
    constexpr int declaration = 100;
    const bool isOneByte = bytes.left(declaration).contains("windows-1251");
    const auto isOdd = [isOneByte](char sign) {
        const auto code = static_cast<uchar>(sign);
        return sign == '&' || (code < ' ' && !std::isspace(code)) || (code >= 0x80 && !isOneByte);
    };
    if (std::ranges::any_of(bytes, isOdd))
        return true;
    const QString text = QString::fromLatin1(bytes);
    vlk::XmlScanner scanner(text);
    std::vector<QStringView> names;
    while (scanner.next() != vlk::XmlScanner::Token::None) {
        names.clear();
        for (const vlk::XmlScanner::Attribute& attribute : scanner.attributes())
            names.push_back(scanner.at(attribute.name));
        std::ranges::sort(names);
        if (std::ranges::adjacent_find(names) != names.end())
            return true;
    }
    return false;
}

} // namespace

QString whyDamaged(const QByteArray& bytes)
{
    using Problem = ConfigurationProblem;
    if (!vlk::isOfBearableSize(QString::fromLatin1(bytes)))
        return text("cli_008");
    const std::optional<Problem> problem = checkConfiguration(bytes, {});
    if (problem && problem->kind == Problem::CutShort)
        return text("cli_006").arg(problem->line);
    if (problem && problem->kind == Problem::Damaged)
        return text("cli_007").arg(problem->line).arg(problem->column);
    return {};
}

Outcome refusal(const Call& call, const QString& name, const QString& reason)
{
    return call.json ? Outcome{complaintAsJson(name, reason), {}, Failed}
                     : Outcome{{}, complaint(name, reason), Failed};
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
    if (kind != FileKind::Configuration) {
        const bool isPassedOver = !file.isNamed && kind != FileKind::Unknown;
        return isPassedOver ? Outcome{.isPassedOver = true} : refusal(call, file.name, whyOther(kind));
    }
    if (bytes->size() > CSerialize::kMaxFileSize)
        return refusal(call, file.name, text("cli_005"));
    reason = isDoubtful(*bytes) ? whyDamaged(*bytes) : QString();
    vlk::XmlDocument document(reason.isEmpty() ? *bytes : QByteArray(), QStringLiteral("DEVICE"));
    if (!document.isOpen() && reason.isEmpty())
        reason = whyDamaged(*bytes);
    if (!document.isOpen())
        return refusal(call, file.name, reason.isEmpty() ? text("cli_008") : reason);
    const bool isPassedOver = !file.isNamed && vlk::review::saysPreset(*document.root());
    return isPassedOver ? Outcome{.isPassedOver = true} : take(*bytes, document);
}

} // namespace workbench::command
