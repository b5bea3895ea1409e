#include "telemetry/view/record_on_show.h"

#include "base/clock.h"
#include "telemetry/view/event_panel.h"

namespace vlk {

RecordOnShow::RecordOnShow(EventPanel* panel) : panel_(panel), utcOffset_(vlk::now().offsetFromUtc()) {}

const TmiPage_Zeta3& RecordOnShow::take(const QByteArray& record)
{
    TmiPage_Zeta3& page = pageToFill();
    page.setRecord(record.constData(), record.size());
    if (panel_)
        panel_->setRecord(page);
    return page;
}

const TmiPage_Zeta3& RecordOnShow::takeKeyAnswer(const QByteArray& answer)
{
    TmiPage_Zeta3& page = pageToFill();
    page.setKeyAnswer(answer.constData(), answer.size());
    if (panel_)
        panel_->setRecord(page);
    return page;
}

bool RecordOnShow::setUtcOffset(int seconds)
{
    if (seconds == utcOffset_)
        return false;
    utcOffset_ = seconds;
    if (!page_)
        return false;
    page_->setUtcOffset(seconds);
    if (panel_)
        panel_->setTime(*page_);
    return true;
}

qint64 RecordOnShow::number() const
{
    return page_ ? qint64{page_->number()} : -1;
}

TmiPage_Zeta3& RecordOnShow::pageToFill()
{
    if (!page_) {
        page_ = std::make_unique<TmiPage_Zeta3>();
        page_->setUtcOffset(utcOffset_);
    }
    return *page_;
}

} // namespace vlk
