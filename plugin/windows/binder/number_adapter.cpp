#include "windows/binder/number_adapter.h"

#include "windows/binder/checkable.h"

#include <QAbstractSlider>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QSpinBox>

namespace vlk {

NumberAdapter::NumberAdapter(const Number& number, const Joint& joint, QWidget* box, QWidget* companion)
    : Adapter(joint.edits, joint.row), number_(number), box_(box, number)
{
    box_.onChanged(this, [this] { take(); });
    if (qobject_cast<QAbstractSlider*>(companion)) {
        slider_ = NumberBox(companion, number_);
        // The box rounds, and the slider follows what it made of it.
        slider_.onChanged(this, [this] {
            box_.setValue(slider_.value());
            take();
        });
    } else if (companion) {
        check_ = companion;
        onToggled(check_, this, [this](bool on) { switched(on); });
    }
}

void NumberAdapter::dress()
{
    const char* unit = values().unitKey(row());
    const QString unitText = unit ? QCoreApplication::translate("vlk", unit) : QString();
    caption(check_ ? check_ : box_.widget(), check_ ? QString() : unitText);
    if (check_)
        box_.widget()->setAccessibleName(check_->accessibleName());
    box_.setSuffix(unit ? QLatin1Char(' ') + unitText : QString());
    if (slider_)
        slider_.widget()->setAccessibleName(box_.widget()->accessibleName());
    setLimits();
}

bool NumberAdapter::isOn() const
{
    return !check_ || isChecked(check_);
}

void NumberAdapter::setLimits()
{
    const Limits limits = values().limits(row());
    box_.setRange(isOn() ? limits.least : 0, isOn() ? limits.most : 0);
    if (slider_)
        slider_.setRange(limits.least, limits.most);
    if (check_)
        box_.widget()->setEnabled(isOn());
}

void NumberAdapter::show(const QString& value)
{
    const double shown = shownNumber(number_, value);
    if (check_) {
        setChecked(check_, shown != 0);
        if (shown != 0)
            remembered_ = shown;
    }
    setLimits();
    box_.setValue(shown);
    if (slider_)
        slider_.setValue(shown);
}

void NumberAdapter::switched(bool on)
{
    if (edits_.isShowing())
        return;
    const int fixed = number_.switchedOnAt;
    if (!on && fixed < 0)
        remembered_ = box_.value();
    const double number = on ? fixed < 0 ? remembered_ : fixed : 0;
    setLimits();
    box_.setValue(number);
    take();
}

void NumberAdapter::doubt(const QString& complaint)
{
    if (complaint == complaint_)
        return;
    complaint_ = complaint;
    markField(box_.widget(), MarkReason::Value, Mark::Invalid, complaint);
}

void NumberAdapter::take()
{
    edited(held());
    if (slider_)
        slider_.setValue(box_.value());
}

QString NumberAdapter::held() const
{
    return fileNumber(number_, isOn() ? box_.value() : 0);
}

std::unique_ptr<Adapter> adapterFor(const Number& row, const Joint& joint)
{
    QWidget* box = joint.find(row.widget);
    Name companion = row.widget;
    companion.tail = row.companion;
    return box ? std::make_unique<NumberAdapter>(row, joint, box, joint.find(companion)) : nullptr;
}

QWidget* inputOf(const Number& row)
{
    if (row.decimals > 0)
        return new QDoubleSpinBox;
    return new QSpinBox;
}

} // namespace vlk
