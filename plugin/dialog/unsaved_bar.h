#pragma once

// The bar of the configuration's window. Offers what was edited earlier and has reached neither a file nor
// the tracker, above the pages: how many settings of the configuration on show it would change. Each time of
// editing is a notice of its own, the newest first. The cross leaves it for the next opening; once it has
// been shown it can be discarded, which happens when the window closes. It tells, too, which sensors quick
// setup takes for used though the file has none, and which it would remove, or has removed when full setup
// took over from it, with the way back, and offers to take over what the tracker was brought back to.

#include "dialog/configuration_review.h"
#include "review/recovery.h"
#include "typing/notice_bar.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vlk {

class UnsavedBar : public NoticeBar
{
    Q_OBJECT

public:
    UnsavedBar(ConfigurationReview& review, QWidget* parent);

    // The configuration that is known by `subject` has been opened.
    void begin(const QString& folder, const QString& subject);
    // What there is now is kept, saved or written: offers that would change nothing go from the disk, and so
    // do those that are discarded or were brought back.
    void drop();
    // What became of a file that the window has saved.
    void tellFile(const std::function<Notice()>& notice);
    // What it told is of the other window.
    void endFile();
    // The tracker holds other values of these settings than before, which can be taken over.
    void tellReplaced(std::vector<int> keys);
    // It has what the window has written.
    void endReplaced();
    // Settings that the tracker was brought back to and that stand in the window as they did then.
    std::vector<int> replaced() const;
    // Whether nothing of that stands as it did when it was told, and the user has not declined it.
    bool hasTakenOver() const { return !replaced_.empty() && replaced().empty(); }
    // That the disk keeps nothing; an empty reason ends it.
    void tellFailure(const QString& reason);
    void tellKeptAgain();
    // Whether Esc is the bar's, once: the window would go with what cannot be kept.
    bool escape();

Q_SIGNALS:
    // What cannot be kept is to go to a file.
    void saveWanted();
    // The review compares with an offer.
    void shown();
    // What the tracker was brought back to.
    void tookOver();

private:
    struct Offer
    {
        review::KeptUnsaved kept;
        std::vector<int> keys;
        std::vector<int> own;         // of the keys, those that are counted
        QMap<QString, QString> alone; // that only the quick window brings back
        review::FileState after;
        bool isShown = false;
        bool isDiscarded = false;
        bool isClosed = false;
        std::optional<review::FileState> replaced{}; // by bringing it back
        std::optional<review::FileState> brought{};  // what that has made of it
        bool isInFullAlone = false;                  // some of that, which quick setup could not bring back
        bool isTakenBack = false;                    // since then
        int told = 0;                                // how many settings it was said to change
        int toldAlone = 0;                           // and how many only in the quick window
        QString replaces{};                          // and which of those that were edited later

        bool isBroughtBack() const { return replaced && !isTakenBack; }
    };

    bool isInNewer(const Offer& offer) const;
    // Whether quick setup, which is on show, has its own value for something that was edited in full setup,
    // even if it is the same one.
    bool hasNoPlace(const Offer& offer) const;
    // Brought back, all that the window on show can.
    bool isThere(const Offer& offer) const
    {
        return offer.isBroughtBack() && (review_.isQuick() || !offer.isInFullAlone);
    }
    // How many of these keys the offer would change.
    int changes(const Offer& offer, const std::vector<int>& keys) const;
    // As a person would count them, one at least.
    int count(const Offer& offer) const;
    // None while the quick window is on show.
    int alone(const Offer& offer) const { return review_.isQuick() ? 0 : offer.alone.size(); }
    void follow(Offer& offer) const;
    QString replacedBy(const Offer& offer) const;
    // Settings that were brought back with another value than was kept, and that.
    QStringList broughtOtherwise() const;
    void tellDamaged();
    // A key, and what it tells of while there is some.
    using Sentence = std::pair<const char*, QStringList (ConfigurationReview::*)() const>;
    void tellSensors(int number, std::vector<Sentence> sentences,
                     const std::function<std::vector<Notice::Action>()>& actions = {});
    // replaced() with what goes along with them.
    std::vector<int> replacedWithAll() const;
    Notice noticeOfReplaced();
    void refresh();
    void tellOffer(int number);
    Notice noticeOf(int number);
    void showOffer(int number);
    void bringBack(int number);
    void discard(int number, bool isDiscarded);
    void endComparison();

    ConfigurationReview& review_;
    QStringList damaged_;            // what is left of changes that cannot be offered; the last one is told
    QStringList otherwise_;          // that was told of what was brought back
    std::map<int, QString> sensors_; // that a notice told last
    std::vector<int> replaced_;      // by the tracker
    review::FileState unreplaced_;   // the window when it was told
    std::size_t toldReplaced_ = 0;   // how many of them
    std::vector<Offer> offers_;      // a notice has the number of its place, from 1 on
};

} // namespace vlk
