#pragma once

// One setting in which two configurations differ, in the words of the plug-in, which alone knows what keys
// mean.

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>
#include <optional>

namespace workbench {

struct SettingChange
{
    QString path; // "TRACK/POINTS/angle"
    QString page; // the three are empty where nobody knows the key
    QString group;
    QString caption;
    // As a file holds them; null where that side lacks the key.
    QString before;
    QString after;
    // The values in words and units.
    QString beforeText;
    QString afterText;
    // Of what a window wants to be written: whether its user has edited the setting, or it changes without an
    // edit, for the reason that the note tells in words, or stands there as it was opened.
    enum class Cause { Unknown, Edited, Unedited, Opened };
    Cause cause = Cause::Unknown;
    QString note{};
    bool readsAlike = false; // the tracker lacks the key then, and takes for it what it holds now

    bool isAdded() const { return before.isNull(); }
    bool isRemoved() const { return after.isNull(); }
};

using SettingChanges = QVector<SettingChange>;

// None when one of the documents cannot be read.
using Compare =
    std::function<std::optional<SettingChanges>(const QByteArray& before, const QByteArray& after)>;

} // namespace workbench
