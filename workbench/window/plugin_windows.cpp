#include "window/plugin_windows.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>

namespace workbench {

namespace {

QWidget* onShow(const char* className)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(windows, [className](const QWidget* window) {
        return window->isVisible() && window->inherits(className);
    });
    return found == windows.end() ? nullptr : *found;
}

} // namespace

PluginWindows::PluginWindows(const QWidget* mainWindow) : mainWindow_(mainWindow)
{
    QCoreApplication::instance()->installEventFilter(this);
}

QVector<QWidget*> PluginWindows::open() const
{
    QVector<QWidget*> windows;
    for (const QPointer<QWidget>& window : open_) {
        if (window)
            windows.append(window);
    }
    return windows;
}

QWidget* PluginWindows::modal() const
{
    const QVector<QWidget*> windows = open();
    const auto last = std::ranges::find_if(windows.rbegin(), windows.rend(),
                                           [](const QWidget* window) { return window->isModal(); });
    return last == windows.rend() ? nullptr : *last;
}

QWidget* PluginWindows::calibration()
{
    return onShow("VLK_Form_TMI_Fuel_Sensors");
}

QWidget* PluginWindows::records()
{
    return onShow("VLK_Widget_Tmi_Table");
}

bool PluginWindows::isOfTelemetry(const QWidget* window)
{
    return window->inherits("VLK_Form_TMI_Fuel_Sensors") || window->inherits("VLK_Form_TMI_Taho");
}

bool PluginWindows::eventFilter(QObject* object, QEvent* event)
{
    const bool shown = event->type() == QEvent::Show;
    // Minimising and restoring are told spontaneously.
    if ((!shown && event->type() != QEvent::Hide) || event->spontaneous() || !object->isWidgetType())
        return false;
    auto* window = static_cast<QWidget*>(object);
    const bool isOurs = window == mainWindow_ || window->parentWidget();
    const bool isWindow = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
    if (isOurs || !isWindow)
        return false;
    open_.removeAll(window);
    if (shown) {
        open_.append(window);
        Q_EMIT opened(window);
    } else {
        Q_EMIT closed(window);
    }
    return false;
}

} // namespace workbench
