#pragma once

// What goes onto the write road, what is looked at before a write, and what became of it.

#include "check/configuration_check.h"
#include "road/setting_advice.h"
#include "road/setting_change.h"
#include "road/tracker_port.h"

#include <QDateTime>
#include <QMetaType>
#include <QStringList>

#include <algorithm>

namespace workbench {

struct WriteRequest
{
    enum class Origin { Tracker, File, Fresh, Backup, Previous };

    Origin origin = Origin::Tracker;
    QByteArray document; // of `previous` empty: the tracker is asked for it
    QString name;        // of the file or the number of the backup
    QString readFrom;    // number of the tracker that is known to have held what was edited
    QString file;        // lies there until it is written
    QStringList chosen;  // paths of the settings that were asked for; empty: all
    QStringList lost;    // paths of the keys that were opened and that nobody knows: the document lacks them
    QStringList typed{}; // a line for each field that was not taken as it was typed
    QByteArray known{};  // what the user has last seen of what the tracker holds; empty: nothing
    QByteArray broughtBack{}; // to which the tracker has been brought back since; empty: it has not

    bool isBringBack() const { return origin == Origin::Backup || origin == Origin::Previous; }
};

struct WriteReview
{
    TrackerIdentity tracker;
    WriteRequest request;
    // What is removed comes first, what had a value of its own before the rest, then what the user has
    // edited, then what goes along.
    SettingChanges changes;
    QVector<SettingAdvice> advice;
    QStringList keptSections; // of the tracker, which the file does not have
    int added = 0;
    int removed = 0;
    int errors = 0;
    int typed = 0; // of the advice: was not taken as it was typed
    bool isOfThisTracker = false;
    bool isUnchecked = false;   // nobody could look for errors
    bool isKnownNoMore = false; // the tracker holds something else than the user has seen last
    bool isBroughtBack = false; // namely what it was brought back to, which the window has not taken over

    // Why it has to be looked at.
    enum class Why {
        Removes,
        HasErrors,
        HasTyped,
        IsUnchecked,
        IsOfAnother,
        IsKnownNoMore,
        IsBroughtBack,
        LosesKeys,
        BringsMore,
        BringsBack
    };

    // How many of them the user has edited in the window that wants them written.
    int edited() const
    {
        return static_cast<int>(
            std::ranges::count(changes, SettingChange::Cause::Edited, &SettingChange::cause));
    }
    int changed() const { return static_cast<int>(changes.size()) - added - removed; }
    // What was not asked for and comes along, since the chosen settings need it.
    SettingChanges alongside() const
    {
        SettingChanges along;
        for (const SettingChange& change : changes) {
            if (!request.chosen.isEmpty() && !request.chosen.contains(change.path))
                along.append(change);
        }
        return along;
    }
    QVector<Why> reasons() const;
    bool isAlwaysAsked() const { return !reasons().isEmpty(); }
    // It loses something, brings something unasked, is known to be wrong or other than was typed, or replaces
    // what nobody has seen.
    bool mustBeSeen() const
    {
        const QVector<Why> all = reasons();
        return !all.isEmpty() && all != QVector{Why::BringsBack};
    }
};

// A setting that was to change, or has.
struct WrittenSetting
{
    SettingChange change; // from what was there to what was sent
    QString readBack;     // null where the tracker lacks the key
    QString readBackText;
    bool isTaken = true;
};

struct RoadReport
{
    enum class Outcome {
        Confirmed,  // read back, and all is there
        NotTaken,   // read back, and something is not as it was sent
        NotWritten, // the tracker has what it had
        Unknown,    // it may have taken it; nobody has seen what it holds
        Cancelled
    };
    // Why it ended before its time.
    enum class Fault {
        None,
        BadRequest,   // what is to be written is no configuration
        Unsaved,      // the file for the tracker was not saved
        Incomparable, // nobody can tell the two apart
        Detached,
        Reattached, // what was compared may be there no longer
        OtherTracker,
        Unplugged,
        Silent,
        BadAnswer,
        NoBackup,
        Refused,
        Interrupted, // the program ended before
    };
    enum class Step { Reading, Review, Backup, Writing, ReadingBack };

    Outcome outcome = Outcome::NotWritten;
    Fault fault = Fault::None;
    Step step = Step::Reading;
    std::optional<ConfigurationProblem> problem; // of a bad request or answer
    QString reasonKey;                           // of a refusal
    QString detail;
    WriteRequest request;
    TrackerIdentity tracker;
    int backup = 0;               // its number; 0 where there is none
    int earlier = 0;              // the backup of an earlier write that may have been taken, or was in part
    bool isEarlierInPart = false; // it was
    QString earlierFile{};        // what that was to write
    QVector<WrittenSetting> settings; // what was not taken comes first
    QByteArray readBack;              // the document, of which they tell
    QStringList keptSections;
    QStringList toLookAt{}; // a line each: errors of what was written, and what was not taken as it was typed
    QDateTime time;
    bool isSeenLater = false; // it had ended unknown, and a read of the tracker at that time told the outcome

    int missed() const;
    // The tracker holds, or may hold, something else than before.
    bool mayHaveChanged() const
    {
        return outcome == Outcome::NotTaken || outcome == Outcome::Unknown ||
               (outcome == Outcome::Confirmed && !settings.isEmpty());
    }
    // The backup of what the tracker may hold no longer.
    int toBringBack() const { return mayHaveChanged() ? backup : earlier; }
};

inline QVector<WriteReview::Why> WriteReview::reasons() const
{
    QVector<Why> all;
    const auto add = [&all](Why why, bool holds) {
        if (holds)
            all.append(why);
    };
    add(Why::Removes, removed > 0);
    add(Why::HasErrors, errors > 0);
    add(Why::HasTyped, typed > 0);
    add(Why::IsUnchecked, isUnchecked);
    add(Why::IsOfAnother, !isOfThisTracker);
    add(Why::IsKnownNoMore, isKnownNoMore && !isBroughtBack);
    add(Why::IsBroughtBack, isBroughtBack);
    add(Why::LosesKeys, !request.lost.isEmpty());
    add(Why::BringsMore, !alongside().isEmpty());
    // Nobody has edited what is brought back: the review is the one look at it.
    add(Why::BringsBack, request.isBringBack());
    return all;
}

inline int RoadReport::missed() const
{
    int count = 0;
    for (const WrittenSetting& setting : settings)
        count += setting.isTaken ? 0 : 1;
    return count;
}

} // namespace workbench

Q_DECLARE_METATYPE(workbench::RoadReport)
Q_DECLARE_METATYPE(workbench::WriteReview)
