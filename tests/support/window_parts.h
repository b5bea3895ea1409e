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

    QWidget* window = nullptr;
};
