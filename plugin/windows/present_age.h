#pragma once

// How old the present values of a page are. Where answers follow one another in a period, what is on show is
// old when two have been missed, or when no more are asked for; a label then says since when it holds.

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
    void answered();
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
    QTime last_; // null when nothing is on show
    bool isOld_ = false;
};

} // namespace vlk
