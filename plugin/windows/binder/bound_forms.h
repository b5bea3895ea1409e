#pragma once

// The forms of a window whose widgets are joined to settings: finds widgets and their labels by name.

#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace vlk {

class BoundForms
{
public:
    // Names are looked up below this widget, which has all of its labels by then. With a number: those of the
    // rows that have the number, before any other widget.
    void add(QWidget* form, int number);

    // "TACH/comboBox_Type" is the widget in the form with the object name TACH. Null when there is none.
    QWidget* find(const QString& name, int number) const;
    // Whether the name tells a form that is not there yet.
    bool isLate(const QString& name) const;
    // The label whose buddy the widget is, else the one named label_<widget>, whose buddy it becomes.
    QLabel* labelOf(QWidget* widget) const;
    // The one named <widget>_After.
    QLabel* labelBehind(QWidget* widget) const;

private:
    struct Form
    {
        QPointer<QWidget> widget;
        int number;
        // Its labels by their buddies and by their names: looking through a form of many rows for the label
        // of each of its widgets takes longer than all the rest.
        QHash<const QWidget*, QPointer<QLabel>> ofBuddy;
        QHash<QString, QPointer<QLabel>> named;
    };

    const Form* formNamed(const QString& name) const;
    // The innermost one that the widget stands in.
    const Form* formAround(const QWidget* widget) const;

    std::vector<Form> forms_;
};

} // namespace vlk
