#pragma once

// Keys as a person presses them.

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QKeySequence>
#include <QWidget>
#include <QtTest>

// Types a text into a field, in which <...> names a key: "30<Tab>". The field gets the focus first, as by
// Tab.
inline void type(QWidget* field, const QString& keys)
{
    static const QHash<QString, Qt::Key> named{
        {"Tab", Qt::Key_Tab},   {"Enter", Qt::Key_Return},    {"Esc", Qt::Key_Escape},
        {"Up", Qt::Key_Up},     {"End", Qt::Key_End},         {"Back", Qt::Key_Backspace},
        {"Home", Qt::Key_Home}, {"Backtab", Qt::Key_Backtab}, {"Shift", Qt::Key_Shift},
    };
    if (!field->hasFocus())
        field->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < keys.size(); ++i) {
        if (keys[i] != '<') {
            // Qt Test knows no keys of letters beyond Latin.
            QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, keys.mid(i, 1));
            QApplication::sendEvent(field, &press);
            continue;
        }
        const int end = keys.indexOf('>', i);
        const QString name = keys.mid(i + 1, end - i - 1);
        if (name == "All")
            QTest::keySequence(field, QKeySequence::SelectAll);
        else if (name == "Paste")
            QTest::keySequence(field, QKeySequence::Paste);
        else
            QTest::keyClick(field, named.value(name));
        i = end;
    }
}
