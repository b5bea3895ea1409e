#pragma once

// Records of a tracker that are still being made: which of those that it sends join the ones on show, and
// what the window's bar tells of them, since the file on show does not hold them.

#include <QObject>

#include <functional>

namespace vlk {

class NoticeBar;
class ShownRecords;

class GrowingRecords : public QObject
{
    Q_OBJECT

public:
    // `keep`: what the bar offers.
    GrowingRecords(ShownRecords* shown, NoticeBar* bar, std::function<void()> keep, QObject* parent);

    // Those on show grow from now on.
    void begin();
    // Others are on show.
    void forget();
    // The tracker is gone.
    void end();
    // Whether the record is newer than all on show; it is to join them then.
    bool takes(quint32 number);

private:
    void tell();

    ShownRecords* shown_;
    NoticeBar* bar_;
    std::function<void()> keep_;
    bool isGrowing_ = false;
    bool isClosed_ = false; // what is told, by the user
    quint32 newest_ = 0;    // number on show
    qint64 added_ = 0;
    qint64 missing_ = 0; // in front of added ones
};

} // namespace vlk
