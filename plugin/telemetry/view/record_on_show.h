#pragma once

// The page object of the record that a content form shows: made with the first record, decoded again with
// each next one, always in the zone that the user chose. Every record that it takes goes to the event panel
// too.

#include "telemetry/record/tmi_page_zeta3.h"

#include <memory>

namespace vlk {

class EventPanel;

class RecordOnShow
{
public:
    // `panel` may be null.
    explicit RecordOnShow(EventPanel* panel);

    const TmiPage_Zeta3& take(const QByteArray& record);
    // The answer to the question for the last key.
    const TmiPage_Zeta3& takeKeyAnswer(const QByteArray& answer);

    // Seconds east of UTC. True if that changes the page: its event's time is then written again.
    bool setUtcOffset(int seconds);

    // Null before the first record.
    const TmiPage_Zeta3* page() const { return page_.get(); }
    // The record's number, -1 before the first record.
    qint64 number() const;

private:
    TmiPage_Zeta3& pageToFill();

    EventPanel* panel_;
    int utcOffset_;
    std::unique_ptr<TmiPage_Zeta3> page_;
};

} // namespace vlk
