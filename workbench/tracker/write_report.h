#pragma once

// What became of a configuration that was written to the tracker: taken or refused, and key by key what it
// changed. Sections that the file lacks keep their values. Keys are paths such as "TRANS/SRV1/ip"; a repeated
// group carries its number from the second on, "SENSORS/FLS[2]/table".

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

namespace tracker {

struct KeyChange
{
    QString path;
    QString before; // empty for an added key
    QString after;  // empty for a removed key
};

struct WriteReport
{
    bool accepted = false;
    QString file;        // what was handed over
    QByteArray document; // that stood in it
    QString reasonKey;   // key of the refusal's text, wb_refused_..., empty when accepted
    QString detail;      // of a refusal: the parser's words, or what stood in place of the model
    QVector<KeyChange> changed;
    QVector<KeyChange> added;
    QVector<KeyChange> removed;
    QStringList keptSections; // of the tracker, which the file does not have

    bool sameAsBefore() const { return changed.isEmpty() && added.isEmpty() && removed.isEmpty(); }
};

} // namespace tracker

Q_DECLARE_METATYPE(tracker::WriteReport)
