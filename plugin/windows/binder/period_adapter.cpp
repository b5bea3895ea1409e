#include "windows/binder/period_adapter.h"

#include "windows/binder/number_box.h"

#include <QCoreApplication>
#include <QSpinBox>

#include <utility>

namespace vlk {

PeriodAdapter::PeriodAdapter(Edits& edits, int index, std::vector<QSpinBox*> boxes)
    : Adapter(edits, index), boxes_(std::move(boxes))
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        own(boxes_[i]);
        boxes_[i]->setRange(setting().parts[i].least, setting().parts[i].most);
        connect(boxes_[i], qOverload<int>(&QSpinBox::valueChanged), this, [this] { take(); });
    }
}

void PeriodAdapter::dress()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QString unit = QCoreApplication::translate("vlk", setting().parts[i].unit);
        caption(boxes_[i], unit);
        boxes_[i]->setSuffix(QLatin1Char(' ') + unit);
    }
}

void PeriodAdapter::show(const QString& value)
{
    int rest = value.toInt();
    boxes_.back()->setMinimum(setting().parts.back().least);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const PeriodPart& part = setting().parts[i];
        const int shown = std::min(rest / part.seconds, part.most);
        showNumber(boxes_[i], shown);
        rest -= shown * part.seconds;
    }
    limitLast();
}

void PeriodAdapter::take()
{
    if (edits_.isShowing())
        return;
    limitLast();
    edited(held());
}

void PeriodAdapter::limitLast()
{
    const PeriodPart& last = setting().parts.back();
    int before = 0;
    for (std::size_t i = 0; i + 1 < boxes_.size(); ++i)
        before += boxes_[i]->value() * setting().parts[i].seconds;
    const int least = (static_cast<int>(setting().least) - before + last.seconds - 1) / last.seconds;
    boxes_.back()->setMinimum(std::max(last.least, least));
}

QString PeriodAdapter::held() const
{
    qint64 seconds = 0;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        seconds += static_cast<qint64>(boxes_[i]->value()) * setting().parts[i].seconds;
    return QString::number(seconds);
}

} // namespace vlk
