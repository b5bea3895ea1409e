#include "review/recovery.h"

#include "base/clock.h"
#include "base/file_claim.h"
#include "base/replace_file.h"
#include "document/configuration_text.h"
#include "review/quick_reach.h"
#include "review/take_over.h"
#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>

#include <algorithm>

namespace vlk::review {

namespace {

// A file is the mark, the parts of an Unsaved and the checksum of both.
constexpr char kMark[] = "VLK unsaved 1\n";
constexpr int kMarkSize = sizeof kMark - 1;
constexpr int kSumSize = 32;
constexpr qint64 kMostBytes = 2 * CSerialize::kMaxFileSize + 100'000;
constexpr QDataStream::Version kStreamVersion = QDataStream::Qt_5_12;
constexpr int kStemSize = 16;
const QString kSuffix = QStringLiteral(".unsaved");
const QString kUnknown = QStringLiteral(".new"); // of a file beside a damaged one that nobody knows of yet
const QString kRoot = QStringLiteral("DEVICE");

QByteArray sumOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

// Dialogs that choose a configuration show no such folder.
QString keptFolder(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral(".unsaved"));
}

// What the names of all files of a configuration begin with.
QString nameStemOf(const QString& subject)
{
    return QString::fromLatin1(sumOf(subject.toUtf8()).toHex().left(kStemSize));
}

std::vector<KeptUnsaved> keptAs(const QString& folder, const QString& stem)
{
    std::vector<KeptUnsaved> kept;
    const QDir files(keptFolder(folder));
    for (const QString& name : files.entryList({stem + QLatin1Char('*') + kSuffix}, QDir::Files)) {
        const QString path = files.filePath(name);
        std::optional<Unsaved> unsaved = isClaimed(path) ? std::nullopt : unsavedIn(path);
        if (unsaved)
            kept.push_back({path, std::move(*unsaved)});
    }
    std::ranges::stable_sort(
        kept, [](const KeptUnsaved& a, const KeptUnsaved& b) { return a.unsaved.moment > b.unsaved.moment; });
    return kept;
}

FileState stateOf(const QByteArray& text)
{
    XmlDocument document(text, kRoot);
    return FileState::ofDocument(*document.root());
}

// Without what quick setup gives its own value in what stays.
std::vector<int> edited(std::vector<int> keys, const Differences& differences, const Unsaved& unsaved)
{
    const auto isFixed = [&](int key) {
        return isFixedByQuick(key) && differences.before().at(key).isThere &&
               differences.after().at(key).isThere;
    };
    if (!unsaved.quick.isEmpty())
        std::erase_if(keys, isFixed);
    return keys;
}

} // namespace

QString recoveryPath(const QString& folder, const QString& subject)
{
    QString path;
    for (QDateTime begun = now(); path.isEmpty() || QFile::exists(path); begun = begun.addMSecs(1))
        path = QStringLiteral("%1/%2-%3")
                   .arg(keptFolder(folder), nameStemOf(subject),
                        begun.toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"))) +
               kSuffix;
    return path;
}

bool keepUnsaved(const QString& path, const Unsaved& unsaved, QString* reason)
{
    QByteArray content(kMark);
    QDataStream stream(&content, QIODevice::Append);
    stream.setVersion(kStreamVersion);
    stream << unsaved.subject << unsaved.moment << unsaved.before << unsaved.after << unsaved.quick
           << unsaved.file << unsaved.inFile << unsaved.count;
    QDir().mkpath(QFileInfo(path).path());
    return replacePrivateFile(path, content + sumOf(content), reason);
}

std::optional<Unsaved> unsavedIn(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes)
        return {};
    const QByteArray bytes = file.readAll();
    const QByteArray content = bytes.left(bytes.size() - kSumSize);
    if (bytes.size() < kMarkSize + kSumSize || !content.startsWith(kMark) ||
        bytes.right(kSumSize) != sumOf(content))
        return {};
    QDataStream stream(content.mid(kMarkSize));
    stream.setVersion(kStreamVersion);
    Unsaved unsaved;
    stream >> unsaved.subject >> unsaved.moment >> unsaved.before >> unsaved.after >> unsaved.quick;
    if (stream.status() != QDataStream::Ok)
        return {};
    // Earlier versions end here, or behind what is in the file.
    if (!stream.atEnd())
        stream >> unsaved.file >> unsaved.inFile;
    if (!stream.atEnd())
        stream >> unsaved.count;
    return unsaved;
}

std::vector<KeptUnsaved> keptUnsaved(const QString& folder, const QString& subject)
{
    std::vector<KeptUnsaved> kept = keptAs(folder, nameStemOf(subject));
    std::erase_if(kept, [&](const KeptUnsaved& one) { return one.unsaved.subject != subject; });
    return kept;
}

std::vector<KeptUnsaved> keptUnsaved(const QString& folder)
{
    return keptAs(folder, {});
}

QStringList setDamagedAside(const QString& folder, const QString& subject)
{
    QStringList damaged;
    const QDir files(keptFolder(folder));
    const QString kept = nameStemOf(subject) + QLatin1Char('*') + kSuffix;
    const QString suffix = QStringLiteral(".damaged");
    for (const QString& name : files.entryList({kept}, QDir::Files | QDir::Readable)) {
        const QString path = files.filePath(name);
        if (isClaimed(path) || unsavedIn(path) || !QFile::rename(path, path + suffix))
            continue;
        damaged << path + suffix;
        QFile(damaged.last() + kUnknown).open(QIODevice::WriteOnly);
    }
    for (const QString& name : files.entryList({kept + suffix + kUnknown}, QDir::Files)) {
        const QString path = files.filePath(name.chopped(kUnknown.size()));
        if (!QFile::exists(path))
            setKnown(path); // by who removed it
        else if (!damaged.contains(path))
            damaged << path;
    }
    damaged.sort();
    return damaged;
}

void setKnown(const QString& damaged)
{
    QFile::remove(damaged + kUnknown);
}

QString momentOf(const Unsaved& unsaved)
{
    const bool isToday = unsaved.moment.date() == now().date();
    return unsaved.moment.toString(isToday ? QStringLiteral("HH:mm") : QStringLiteral("dd.MM.yyyy HH:mm"));
}

std::vector<int> editedKeys(const Unsaved& unsaved)
{
    const Differences differences(stateOf(unsaved.before), stateOf(unsaved.after));
    return edited(differences.keys(), differences, unsaved);
}

std::vector<int> ownKeys(const Unsaved& unsaved)
{
    const Differences differences(stateOf(unsaved.before), stateOf(unsaved.after));
    return edited(differences.ownKeys(), differences, unsaved);
}

int countOf(const Unsaved& unsaved, int own, int all)
{
    return own == all && unsaved.count > 0 ? unsaved.count : own;
}

QMap<QString, QString> heldByQuickAlone(const Unsaved& unsaved)
{
    QMap<QString, QString> alone;
    if (unsaved.quick.isEmpty())
        return alone;
    const Values before = quickOf(configurationIn(unsaved.before));
    const Values after = quickOf(configurationIn(unsaved.after));
    for (int row = 0; row < after.count(); ++row) {
        for (const int decider : decidersOf(after.layout(), row)) {
            const QString& path = after.row(decider).path;
            const QString value = unsaved.quick.value(path, after.value(decider));
            if (!after.row(decider).base->stored && after.setting(decider).is<Flag>() &&
                value != after.value(decider) && value != before.value(decider))
                alone.insert(path, value);
        }
    }
    return alone;
}

bool isResult(const QByteArray& document, const Unsaved& unsaved)
{
    return Differences(stateOf(unsaved.after), stateOf(document)).all().empty();
}

QByteArray withEdits(const QByteArray& document, const Unsaved& unsaved)
{
    // Where nothing changed meanwhile, the very bytes come back, with what no setting of the window reads.
    if (document == unsaved.before)
        return unsaved.after;
    const Differences differences(stateOf(unsaved.after), stateOf(document));
    XmlDocument edited(document, kRoot);
    layOver(*edited.root(), differences.before(), withNeeded(differences, editedKeys(unsaved)));
    return edited.text();
}

} // namespace vlk::review
