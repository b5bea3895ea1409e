#pragma once

// The parts of the window under test by their object names. An unknown name aborts the test.

#include <QAbstractButton>
#include <QLabel>
#include <QWidget>

class WindowParts
{
public:
    template <class T = QLabel>
    T* child(const QString& name) const
    {
        auto* found = window ? window->findChild<T*>(name) : nullptr;
        if (!found)
            qFatal("no widget %s", qPrintable(name));
        return found;
    }
    QString text(const QString& name) const { return child(name)->text(); }
    bool isOn(const char* name) const { return child<QWidget>(name)->isEnabled(); }
    void press(const char* name) const { child<QAbstractButton>(name)->click(); }
    // The next fields that the Tab key comes to, enabled or not.
    QStringList fieldsBehind(const QString& name, int count) const
    {
        QStringList names;
        QWidget* widget = child<QWidget>(name);
        while (names.size() < count) {
            widget = widget->nextInFocusChain();
            if ((widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy())
                names << widget->objectName();
        }
        return names;
    }

    QWidget* window = nullptr;
};
