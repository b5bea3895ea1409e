#pragma once

// How old the present values of a page are. Where answers follow one another in a period, what is on show is
// old when two have been missed, or when no more are asked for; where one is asked for by hand, when it does
// not come. A label then says since when it holds.

#include <QObject>
#include <QTime>
#include <QTimer>

class QLabel;

namespace vlk {

class PresentAge : public QObject
{
    Q_OBJECT

public:
    PresentAge();

    // Needed before all else.
    void tellIn(QLabel* since) { since_ = since; }
    // In milliseconds; 0 when no more answers are asked for.
    void setPeriod(int periodMs);
    // Answers are asked for again later, which the label says until then.
    void setPaused(bool isPaused);
    // One answer is asked for, or not waited for any more. Where they come in a period, that counts.
    void await(bool isAwaited);
    void answered();
    // No more answers are asked for, and what is on show is as old as it says itself.
    void letBe();
    // Nothing is on show.
    void clear();
    bool isOld() const { return isOld_; }
    void retranslate();

Q_SIGNALS:
    // What isOld() tells.
    void changed();

private:
    void setOld(bool isOld);

    QLabel* since_ = nullptr;
    QTimer due_;
    QTimer awaited_; // the one that was asked for by hand
    QTime last_;     // null when nothing is on show
    bool isOld_ = false;
    bool isPaused_ = false;
};

} // namespace vlk
