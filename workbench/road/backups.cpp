#include "road/backups.h"

#include "check/configuration_check.h"
#include "road/secret_file.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <algorithm>

Q_LOGGING_CATEGORY(lcBackups, "vlk.workbench.backups")

namespace workbench {

namespace {

const QString kMomentForm = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
const QString kNameKey = QStringLiteral("name");
const QString kNoteKey = QStringLiteral("note");

QString wordsOf(const QString& path)
{
    return path.chopped(4) + QStringLiteral(".json");
}

// A number that a tracker tells, with such signs alone as may stand in the name of a file.
QString fileWord(QString number)
{
    static const QRegularExpression other(QStringLiteral("[^0-9A-Za-z.-]"));
    return number.replace(other, QStringLiteral("-")).left(64);
}

} // namespace

Backups::Backups(const QString& folder, QObject* parent) : QObject(parent), folder_(folder)
{
    load();
}

void Backups::load()
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,9})_(\\d{8}T\\d{6}Z)_([0-9A-Za-z.-]*)\\.xml$"));
    for (const QFileInfo& file : QDir(folder_).entryInfoList({QStringLiteral("*.xml")}, QDir::Files)) {
        const auto match = form.match(file.fileName());
        QDateTime made = QDateTime::fromString(match.captured(2), kMomentForm);
        if (!match.hasMatch() || !made.isValid())
            continue;
        made.setTimeSpec(Qt::UTC);
        QFile words(wordsOf(file.filePath()));
        constexpr qint64 longestWords = 1 << 16;
        const QJsonObject object = words.open(QIODevice::ReadOnly)
                                       ? QJsonDocument::fromJson(words.read(longestWords)).object()
                                       : QJsonObject();
        all_.append({match.captured(1).toInt(), made, match.captured(3), object[kNameKey].toString(),
                     object[kNoteKey].toString(), file.filePath()});
    }
    std::ranges::sort(all_, std::ranges::greater(), &Backup::number);
}

std::optional<Backup> Backups::find(int number) const
{
    const auto found =
        std::ranges::find_if(all_, [number](const Backup& backup) { return backup.number == number; });
    return found == all_.cend() ? std::nullopt : std::optional(*found);
}

QString Backups::pendingWrite() const
{
    return QDir(folder_).filePath(QStringLiteral("under_way.json"));
}

QByteArray Backups::document(int number) const
{
    const auto backup = find(number);
    QFile file(backup ? backup->path : QString());
    return backup && file.open(QIODevice::ReadOnly) ? file.read(kLargestConfiguration + 1) : QByteArray();
}

int Backups::add(const TrackerIdentity& tracker, const QByteArray& document, const QDateTime& now,
                 QString* reason)
{
    QDir().mkpath(folder_);
    QFile::setPermissions(folder_, kOwnerOnly | QFile::ExeOwner);
    Backup backup;
    backup.number = all_.isEmpty() ? 1 : all_.first().number + 1;
    backup.made = now;
    backup.tracker = fileWord(tracker.number);
    backup.name = tracker.name;
    backup.path = QDir(folder_).filePath(QStringLiteral("%1_%2_%3.xml")
                                             .arg(backup.number, 4, 10, QLatin1Char('0'))
                                             .arg(now.toString(kMomentForm), backup.tracker));
    if (!saveSecret(backup.path, document, reason)) {
        if (reason)
            *reason = backup.path + QStringLiteral(": ") + *reason;
        return 0;
    }
    if (!backup.name.isEmpty())
        saveWords(backup);
    all_.prepend(backup);
    dropOld(now);
    Q_EMIT changed();
    return backup.number;
}

bool Backups::setNote(int number, const QString& note)
{
    for (Backup& backup : all_) {
        if (backup.number != number)
            continue;
        Backup noted = backup;
        noted.note = note;
        if (!saveWords(noted))
            return false;
        backup = noted;
        Q_EMIT changed();
        return true;
    }
    return false;
}

bool Backups::saveWords(const Backup& backup) const
{
    const QJsonObject words{{kNameKey, backup.name}, {kNoteKey, backup.note}};
    QString reason;
    const bool saved = saveSecret(wordsOf(backup.path), QJsonDocument(words).toJson(), &reason);
    if (!saved)
        qCWarning(lcBackups) << "cannot write" << wordsOf(backup.path) << reason;
    return saved;
}

void Backups::keepFor(int days, const QDateTime& now)
{
    days_ = days;
    dropOld(now);
    Q_EMIT changed();
}

Backups::Expired Backups::expired(int days, const QDateTime& now) const
{
    Expired expired;
    QSet<QString> trackers;
    for (const Backup& backup : all_) {
        const bool isNewest = !trackers.contains(backup.tracker);
        trackers.insert(backup.tracker);
        if (days <= 0 || isNewest || backup.made.daysTo(now) <= days)
            continue;
        if (backup.note.isEmpty())
            expired.dropped.insert(backup.number);
        else
            ++expired.noted;
    }
    return expired;
}

void Backups::dropOld(const QDateTime& now)
{
    const QSet<int> old = expired(days_, now).dropped;
    QVector<Backup> kept;
    for (const Backup& backup : std::as_const(all_)) {
        if (old.contains(backup.number) && QFile::remove(backup.path))
            QFile::remove(wordsOf(backup.path));
        else
            kept.append(backup);
    }
    all_ = kept;
}

} // namespace workbench
