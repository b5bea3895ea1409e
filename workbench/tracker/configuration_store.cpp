#include "tracker/configuration_store.h"

#include "base/whole_file.h"
#include "catalogue/field_mask.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>

Q_LOGGING_CATEGORY(lcTrackerStore, "vlk.tracker.store")

// In no namespace, because the macro declares a function there.
static void initTrackerResources()
{
    Q_INIT_RESOURCE(tracker);
}

namespace tracker {

namespace {

const QString kOwnModel = QStringLiteral("R-7106");
// A configuration is some tens of kilobytes; the device has no room for more than this.
constexpr qint64 kLargestDocument = qint64{1} << 20;

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
    if (model != kOwnModel)
        return {"wb_refused_model", model};
    return {};
}

// Bytes of a stored record, whose fields are kept whatever the version of the protocol that they are sent
// with.
int recordSize(const ConfigurationValues& values)
{
    const std::string mask = values.text(QStringLiteral("PROTOCOL/ZETA/mask")).toStdString();
    return vlk::FieldMask::fromText(mask.empty() ? vlk::kDefaultMaskText : mask).recordSize();
}

QByteArray readWhole(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(kLargestDocument) : QByteArray();
}

QByteArray textOf(const QDomDocument& document)
{
    QByteArray text;
    QTextStream stream(&text);
    document.save(stream, 1, QDomNode::EncodingFromDocument);
    stream.flush();
    return text;
}

// The new document with those sections of the old one behind it that it lacks: a file sets what it holds and
// leaves the rest of the tracker alone.
QByteArray withKeptSections(const QByteArray& taken, const QByteArray& old)
{
    QDomDocument document;
    QDomDocument before;
    if (!document.setContent(taken) || !before.setContent(old))
        return taken;
    QDomElement root = document.documentElement();
    bool isTaken = true;
    for (QDomElement section = before.documentElement().firstChildElement(); !section.isNull();
         section = section.nextSiblingElement()) {
        if (!root.firstChildElement(section.tagName()).isNull())
            continue;
        root.appendChild(document.importNode(section, true));
        isTaken = false;
    }
    return isTaken ? taken : textOf(document);
}

// The new document with the first section that changed as it was before.
QByteArray withoutOneChange(const QByteArray& taken, const QByteArray& old)
{
    const ConfigurationValues before(old);
    const ConfigurationValues after(taken);
    const auto isChanged = [&](const QString& path) {
        return before.contains(path) && before.text(path) != after.text(path);
    };
    const auto changed = std::ranges::find_if(after.paths(), isChanged);
    QDomDocument document;
    QDomDocument was;
    if (changed == after.paths().end() || !document.setContent(taken) || !was.setContent(old))
        return taken;
    const QString section = changed->section(QLatin1Char('/'), 0, 0);
    QDomElement root = document.documentElement();
    root.replaceChild(document.importNode(was.documentElement().firstChildElement(section), true),
                      root.firstChildElement(section));
    return textOf(document);
}

bool areSame(const ConfigurationValues& before, const ConfigurationValues& after)
{
    return before.paths().size() == after.paths().size() &&
           std::ranges::all_of(after.paths(), [&](const QString& path) {
               return before.contains(path) && before.text(path) == after.text(path);
           });
}

// Replaces the file as a whole, or leaves what was there and says so in the log.
bool saveWhole(const QString& path, const QByteArray& document, QString* reason = nullptr)
{
    QSaveFile file(path);
    QString why;
    if (vlk::saveWhole(file, document, &why))
        return true;
    qCWarning(lcTrackerStore) << "cannot write" << path << why;
    if (reason)
        *reason = path + QStringLiteral(": ") + why;
    return false;
}

} // namespace

ConfigurationStore::ConfigurationStore(const QString& folder) : folder_(folder)
{
    initTrackerResources();
    if (!QDir().mkpath(folder_))
        qCWarning(lcTrackerStore) << "cannot make the folder" << folder_;
    load();
}

void ConfigurationStore::load()
{
    for (const QString& path : {current(), backup(), QStringLiteral(":/tracker/factory.xml")}) {
        if (take(readWhole(path)))
            return;
        if (QFile::exists(path))
            qCWarning(lcTrackerStore) << "damaged configuration" << path;
    }
}

WriteReport ConfigurationStore::write(const QByteArray& taken)
{
    WriteReport report;
    const auto refuse = [&report](const char* reasonKey, const QString& detail) {
        report.reasonKey = QLatin1String(reasonKey);
        report.detail = detail;
        return report;
    };

    if (taken.size() > kLargestDocument)
        return refuse("wb_refused_large", QString::number(taken.size()));
    const ConfigurationValues asked(taken);
    const Refusal refusal = check(asked);
    if (refusal.reasonKey)
        return refuse(refusal.reasonKey, refusal.detail);
    if (const int size = recordSize(asked); size > vlk::kLargestRecord)
        return refuse("wb_refused_record", QString::number(size));
    QByteArray document = withKeptSections(taken, document_);
    if (skipsPage_)
        document = withoutOneChange(document, document_);
    const ConfigurationValues values(document);
    QString reason;
    if (!saveWhole(backup(), document_, &reason) || !saveWhole(current(), document, &reason))
        return refuse("wb_refused_memory", reason);

    report.accepted = true;
    report.sameAsBefore = areSame(values_, values);
    document_ = document;
    values_ = values;
    return report;
}

void ConfigurationStore::losePower(const QByteArray& document)
{
    QFile file(current());
    if (saveWhole(backup(), document_) && file.open(QIODevice::WriteOnly))
        file.write(document.left(document.size() / 2));
    file.close();
    load();
}

QByteArray ConfigurationStore::previous() const
{
    return readWhole(backup());
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
