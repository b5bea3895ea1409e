#pragma once

// The configuration dialog with a whole configuration, and an empty dialog beside it.

#include "bench/settle.h"
#include "dialog/widget_config.h"
#include "link/messages.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTemporaryDir>

namespace bench {

// A configuration with all ten sections, as the tracker gives it.
inline QString wholeConfiguration()
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("whole.xml"));
    if (!QFile::exists(path))
        QFile::copy(QStringLiteral(VLK_SOURCE "/workbench/tracker/factory.xml"), path);
    return path;
}

inline void openConfiguration(VLK_Widget_Config& dialog)
{
    char ussd[vlk::kBalanceUssdSize] = {};
    vlk::OpenRequest request{};
    request.showFull = 1;
    qstrncpy(request.path, wholeConfiguration().toLocal8Bit().constData(), sizeof request.path);
    dialog.open(request, ussd);
    settle();
}

inline void openEmpty(QDialog& dialog)
{
    dialog.resize(1024, 600);
    dialog.show();
    settle();
}

inline void openEmptyDialog()
{
    QDialog dialog;
    openEmpty(dialog);
}

} // namespace bench
