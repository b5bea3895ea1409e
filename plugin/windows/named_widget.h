#pragma once

// Widgets with an object name; of rows that repeat, the name of a family with the row's number in.
//
//     auto* box = vlk::numberedWidget<QSpinBox>("spinBox_Hyst_%1", 3);

#include <QString>

class QWidget;

namespace vlk {

template <class Widget>
Widget* namedWidget(const char* name, QWidget* parent = nullptr)
{
    auto* widget = new Widget(parent);
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

template <class Widget>
Widget* numberedWidget(const char* name, int number)
{
    auto* widget = new Widget;
    widget->setObjectName(QString::fromLatin1(name).arg(number));
    return widget;
}

} // namespace vlk
