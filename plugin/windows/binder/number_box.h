#pragma once

// Spin boxes of both kinds and sliders under one roof. Numbers are in units of the setting's widget; a slider
// counts units of the file, for a real number units of its last decimal.

#include "settings/kinds/number.h"
#include "typing/number_entry.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>

class QAbstractSlider;
class QDoubleSpinBox;
class QSpinBox;

namespace vlk {

class NumberBox
{
public:
    NumberBox() = default;
    NumberBox(QWidget* widget, const Number& number);

    explicit operator bool() const { return widget_; }
    QWidget* widget() const { return widget_; }
    double value() const;
    // Whatever is being typed gives way.
    void setValue(double value);
    // Takes what is being typed.
    void finishTyping();
    void forgetTyping();
    // What was not taken as it was typed since this was asked the last time, empty if all was.
    QString news() const;
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
    NumberEntry* entry_ = nullptr;                   // of a spin box
    std::optional<std::pair<double, double>> range_; // none before it is set for the first time
    int counts_ = 1;                                 // of a slider in one unit of the widget
};

} // namespace vlk
