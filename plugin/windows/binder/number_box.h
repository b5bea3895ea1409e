#pragma once

// Spin boxes of both kinds and sliders under one roof. Numbers are in units of the setting's widget; a slider
// counts units of the file.

#include "settings/setting.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

namespace vlk {

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
    QWidget* widget_ = nullptr;
    const Setting* setting_ = nullptr;
};

} // namespace vlk
