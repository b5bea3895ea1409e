#include "windows/binder/number_box.h"

#include <QAbstractSlider>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include <cmath>
#include <utility>

namespace vlk {

NumberBox::NumberBox(QWidget* widget, const Number& number)
    : widget_(widget), real_(qobject_cast<QDoubleSpinBox*>(widget)), whole_(qobject_cast<QSpinBox*>(widget)),
      slider_(qobject_cast<QAbstractSlider*>(widget)),
      counts_(number.isText ? static_cast<int>(std::lround(std::pow(10, number.decimals))) : number.factor)
{
    if (real_ || whole_)
        entry_ = NumberEntry::join(qobject_cast<QAbstractSpinBox*>(widget));
    if (real_) {
        real_->setDecimals(number.decimals);
        if (number.step > 0)
            real_->setSingleStep(number.step);
    } else if (whole_) {
        if (number.step > 0)
            whole_->setSingleStep(static_cast<int>(number.step));
        if (number.hexadecimal) {
            whole_->setDisplayIntegerBase(16);
            QFont capitals = whole_->font();
            capitals.setCapitalization(QFont::AllUppercase);
            whole_->setFont(capitals);
        }
    } else if (slider_ && number.step > 0) {
        slider_->setSingleStep(position(number.step));
    }
}

int NumberBox::position(double value) const
{
    return static_cast<int>(std::lround(value * counts_));
}

double NumberBox::value() const
{
    if (real_)
        return real_->value();
    if (whole_)
        return whole_->value();
    return slider_ ? static_cast<double>(slider_->value()) / counts_ : 0;
}

// A box that shows the number already is left alone: each setting formats it anew.
void NumberBox::setValue(double value)
{
    if (entry_)
        entry_->giveUp();
    if (real_ && real_->value() != value)
        real_->setValue(value);
    else if (whole_ && whole_->value() != static_cast<int>(value))
        whole_->setValue(static_cast<int>(value));
    else if (slider_)
        slider_->setValue(position(value));
    if (entry_)
        entry_->retell();
}

void NumberBox::forgetTyping()
{
    if (entry_)
        entry_->forget();
}

void NumberBox::finishTyping()
{
    if (entry_)
        entry_->finish();
}

QString NumberBox::news() const
{
    return entry_ ? entry_->news() : QString();
}

void NumberBox::setRange(double least, double most)
{
    // Each setting of a range lays the box out anew, and asking the box for the one it has is not cheap
    // either.
    if (range_ == std::pair(least, most))
        return;
    range_ = {least, most};
    if (real_)
        real_->setRange(least, most);
    else if (whole_)
        whole_->setRange(static_cast<int>(least), static_cast<int>(most));
    else if (slider_)
        slider_->setRange(position(least), position(most));
}

void NumberBox::setSuffix(const QString& suffix)
{
    if (real_)
        real_->setSuffix(suffix);
    else if (whole_)
        whole_->setSuffix(suffix);
}

void NumberBox::onChanged(QObject* context, std::function<void()> action) const
{
    const auto run = [action = std::move(action)] { action(); };
    if (real_)
        QObject::connect(real_, qOverload<double>(&QDoubleSpinBox::valueChanged), context, run);
    else if (whole_)
        QObject::connect(whole_, qOverload<int>(&QSpinBox::valueChanged), context, run);
    else if (slider_)
        QObject::connect(slider_, &QAbstractSlider::valueChanged, context, run);
}

} // namespace vlk
