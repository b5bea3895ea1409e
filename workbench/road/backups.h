#pragma once

// The configurations that trackers held before they were written, each a file of its own in one folder.
// Number, moment and tracker stand in the name of the file, so that nothing is lost with another file; the
// vehicle's name and the user's note lie beside it.
//
// Passwords stand in them: only their owner can read the files.

#include "road/tracker_port.h"

#include <QDateTime>
#include <QSet>
#include <QVector>

#include <optional>

namespace workbench {

struct Backup
{
    int number = 0; // counted over all trackers
    QDateTime made; // UTC
    QString tracker;
    QString name; // of the vehicle
    QString note;
    QString path;
};

class Backups : public QObject
{
    Q_OBJECT

public:
    // Made with the first backup.
    explicit Backups(const QString& folder, QObject* parent = nullptr);

    // The newest first.
    const QVector<Backup>& all() const { return all_; }
    std::optional<Backup> find(int number) const;
    // The file of a write that is on its way.
    QString pendingWrite() const;
    // Empty when it cannot be read.
    QByteArray document(int number) const;

    // Its number; 0 when it could not be kept, with the reason.
    int add(const TrackerIdentity& tracker, const QByteArray& document, const QDateTime& now,
            QString* reason);
    bool setNote(int number, const QString& note);
    // What is older than so many days, but the newest of each tracker. 0: nothing is.
    struct Expired
    {
        QSet<int> dropped;
        int noted = 0; // with a note: they stay
    };
    Expired expired(int days, const QDateTime& now) const;
    // Drops what is expired, and keeps no longer from now on.
    void keepFor(int days, const QDateTime& now);

Q_SIGNALS:
    void changed();

private:
    void load();
    bool saveWords(const Backup& backup) const;
    void dropOld(const QDateTime& now);

    QString folder_;
    QVector<Backup> all_;
    int days_ = 0;
};

} // namespace workbench
