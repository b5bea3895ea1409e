#pragma once

// The forms of a window whose widgets are joined to settings: finds widgets and their labels by name.

#include "settings/rule.h"

#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace vlk {

// The widgets of a rule, without their form.
QStringList targetNames(const Enable& rule);

class BoundForms
{
public:
    // Names are looked up below this widget, which has all of its labels by then. With a number: those of the
    // rows that have the number, before any other widget.
    void add(QWidget* form, int number);

    // The page itself.
    QWidget* first() const { return forms_.empty() ? nullptr : forms_.back().widget.data(); }
    // In the form with the object name that the name tells, with its numbers in. Null when there is none.
    QWidget* find(const Name& name, Numbers numbers) const;
    QWidget* find(const QString& form, const QString& widget, int number) const;
    // Whether the form is not there yet.
    bool isLate(const QString& form) const { return !form.isEmpty() && !formNamed(form); }
    bool isLate(const Name& name, Numbers numbers) const;
    // The label whose buddy the widget is, else the one named label_<widget>, whose buddy it becomes.
    QLabel* labelOf(QWidget* widget) const;
    // The one of its form named <widget>_After.
    QLabel* labelBehind(QWidget* widget) const;

private:
    struct Form
    {
        QPointer<QWidget> widget;
        int number;
        // Its labels by their buddies, and all that had a name when it was added: looking through a form of
        // many rows for each of them takes longer than all the rest.
        QHash<const QWidget*, QPointer<QLabel>> ofBuddy;
        QHash<QString, QPointer<QWidget>> named;

        QWidget* find(const QString& name) const;
        QLabel* label(const QString& name) const;
    };

    const Form* formNamed(const QString& name) const;
    // The innermost one that the widget stands in.
    const Form* formAround(const QWidget* widget) const;

    std::vector<Form> forms_;
};

} // namespace vlk
