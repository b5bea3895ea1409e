#include "road/pending_write.h"

#include "road/secret_file.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <utility>

Q_LOGGING_CATEGORY(lcPending, "vlk.workbench.pending")

namespace workbench {

namespace {

const QString kOriginKey = QStringLiteral("origin");
const QString kDocumentKey = QStringLiteral("document");
const QString kBackupKey = QStringLiteral("backup");
const QString kTimeKey = QStringLiteral("time");

// What of a report is text, and under which key.
auto textsOf(RoadReport& report)
{
    return std::array{
        std::pair("model", &report.tracker.model),       std::pair("number", &report.tracker.number),
        std::pair("vehicle", &report.tracker.name),      std::pair("name", &report.request.name),
        std::pair("readFrom", &report.request.readFrom), std::pair("file", &report.request.file)};
}

auto listsOf(RoadReport& report)
{
    return std::array{std::pair("chosen", &report.request.chosen), std::pair("lost", &report.request.lost),
                      std::pair("typed", &report.request.typed), std::pair("toLookAt", &report.toLookAt)};
}

} // namespace

void PendingWrite::keep(const RoadReport& report) const
{
    RoadReport kept = report;
    QJsonObject object{{kOriginKey, static_cast<int>(kept.request.origin)},
                       {kDocumentKey, QString::fromLatin1(kept.request.document.toBase64())},
                       {kBackupKey, kept.backup},
                       {kTimeKey, QDateTime::currentDateTimeUtc().toString(Qt::ISODate)}};
    for (const auto& [key, value] : textsOf(kept))
        object[QLatin1String(key)] = *value;
    for (const auto& [key, values] : listsOf(kept))
        object[QLatin1String(key)] = QJsonArray::fromStringList(*values);
    QString reason;
    if (!saveSecret(path_, QJsonDocument(object).toJson(), &reason))
        qCWarning(lcPending) << "cannot write" << path_ << reason;
}

void PendingWrite::drop() const
{
    if (QFile::exists(path_) && !QFile::remove(path_))
        qCWarning(lcPending) << "cannot remove" << path_;
}

std::optional<RoadReport> PendingWrite::left() const
{
    constexpr qint64 most = 4 * kLargestConfiguration;
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.read(most)).object();
    RoadReport report;
    report.outcome = RoadReport::Outcome::Unknown;
    report.fault = RoadReport::Fault::Interrupted;
    report.step = RoadReport::Step::Writing;
    report.request.origin = WriteRequest::Origin(
        std::clamp(object[kOriginKey].toInt(), static_cast<int>(WriteRequest::Origin::Tracker),
                   static_cast<int>(WriteRequest::Origin::Previous)));
    report.request.document = QByteArray::fromBase64(object[kDocumentKey].toString().toLatin1());
    report.backup = object[kBackupKey].toInt();
    report.time = QDateTime::fromString(object[kTimeKey].toString(), Qt::ISODate).toLocalTime();
    for (const auto& [key, value] : textsOf(report))
        *value = object[QLatin1String(key)].toString();
    for (const auto& [key, values] : listsOf(report)) {
        for (const QJsonValue kept : object[QLatin1String(key)].toArray())
            values->append(kept.toString());
    }
    if (report.tracker.number.isEmpty())
        return {};
    if (!report.time.isValid())
        report.time = QFileInfo(file).lastModified();
    return report;
}

} // namespace workbench
