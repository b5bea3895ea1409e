#pragma once

// What was edited of a configuration earlier and has reached neither a file nor the tracker: each time of
// editing is an offer, the newest first, that is over once its changes stand in the window. What quick setup
// has no place for waits for full setup.

#include "dialog/configuration_review.h"
#include "review/recovery.h"

#include <optional>
#include <vector>

namespace vlk {

struct KeptOffer
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
};

class KeptOffers
{
public:
    explicit KeptOffers(ConfigurationReview& review) : review_(review) {}

    // Those of the configuration that is known by `subject`.
    void read(const QString& folder, const QString& subject);
    int count() const { return static_cast<int>(offers_.size()); }
    // Numbered from 1 on.
    KeptOffer& at(int number) { return offers_[number - 1]; }
    // What there is now is kept, saved or written: those that would change nothing go from the disk, and so
    // do those that are discarded or were brought back.
    void drop();

    // Once it was brought back it is over, whatever else becomes of its keys; but where that was taken back
    // it waits until all of it stands there again.
    void follow(KeptOffer& offer) const;
    bool isOver(const KeptOffer& offer) const;
    // How many settings it would change, as a person would count them, one at least.
    int changesOf(const KeptOffer& offer) const;
    // How many it would change in the quick window alone; none while that is on show.
    int alone(const KeptOffer& offer) const { return review_.isQuick() ? 0 : offer.alone.size(); }
    // What has been edited since, in this window or by a newer offer, and would be lost: captions, or how
    // many.
    QString replacedBy(const KeptOffer& offer) const;
    // Settings that were brought back with another value than was kept, and that.
    QStringList broughtOtherwise() const;
    void bringBack(KeptOffer& offer, const EditHistory::Words& words);

private:
    bool isInNewer(const KeptOffer& offer) const;
    // Brought back, all that the window on show can.
    bool isThere(const KeptOffer& offer) const;
    // Whether quick setup, which is on show, has its own value for something that was edited in full setup,
    // even if it is the same one.
    bool hasNoPlace(const KeptOffer& offer) const;
    // How many of these keys the offer would change.
    int changes(const KeptOffer& offer, const std::vector<int>& keys) const;

    ConfigurationReview& review_;
    std::vector<KeptOffer> offers_;
};

} // namespace vlk
