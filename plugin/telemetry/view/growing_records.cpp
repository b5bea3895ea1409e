#include "telemetry/view/growing_records.h"

#include "base/translated.h"
#include "telemetry/view/records_notices.h"
#include "telemetry/view/shown_records.h"
#include "typing/notice_bar.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace vlk {

GrowingRecords::GrowingRecords(ShownRecords* shown, NoticeBar* bar, std::function<void()> keep,
                               QObject* parent)
    : QObject(parent), shown_(shown), bar_(bar), keep_(std::move(keep))
{
    connect(bar, &NoticeBar::closed, this, [this](int number) { isClosed_ = isClosed_ || number == kGrown; });
}

void GrowingRecords::begin()
{
    const std::vector<quint32>& numbers = shown_->columns().recordNumbers();
    newest_ = numbers.empty() ? 0 : *std::ranges::max_element(numbers);
    isGrowing_ = true;
}

void GrowingRecords::forget()
{
    isGrowing_ = isClosed_ = false;
    added_ = missing_ = 0;
    bar_->end(kGrown);
}

void GrowingRecords::end()
{
    const bool wasGrowing = std::exchange(isGrowing_, false);
    if (wasGrowing && added_ > 0)
        tell();
}

bool GrowingRecords::takes(quint32 number)
{
    if (!isGrowing_ || number <= newest_)
        return false;
    missing_ += newest_ == 0 ? 0 : number - newest_ - 1;
    newest_ = number;
    ++added_;
    if (!isClosed_)
        tell();
    return true;
}

void GrowingRecords::tell()
{
    bar_->tell(kGrown, [this] {
        const QLocale locale;
        QStringList said{translated("rec_543").arg(locale.toString(added_))};
        if (missing_ > 0)
            said << translated("rec_544").arg(locale.toString(missing_));
        if (!isGrowing_)
            said << translated("rec_545");
        return Notice{Mark::advice,
                      said.join(QLatin1Char(' ')),
                      {{translated("rec_007").remove(QLatin1Char('&')), keep_}}};
    });
}

} // namespace vlk
