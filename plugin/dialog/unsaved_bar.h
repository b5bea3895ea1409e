#pragma once

// The bar of the configuration's window. Offers what was edited earlier and has reached neither a file nor
// the tracker, above the pages: how many settings of the configuration on show it would change. Each time of
// editing is a notice of its own, the newest first. The cross leaves it for the next opening; once it has
// been shown it can be discarded, which happens when the window closes. It tells, too, which sensors quick
// setup takes for used though the file has none, and which it would remove, or has removed when full setup
// took over from it, with the way back, and offers to take over what the tracker was brought back to.

#include "dialog/kept_offers.h"
#include "typing/notice_bar.h"

#include <map>
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
    // Offers that are over go from the disk (KeptOffers::drop()).
    void drop() { offers_.drop(); }
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
    KeptOffers offers_;              // the notice of one has its number
};

} // namespace vlk
