#pragma once

// Records of a tracker that are still being made: which of those that it sends join the ones on show, and
// what the window's bar tells of them, since the file on show does not hold them.
//
// A tracker answers the question for its present state under the number of its latest record. That record is
// another one: the state joins without a number, and the record counts as not read until it comes itself.

#include <QByteArray>
#include <QObject>

#include <functional>

class QWidget;

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
    // Those on show are shown again: what is told of them too, though the user closed it.
    void again();
    // Others are on show.
    void forget();
    // The tracker is gone.
    void end();
    // Whether the record is newer than all on show; it is to join them then.
    bool takes(quint32 number);
    // Whether a present state that came under this number tells that there is a newer record.
    bool takesPresent(quint32 number);
    bool isGrowing() const { return isGrowing_; }
    // All that is on show was written to a file.
    void setKept() { isKept_ = true; }
    // Before the window closes or shows other records: asks where records would go that are in no file.
    // Closed it keeps them as long as the tracker is there.
    enum class Going { Close, Others };
    bool mayGo(QWidget* window, Going going);

private:
    void count(quint32 number);
    void tell();

    ShownRecords* shown_;
    NoticeBar* bar_;
    std::function<void()> keep_;
    bool isGrowing_ = false;
    bool isClosed_ = false; // what is told, by the user
    bool isKept_ = false;
    quint32 before_ = 0; // number of the newest record before the growth
    quint32 newest_ = 0; // that joined
    quint32 known_ = 0;  // that there is, read or not
    qint64 records_ = 0;
    qint64 states_ = 0;
};

// A telemetry record, from its type byte on, without its number.
QByteArray withoutNumber(const QByteArray& record);

} // namespace vlk
