#include "tracker/configuration_store.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QSaveFile>

Q_LOGGING_CATEGORY(lcTrackerStore, "vlk.tracker.store")

// In no namespace, because the macro declares a function there.
static void initResources()
{
    Q_INIT_RESOURCE(tracker);
}

namespace tracker {

namespace {

const QString ownModel = QStringLiteral("R-7106");
// A configuration is some tens of kilobytes; the device has no room for more than this.
constexpr qint64 largestDocument = qint64(1) << 20;

struct Refusal
{
    const char* reasonKey = nullptr;
    QString detail;
};

Refusal check(const ConfigurationValues& values)
{
    if (!values.error().isEmpty())
        return {"wb_refused_malformed", values.error()};
    if (values.root() != QLatin1String("DEVICE"))
        return {"wb_refused_root", values.root()};
    const QString model = values.rootAttribute(QStringLiteral("model"));
    if (model != ownModel)
        return {"wb_refused_model", model};
    return {};
}

QByteArray readWhole(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(largestDocument) : QByteArray();
}

void compare(const ConfigurationValues& before, const ConfigurationValues& after, WriteReport& report)
{
    for (const QString& path : after.paths()) {
        const KeyChange change{path, before.text(path), after.text(path)};
        if (!before.contains(path))
            report.added.append(change);
        else if (change.before != change.after)
            report.changed.append(change);
    }
    for (const QString& path : before.paths())
        if (!after.contains(path))
            report.removed.append({path, before.text(path), {}});
}

} // namespace

bool saveWhole(const QString& path, const QByteArray& document)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(document) == document.size() && file.commit())
        return true;
    qCWarning(lcTrackerStore) << "cannot write" << path << file.errorString();
    return false;
}

ConfigurationStore::ConfigurationStore(const QString& folder) : folder_(folder)
{
    initResources();
    if (!QDir().mkpath(folder_))
        qCWarning(lcTrackerStore) << "cannot make the folder" << folder_;
    for (const QString& path : {current(), backup(), QStringLiteral(":/tracker/factory.xml")}) {
        if (take(readWhole(path)))
            return;
        if (QFile::exists(path))
            qCWarning(lcTrackerStore) << "damaged configuration" << path;
    }
}

WriteReport ConfigurationStore::write(const QString& path)
{
    WriteReport report;
    report.file = path;
    const auto refuse = [&report](const char* reasonKey, const QString& detail) {
        report.reasonKey = QLatin1String(reasonKey);
        report.detail = detail;
        return report;
    };

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse("wb_refused_unreadable", file.errorString());
    if (file.size() > largestDocument)
        return refuse("wb_refused_large", QString::number(file.size()));
    const QByteArray document = file.read(largestDocument);
    const ConfigurationValues values(document);
    const Refusal refusal = check(values);
    if (refusal.reasonKey)
        return refuse(refusal.reasonKey, refusal.detail);
    if (!saveWhole(backup(), document_) || !saveWhole(current(), document))
        return refuse("wb_refused_memory", folder_);

    compare(values_, values, report);
    report.accepted = true;
    document_ = document;
    values_ = values;
    return report;
}

bool ConfigurationStore::take(const QByteArray& document)
{
    ConfigurationValues values(document);
    if (check(values).reasonKey)
        return false;
    document_ = document;
    values_ = std::move(values);
    return true;
}

QString ConfigurationStore::current() const
{
    return QDir(folder_).filePath(QStringLiteral("configuration.xml"));
}

QString ConfigurationStore::backup() const
{
    return QDir(folder_).filePath(QStringLiteral("configuration.backup.xml"));
}

} // namespace tracker
