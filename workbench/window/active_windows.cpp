#include "window/active_windows.h"

#include <QApplication>
#include <QEvent>

namespace workbench {

namespace {

bool liesBelow(const QWidget* window, const QWidget* dialog)
{
    for (const QWidget* below = dialog->parentWidget(); below; below = below->parentWidget()) {
        if (below == window)
            return true;
    }
    return false;
}

} // namespace

ActiveWindows::ActiveWindows(QObject* application) : QObject(application)
{
    application->installEventFilter(this);
}

ActiveWindows& ActiveWindows::instance()
{
    static QPointer<ActiveWindows> windows;
    if (!windows)
        windows = new ActiveWindows(QCoreApplication::instance());
    return *windows;
}

QVector<QWidget*> ActiveWindows::latest() const
{
    QVector<QWidget*> windows;
    for (const QPointer<QWidget>& window : windows_) {
        if (window && window->isVisible())
            windows.prepend(window);
    }
    return windows;
}

bool ActiveWindows::eventFilter(QObject* object, QEvent* event)
{
    // Where windows come and go within moments, one may get the keyboard back without being told: its keys
    // come, but no shortcut works.
    if (event->type() == QEvent::ShortcutOverride && object->isWidgetType() && !QApplication::activeWindow())
        QApplication::setActiveWindow(static_cast<QWidget*>(object)->window());
    if (event->type() != QEvent::WindowActivate || !object->isWidgetType())
        return false;
    auto* window = static_cast<QWidget*>(object);
    if (!window->isWindow() || window->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus))
        return false;
    // One below a dialog takes no keys: where the system gives it the keyboard all the same, as windows come
    // and go within moments, nothing would take them.
    QPointer<QWidget> dialog = QApplication::activeModalWidget();
    if (dialog && liesBelow(window, dialog))
        QMetaObject::invokeMethod(
            this,
            [dialog] {
                if (dialog && dialog->isVisible() && dialog == QApplication::activeModalWidget())
                    dialog->activateWindow();
            },
            Qt::QueuedConnection);
    windows_.removeAll(nullptr);
    windows_.removeAll(window);
    windows_.append(window);
    Q_EMIT activated(window);
    return false;
}

} // namespace workbench
