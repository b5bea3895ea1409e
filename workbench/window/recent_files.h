#pragma once

// The files that were opened last, as a list in the main window and as a menu with the same entries. A file
// opens again in the window that it was last shown in; the list's context menu offers the other one.

#include "window/key_texts.h"
#include "window/settings.h"

#include <QGroupBox>

class QListWidget;
class QMenu;

namespace workbench {

class RecentFiles : public QGroupBox
{
    Q_OBJECT

public:
    explicit RecentFiles(Settings& settings, QWidget* parent = nullptr);

    // In first place from now on.
    void add(const QString& path, TelemetryWindow window);
    void remove(const QString& path);

    // Disabled while it is empty.
    QMenu* menu() { return menu_; }
    void retranslate() { texts_.apply(); }

Q_SIGNALS:
    void chosen(const QString& path, TelemetryWindow window);

private:
    void refresh();
    void offerWindows(const QPoint& at);

    Settings& settings_;
    KeyTexts texts_;
    QListWidget* list_;
    QMenu* menu_;
};

} // namespace workbench
