#pragma once

// The workbench over a plug-in that writes back whatever configuration it is given.

#include "opened_workbench.h"

#include <QtTest>
#include <QtWidgets>

struct Bench : OpenedWorkbench
{
    bool start()
    {
        workbench::WriteRoad* road = &window.session().road();
        QObject::connect(
            road, &workbench::WriteRoad::reviewReady, &window,
            [this] {
                if (auto* button = window.findChild<QAbstractButton*>(QStringLiteral("pushButton_Write"))) {
                    QTRY_VERIFY(button->isEnabled());
                    button->click();
                }
            },
            Qt::QueuedConnection);
        return OpenedWorkbench::start(VLK_ECHO_PLUGIN);
    }
};

// Closes the message box that is up after an act, or comes up within it, and gives its text.
inline QString messageDuring(const std::function<void()>& act)
{
    QString text;
    const auto close = [&text] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    };
    QTimer inside;
    QObject::connect(&inside, &QTimer::timeout, close);
    inside.start(0);
    act();
    QCoreApplication::processEvents();
    close();
    return text;
}
