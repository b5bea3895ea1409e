#include "windows/binder/period_adapter.h"

#include <QCoreApplication>

#include <algorithm>

namespace vlk {

PeriodAdapter::PeriodAdapter(const Period& period, const Joint& joint, const std::vector<QWidget*>& boxes)
    : Adapter(joint.edits, joint.row), period_(period)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes_.emplace_back(boxes[i], Number());
        boxes_[i].setRange(period_.parts[i].least, period_.parts[i].most);
        boxes_[i].onChanged(this, [this] { take(); });
    }
}

void PeriodAdapter::dress()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QString unit = QCoreApplication::translate("vlk", period_.parts[i].unit);
        caption(boxes_[i].widget(), unit);
        boxes_[i].setSuffix(QLatin1Char(' ') + unit);
    }
}

void PeriodAdapter::show(const QString& value)
{
    int rest = value.toInt();
    const PeriodPart& last = period_.parts.back();
    boxes_.back().setRange(last.least, last.most);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const PeriodPart& part = period_.parts[i];
        const int shown = std::min(rest / part.seconds, part.most);
        boxes_[i].setValue(shown);
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
    const PeriodPart& last = period_.parts.back();
    int before = 0;
    for (std::size_t i = 0; i + 1 < boxes_.size(); ++i)
        before += static_cast<int>(boxes_[i].value()) * period_.parts[i].seconds;
    const int least = (period_.least - before + last.seconds - 1) / last.seconds;
    boxes_.back().setRange(std::max(last.least, least), last.most);
}

void PeriodAdapter::finishTyping()
{
    for (NumberBox& box : boxes_)
        box.finishTyping();
}

QStringList PeriodAdapter::news() const
{
    QStringList all;
    for (const NumberBox& box : boxes_)
        all << box.news();
    return all;
}

QString PeriodAdapter::held() const
{
    qint64 seconds = 0;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        seconds += static_cast<qint64>(boxes_[i].value()) * period_.parts[i].seconds;
    return QString::number(seconds);
}

std::unique_ptr<Adapter> adapterFor(const Period& row, const Joint& joint)
{
    std::vector<QWidget*> boxes;
    for (const PeriodPart& part : row.parts)
        boxes.push_back(joint.find(part.widget));
    const bool isWhole = std::ranges::find(boxes, nullptr) == boxes.end();
    return isWhole ? std::make_unique<PeriodAdapter>(row, joint, boxes) : nullptr;
}

QWidget* inputOf(const Period&)
{
    return nullptr;
}

} // namespace vlk
