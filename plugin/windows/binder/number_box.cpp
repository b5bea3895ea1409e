#include "windows/binder/number_box.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include <cmath>
#include <utility>

namespace vlk {

NumberBox::NumberBox(QWidget* widget, const Setting& setting)
    : widget_(widget),
      counts_(setting.kind == Kind::real ? static_cast<int>(std::lround(std::pow(10, setting.decimals)))
                                         : setting.factor)
{
    if (auto* box = qobject_cast<QDoubleSpinBox*>(widget)) {
        box->setDecimals(setting.decimals);
        if (setting.step > 0)
            box->setSingleStep(setting.step);
    } else if (auto* whole = qobject_cast<QSpinBox*>(widget)) {
        if (setting.step > 0)
            whole->setSingleStep(static_cast<int>(setting.step));
        if (setting.hexadecimal) {
            whole->setDisplayIntegerBase(16);
            QFont capitals = whole->font();
            capitals.setCapitalization(QFont::AllUppercase);
            whole->setFont(capitals);
        }
    } else if (auto* slider = qobject_cast<QAbstractSlider*>(widget); slider && setting.step > 0) {
        slider->setSingleStep(position(setting.step));
    }
}

int NumberBox::position(double value) const
{
    return static_cast<int>(std::lround(value * counts_));
}

double NumberBox::value() const
{
    if (const auto* box = qobject_cast<const QDoubleSpinBox*>(widget_))
        return box->value();
    if (const auto* whole = qobject_cast<const QSpinBox*>(widget_))
        return whole->value();
    const auto* slider = qobject_cast<const QAbstractSlider*>(widget_);
    return slider ? static_cast<double>(slider->value()) / counts_ : 0;
}

void NumberBox::setValue(double value)
{
    // Only what is being typed may read otherwise than its value.
    if (this->value() == value && widget_ != QApplication::focusWidget())
        return;
    if (auto* box = qobject_cast<QDoubleSpinBox*>(widget_))
        box->setValue(value);
    else if (auto* whole = qobject_cast<QSpinBox*>(widget_))
        whole->setValue(static_cast<int>(value));
    else if (auto* slider = qobject_cast<QAbstractSlider*>(widget_))
        slider->setValue(position(value));
}

void NumberBox::setRange(double least, double most)
{
    // Each setting of a range lays the box out anew.
    if (auto* box = qobject_cast<QDoubleSpinBox*>(widget_)) {
        if (box->minimum() != least || box->maximum() != most)
            box->setRange(least, most);
    } else if (auto* whole = qobject_cast<QSpinBox*>(widget_)) {
        if (whole->minimum() != static_cast<int>(least) || whole->maximum() != static_cast<int>(most))
            whole->setRange(static_cast<int>(least), static_cast<int>(most));
    } else if (auto* slider = qobject_cast<QAbstractSlider*>(widget_)) {
        slider->setRange(position(least), position(most));
    }
}

void NumberBox::setSuffix(const QString& suffix)
{
    if (auto* box = qobject_cast<QDoubleSpinBox*>(widget_))
        box->setSuffix(suffix);
    else if (auto* whole = qobject_cast<QSpinBox*>(widget_))
        whole->setSuffix(suffix);
}

void NumberBox::onChanged(QObject* context, std::function<void()> action) const
{
    const auto run = [action = std::move(action)] { action(); };
    if (auto* box = qobject_cast<QDoubleSpinBox*>(widget_))
        QObject::connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), context, run);
    else if (auto* whole = qobject_cast<QSpinBox*>(widget_))
        QObject::connect(whole, qOverload<int>(&QSpinBox::valueChanged), context, run);
    else if (auto* slider = qobject_cast<QAbstractSlider*>(widget_))
        QObject::connect(slider, &QAbstractSlider::valueChanged, context, run);
}

} // namespace vlk
