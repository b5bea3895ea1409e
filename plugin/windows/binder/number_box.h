#pragma once

// Spin boxes of both kinds and sliders under one roof. Numbers are in units of the setting's widget; a slider
// counts units of the file, for a real number units of its last decimal.

#include "settings/setting.h"

#include <QApplication>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>

class QAbstractSlider;
class QDoubleSpinBox;
class QSpinBox;

namespace vlk {

// Leaves a box alone that shows the number: each setting formats it anew. Only what is being typed may read
// otherwise than its value.
template <class Box, class Number>
void showNumber(Box* box, Number number)
{
    if (box->value() != number || box == QApplication::focusWidget())
        box->setValue(number);
}

class NumberBox
{
public:
    NumberBox() = default;
    NumberBox(QWidget* widget, const Setting& setting);

    explicit operator bool() const { return widget_; }
    QWidget* widget() const { return widget_; }
    double value() const;
    void setValue(double value);
    void setRange(double least, double most);
    void setSuffix(const QString& suffix);
    void onChanged(QObject* context, std::function<void()> action) const;

private:
    int position(double value) const;

    // The widget, and as the one of these that it is.
    QWidget* widget_ = nullptr;
    QDoubleSpinBox* real_ = nullptr;
    QSpinBox* whole_ = nullptr;
    QAbstractSlider* slider_ = nullptr;
    std::optional<std::pair<double, double>> range_; // none before it is set for the first time
    int counts_ = 1;                                 // of a slider in one unit of the widget
};

} // namespace vlk
