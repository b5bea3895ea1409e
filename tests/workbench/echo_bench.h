#pragma once

// The workbench over a plug-in that writes back whatever configuration it is given.

#include "answered_dialogs.h"
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
