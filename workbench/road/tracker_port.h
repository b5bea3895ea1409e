#pragma once

// What the write road asks of a tracker, whichever it is and however it is reached. One thing is under way at
// a time; what becomes of it is told by a signal, never within the call that began it.

#include <QObject>

namespace workbench {

struct TrackerIdentity
{
    QString model;
    QString number; // empty while none is attached
    QString name;   // of the vehicle, as far as the tracker tells it

    bool isAttached() const { return !number.isEmpty(); }
};

struct PortAnswer
{
    enum class Outcome { Done, Detached, Unplugged, Refused };

    Outcome outcome = Outcome::Done;
    QByteArray document; // of a reading
    QString reasonKey;   // of a refusal: the key of its text, and what the tracker adds to it
    QString detail;
};

class TrackerPort : public QObject
{
    Q_OBJECT

public:
    // The configuration that the tracker works by, or the one that it kept before the last write.
    enum class Copy { Present, Previous };

    using QObject::QObject;

    virtual TrackerIdentity tracker() const = 0;
    virtual void read(Copy copy) = 0;
    virtual void write(const QByteArray& document) = 0;
    // Ends what is under way, which is told no more. What the tracker has not got in full it does not take.
    virtual void drop() = 0;

Q_SIGNALS:
    void readEnded(const workbench::PortAnswer& answer);
    void sent(qint64 bytes, qint64 all);
    // The tracker has all of the file: what it makes of it nobody can stop.
    void taken();
    void writeEnded(const workbench::PortAnswer& answer);
    // The tracker was there and is gone.
    void gone();
};

} // namespace workbench
