#pragma once

// Widgets of rows that repeat: the object name of a family with the row's number in.
//
//     auto* box = vlk::numberedWidget<QSpinBox>("spinBox_Hyst_%1", 3);

#include <QString>

namespace vlk {

template <class Widget>
Widget* numberedWidget(const char* name, int number)
{
    auto* widget = new Widget;
    widget->setObjectName(QString::fromLatin1(name).arg(number));
    return widget;
}

} // namespace vlk
