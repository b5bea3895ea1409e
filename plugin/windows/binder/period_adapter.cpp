#include "windows/binder/period_adapter.h"

#include <QCoreApplication>

#include <algorithm>

namespace vlk {

PeriodAdapter::PeriodAdapter(Edits& edits, int row, const std::vector<QWidget*>& boxes) : Adapter(edits, row)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes_.emplace_back(boxes[i], setting());
        boxes_[i].setRange(setting().parts[i].least, setting().parts[i].most);
        boxes_[i].onChanged(this, [this] { take(); });
    }
}

void PeriodAdapter::dress()
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QString unit = QCoreApplication::translate("vlk", setting().parts[i].unit);
        caption(boxes_[i].widget(), unit);
        boxes_[i].setSuffix(QLatin1Char(' ') + unit);
    }
}

void PeriodAdapter::show(const QString& value)
{
    int rest = value.toInt();
    const PeriodPart& last = setting().parts.back();
    boxes_.back().setRange(last.least, last.most);
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const PeriodPart& part = setting().parts[i];
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
    const PeriodPart& last = setting().parts.back();
    int before = 0;
    for (std::size_t i = 0; i + 1 < boxes_.size(); ++i)
        before += static_cast<int>(boxes_[i].value()) * setting().parts[i].seconds;
    const int least = (static_cast<int>(setting().least) - before + last.seconds - 1) / last.seconds;
    boxes_.back().setRange(std::max(last.least, least), last.most);
}

void PeriodAdapter::finishTyping()
{
    for (NumberBox& box : boxes_)
        box.finishTyping();
}

QStringList PeriodAdapter::takeNews()
{
    QStringList news;
    for (NumberBox& box : boxes_)
        news << box.takeNews();
    return news;
}

QString PeriodAdapter::held() const
{
    qint64 seconds = 0;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        seconds += static_cast<qint64>(boxes_[i].value()) * setting().parts[i].seconds;
    return QString::number(seconds);
}

} // namespace vlk
