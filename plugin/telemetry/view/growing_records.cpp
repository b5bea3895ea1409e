#include "telemetry/view/growing_records.h"

#include "base/translated.h"
#include "telemetry/record/record_head.h"
#include "telemetry/shown/records_notices.h"
#include "telemetry/shown/shown_records.h"
#include "typing/notice_bar.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace vlk {

GrowingRecords::GrowingRecords(ShownRecords* shown, NoticeBar* bar, std::function<void()> keep,
                               QObject* parent)
    : QObject(parent), shown_(shown), bar_(bar), keep_(std::move(keep))
{
    connect(bar, &NoticeBar::closed, this,
            [this](int number) { isClosed_ = isClosed_ || number == GrownNotice; });
}

void GrowingRecords::begin()
{
    const std::vector<quint32>& numbers = shown_->columns().recordNumbers();
    before_ = newest_ = known_ = numbers.empty() ? 0 : *std::ranges::max_element(numbers);
    isGrowing_ = true;
}

void GrowingRecords::again()
{
    isClosed_ = false;
    if (records_ + states_ > 0)
        tell();
}

void GrowingRecords::forget()
{
    isGrowing_ = isClosed_ = isKept_ = false;
    records_ = states_ = 0;
    bar_->end(GrownNotice);
}

void GrowingRecords::end()
{
    const bool wasGrowing = std::exchange(isGrowing_, false);
    if (wasGrowing && records_ + states_ > 0)
        tell();
}

bool GrowingRecords::takes(quint32 number)
{
    if (!isGrowing_ || number <= newest_)
        return false;
    newest_ = number;
    ++records_;
    count(number);
    return true;
}

bool GrowingRecords::takesPresent(quint32 number)
{
    if (!isGrowing_ || number <= known_)
        return false;
    ++states_;
    count(number);
    return true;
}

void GrowingRecords::count(quint32 number)
{
    // Without a number before, the first one that comes is where the counting begins.
    if (before_ == 0)
        before_ = number - 1;
    known_ = std::max(known_, number);
    isKept_ = false;
    if (!isClosed_)
        tell();
}

void GrowingRecords::tell()
{
    bar_->tell(GrownNotice, [this] {
        const QLocale locale;
        QStringList said{translated("rec_543").arg(locale.toString(records_ + states_))};
        if (const qint64 missing = qint64{known_} - before_ - records_; missing > 0)
            said << translated("rec_544").arg(locale.toString(missing));
        if (!isGrowing_)
            said << translated("rec_545");
        return Notice{Mark::Advice,
                      said.join(QLatin1Char(' ')),
                      {{translated("rec_007").remove(QLatin1Char('&')), keep_}}};
    });
}

bool GrowingRecords::mayGo(QWidget* window, Going going)
{
    const bool closes = going == Going::Close;
    if ((closes && isGrowing_) || isKept_ || records_ + states_ == 0)
        return true;
    QMessageBox box(QMessageBox::Question, window->windowTitle(),
                    translated(closes ? "rec_680" : "rec_744").arg(QLocale().toString(records_ + states_)),
                    QMessageBox::NoButton, window);
    box.setObjectName(QStringLiteral("messageBox_GrownRecords"));
    const auto* const keep = box.addButton(translated("rec_007"), QMessageBox::ActionRole);
    const auto* const go =
        box.addButton(translated(closes ? "rec_681" : "rec_745"), QMessageBox::DestructiveRole);
    auto* const cancel = box.addButton(translated("wrd_031"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == keep)
        keep_();
    if (box.clickedButton() != go)
        return false;
    forget();
    return true;
}

QByteArray withoutNumber(const QByteArray& record)
{
    constexpr int number = field("NumPage");
    const RecordHead head = readHead(bytesAt(record.constData(), record.size()));
    if (head.type != kTelemetryRecord || !head.mask.test(number))
        return record;
    FieldMask mask = head.mask;
    mask.set(number, false);
    QByteArray rest = record;
    // The number is the first of the fields.
    static_assert(number == 0);
    rest.remove(RecordHead::kBytes, kFields[number].width);
    std::ranges::copy(mask.bytes(), rest.begin() + RecordHead::kBytes - FieldMask::kBytes);
    return rest;
}

} // namespace vlk
