#pragma once

// What was edited and has reached neither a file nor the tracker yet, kept on disk for the next time that the
// same configuration is opened. Each time that it is edited has a file of its own, which its owner alone may
// read, since it holds passwords. One that is damaged, or of another configuration, counts as none.

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace vlk::review {

struct Unsaved
{
    QString subject; // which configuration: that of a tracker, of a file or a new one
    QDateTime moment;
    // The documents that a save would have written, before the first edit and now.
    QByteArray before;
    QByteArray after;
    // The values of the quick window by path, where it was on show; some of them no file holds.
    QMap<QString, QString> quick{};
    // Of a tracker: the file that holds what was edited earlier and is not among these, and how many
    // settings.
    QString file{};
    int inFile = 0;
    // How many changes the window told while they were made; 0 where that is not known.
    int count = 0;
};

struct KeptUnsaved
{
    QString path;
    Unsaved unsaved;
};

// Where edits that begin now are kept, below the folder of configurations.
QString recoveryPath(const QString& folder, const QString& subject);
// False when the disk refused; `reason` says why, and what the file held before stays.
bool keepUnsaved(const QString& path, const Unsaved& unsaved, QString* reason);
// Nothing where the file is not there or holds no edits.
std::optional<Unsaved> unsavedIn(const QString& path);
// The newest first, without those that another program is editing; of one configuration, or of all.
std::vector<KeptUnsaved> keptUnsaved(const QString& folder, const QString& subject);
std::vector<KeptUnsaved> keptUnsaved(const QString& folder);
// Renames those of a configuration that can be read no more, and gives their new paths, the newest last, this
// time and from then on until the user knows of them.
QStringList setDamagedAside(const QString& folder, const QString& subject);
void setKnown(const QString& damaged);

// When edits were made: the time, on another day its date too.
QString momentOf(const Unsaved& unsaved);

// The keys (file_keys.h) that the edits have changed, and of these the ones that a person would count.
std::vector<int> editedKeys(const Unsaved& unsaved);
std::vector<int> ownKeys(const Unsaved& unsaved);
// How many changes these are, of all that a person would count, in the window in which they were made.
int countOf(const Unsaved& unsaved, int own, int all);
// What was checked in the quick window and is lost in the full one: that it uses sensors over Bluetooth, as
// long as it has none.
QMap<QString, QString> heldByQuickAlone(const Unsaved& unsaved);
// Whether a document is, by what it means, what a save would have written after the edits.
bool isResult(const QByteArray& document, const Unsaved& unsaved);
// The document of a save with the edits laid over it. Whatever else has changed since then stays.
QByteArray withEdits(const QByteArray& document, const Unsaved& unsaved);

} // namespace vlk::review
