#pragma once

// What differs between the configuration in the windows and the file as it came, what a missing key would
// read as, or another file; kept up to date with every edit. Values are taken over or back in one step of the
// history, with those without which they could not be.

#include "dialog/open_configuration.h"
#include "review/advice.h"
#include "review/difference_text.h"
#include "review/preset.h"
#include "review/recovery.h"
#include "review/search.h"

#include <QTimer>

#include <optional>

struct CXmlSection;

namespace vlk {

class ConfigurationReview : public QObject
{
    Q_OBJECT

public:
    // `isQuick`: whether the quick window is on show.
    ConfigurationReview(EditHistory& history, std::function<bool()> isQuick, QObject* parent = nullptr);

    // A configuration has been opened and is compared with its file; a new one, without a file, with what it
    // begins with. Begins the history.
    void begin(CXmlSection* root);

    // The tracker that the configuration came from has this document now, which counts as the file from here.
    // `quick`: the quickValues() of which it was written. A file that lacks a sensor reads as one that uses
    // it.
    void setWritten(const QByteArray& document, const QMap<QString, QString>& quick);
    // The tracker has this document now, but not from here. The keys of what it changes among the settings
    // that had not been edited since the file.
    std::vector<int> setReplaced(const QByteArray& document);
    bool isWritten() const { return isWritten_; }

    // A preset is compared as the configuration that it would make if it were applied now.
    enum class Against { File, Defaults, OtherFile, Preset };
    Against against() const { return against_; }
    // False when the file could not be read, and nothing changes. Another file that says that it is a preset
    // is taken for one.
    bool compareWith(Against against, const QString& path = {});
    // What of the preset cannot be applied.
    const std::vector<review::PresetProblem>& problems() const { return problems_; }
    // With a state that is none of these; `name` says what it is.
    void compareWith(review::FileState before, const EditHistory::Words& name);
    // Empty unless a name was given.
    QString otherName() const { return otherName_ ? otherName_() : QString(); }
    // The name of the other file or of the preset.
    const QString& fileName() const { return fileName_; }
    // Tells comparisons apart, whatever they find.
    QString comparison() const { return QString::number(static_cast<int>(against_)) + otherName() + path_; }

    const review::Differences& differences() const { return differences_; }
    // In the order of a save; with the quick window on show those of the sections first that it makes anew,
    // and what no file holds beside the rest of its section.
    std::vector<review::Difference> listed() const;
    // To the file, whatever is compared: what a person would count, without that which comes along with
    // another setting and that which nobody has edited.
    int edited() const;
    // What a write would change besides: in the quick window what it makes of any file, in the full one what
    // the load or the change from the quick window has made.
    int unedited() const;
    // Whether the full window has lost something of the file by that.
    bool isLossy() const;
    const review::Differences& edits() const { return edited_; }
    // Has a mark: edited, or changed by the load. What that has filled in reads as it did; what the quick
    // window has made is told in the bar.
    bool isOwn(int key) const;
    // Whether a write from the window on show would change it without any edit.
    bool isUnedited(int key) const;
    bool isUnedited(const review::Difference& difference) const;
    // The key of a note on what nobody has edited: what the load has done, the quick window, or another
    // setting. Null where there is none.
    const char* noteKey(const review::Differences& differences, const review::Difference& difference) const;
    // In words, with that note.
    review::DifferenceText textOf(const review::Differences& differences,
                                  const review::Difference& difference) const;
    // Whether it would stay as it is if all were taken from the other side now: the quick window decides it.
    // Worked out when it is asked for first after another side was chosen or an open preset followed an edit.
    bool isBeyond(int key) const;
    // What the quick window made of the file as it came, of a setting that it shows and no file holds; null
    // where that is what it shows now, and for every other setting.
    QString quickBefore(const PageSettings& page, int row) const;
    // What is checked in the quick window because the file says nothing of it: a sensor that is not there.
    QStringList takenForUsed() const;
    // What full setup has chosen and a write from the quick window, which does not show it, would remove: a
    // sensor, a device. With the full window on show, what the change to it has removed.
    QStringList leftOut() const;
    // Where settings of what stays are changed that way, which the quick window does not show: the filter of
    // a sensor, the name of a line.
    QStringList madeAnew() const;
    // Puts the full window on show, which takes over what the quick one would write: what that has made
    // without an edit is none there either.
    void moveToFull(const std::function<void()>& move);
    // What the full window held of it before, as long as nothing else stands there.
    void bringBackMade(const EditHistory::Words& words);
    // A document with what of it the user has brought back, so or one by one.
    QByteArray withBroughtBack(const QByteArray& document) const;
    // From what was there when the window opened, before anything was written.
    review::Differences sinceOpened() const { return {opened_, now()}; }
    bool isEdited(int table, int row) const;
    // As open_configuration.h tells of them.
    bool isQuick() const { return open_.isQuick(); }
    Configuration written() const { return open_.written(); }
    QByteArray document() const { return open_.document(); }
    QByteArray rewritten(const QByteArray& document) const { return open_.rewritten(document); }
    QMap<QString, QString> quickValues() const { return open_.quickValues(); }
    PageSettings* pageOf(int table) const { return open_.pageOf(table); }
    const Values* valuesOf(int table) const { return open_.valuesOf(table); }

    // From the other side; keys of review::FileKeys.
    void takeOver(const std::vector<int>& keys, const EditHistory::Words& words);
    // From the file as it came, whatever is compared.
    void bringBack(const std::vector<int>& keys, const EditHistory::Words& words);
    // What was edited earlier, as one step.
    void bringBack(const review::Unsaved& unsaved, const EditHistory::Words& words)
    {
        open_.bringBack(unsaved, words);
    }

    // Those that hold the setting of a page; none for one that files do not have.
    static std::vector<int> keysOf(const PageSettings& page, int row);
    // The setting at a path such as "TRANS/SRV1/port"; the row is -1 where there is none.
    review::Hit settingAt(const QString& path) const;

    // On what a write would bring now.
    const std::vector<review::Finding>& advice() const;
    // The quick window shows too few of the settings.
    bool canMend() const { return !isQuick(); }
    void mend(const std::vector<review::Mend>& mends, const EditHistory::Words& words);

    EditHistory& history() const { return history_; }
    void retranslate()
    {
        if (advice_ && !advice_->empty())
            advice_.reset();
    }

Q_SIGNALS:
    void changed();
    // A configuration has been opened; before compared().
    void begun();
    // Another comparison begins, or the same one anew; before changed().
    void compared();

private:
    // By the quick window, when the full one took over from it.
    struct Made
    {
        Configuration before; // in the full window
        review::FileState stateBefore;
        review::FileState after;
        std::vector<int> keys; // in their order
    };

    // What the full window holds, and what quick setup makes of it.
    struct InFull
    {
        review::FileState state;
        review::FileState byQuick;
    };

    // Without a root the configuration, which is new, is what it came as.
    void keepQuick(CXmlSection* root, const Configuration& asItCame,
                   const QMap<QString, QString>& quick = {});
    // Of these keys and what no setting reads.
    int counted(const std::vector<int>& keys, bool areUnedited) const;
    review::FileState now() const;
    const review::FileState& asItCame() const;
    // The other side while a preset is compared with.
    review::FileState withPreset();
    // A state with the keys that the preset moved when it was followed last.
    review::FileState withMoved(review::FileState state) const;
    // An edit may move what the preset would make of the rest: applied anew, but not with each edit.
    void followPreset();
    void compareWith(review::FileState before, Against against, const EditHistory::Words& name);
    std::vector<review::Finding> advise() const;
    void takeOverFrom(const review::Differences& differences, const std::vector<int>& keys,
                      const EditHistory::Words& words);
    bool isChosenIn(const Configuration& full, int key) const;
    // By quick setup, out of the file or of what full setup holds, and stands as it was made then.
    bool isMade(int key) const;
    // What the full window holds, or held before the change to it; null where there was none.
    const Configuration* beforeQuick() const
    {
        return isQuick() ? &present_ : made_ ? &made_->before : nullptr;
    }
    std::vector<int> leftOutKeys() const;
    void refresh(const QVector<int>& pages);
    void hold(const PageSettings& page);
    const InFull& inFull() const;
    // Edits of what the quick window shows and no file holds, where no other edit tells of them: that sensors
    // over Bluetooth are used, as long as there is none. They have no key.
    std::vector<review::Difference> ofQuickAlone() const;

    EditHistory& history_;
    OpenConfiguration open_;
    Configuration present_;                // what the pages of the full window hold since the last step
    mutable std::optional<InFull> inFull_; // of that; none until it is asked for
    review::FileState opened_;
    review::FileState asItCame_;                 // the same, or what has been written since then
    std::optional<review::FileState> newInFull_; // of a new one that began in the quick window
    bool isWritten_ = false;
    std::vector<int> gone_; // of leftOutKeys(), with what the quick window has written
    std::optional<Made> made_;
    Values quickAsItCame_;
    review::FileState quickState_; // with that over what the full window makes of it
    QHash<QString, QString> quickStrangers_;
    Against against_ = Against::File;
    QByteArray preset_;      // its document
    std::vector<int> moved_; // keys that it moves
    // Keys that the quick window cannot take; none until they are asked for.
    mutable std::optional<std::vector<int>> beyond_;
    QTimer presetDue_; // to be followed when edits pause
    std::vector<review::PresetProblem> problems_;
    EditHistory::Words otherName_;
    QString fileName_;
    QString path_; // of that file
    bool wasQuick_ = false;
    review::Differences edited_;      // to the file as it came
    review::Differences differences_; // to what is chosen
    // None after a change until it is asked for; of what is not open there is nothing to say.
    mutable std::optional<std::vector<review::Finding>> advice_{std::in_place};
};

} // namespace vlk
