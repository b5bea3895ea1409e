#pragma once

// The workbench's window over a data folder of its own, in English.

#include "window/data_folder.h"
#include "window/settings.h"
#include "window/workbench_window.h"

#include <QAction>
#include <QLabel>
#include <QTemporaryDir>

struct OpenedWorkbench
{
    QAction* action(const char* name) { return window.findChild<QAction*>(QLatin1String(name)); }
    QString text(const char* name) { return window.findChild<QLabel*>(QLatin1String(name))->text(); }
    bool start(const char* plugin)
    {
        window.show();
        return window.start(QLatin1String(plugin));
    }

    QTemporaryDir root;
    workbench::DataFolder folder{root.path()};
    workbench::Settings settings{folder.settingsFile()};
    workbench::Languages languages;
    bool english = languages.set(QStringLiteral("en"));
    workbench::WorkbenchWindow window{folder, settings, languages};
};
