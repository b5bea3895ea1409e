#pragma once

// Check boxes, radio buttons and checkable group boxes under one roof.

#include <QAbstractButton>
#include <QGroupBox>

namespace vlk {

inline bool isChecked(const QWidget* box)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(box))
        return button->isChecked();
    const auto* group = qobject_cast<const QGroupBox*>(box);
    return group && group->isChecked();
}

inline void setChecked(QWidget* box, bool on)
{
    if (auto* button = qobject_cast<QAbstractButton*>(box))
        button->setChecked(on);
    else if (auto* group = qobject_cast<QGroupBox*>(box))
        group->setChecked(on);
}

template <class Action>
void onToggled(QWidget* box, QObject* context, Action action)
{
    if (auto* button = qobject_cast<QAbstractButton*>(box))
        QObject::connect(button, &QAbstractButton::toggled, context, action);
    else if (auto* group = qobject_cast<QGroupBox*>(box))
        QObject::connect(group, &QGroupBox::toggled, context, action);
}

} // namespace vlk
