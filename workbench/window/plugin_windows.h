#pragma once

// The windows of the plug-in as they come and go. They have no parent, while those of the workbench hang on
// its main window.

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace workbench {

class PluginWindows : public QObject
{
    Q_OBJECT

public:
    explicit PluginWindows(const QWidget* mainWindow);

    // On show, in the order in which they opened.
    QVector<QWidget*> open() const;
    // The modal one that opened last; null when there is none.
    QWidget* modal() const;
    // The calibration window, which hangs on the telemetry window; null when it is not on show.
    static QWidget* calibration();
    // That of records; null when it is not on show.
    static QWidget* records();
    // One that hangs on the telemetry window and asks the tracker by itself.
    static bool isOfTelemetry(const QWidget* window);

Q_SIGNALS:
    void opened(QWidget* window);
    // It still exists, hidden.
    void closed(QWidget* window);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    const QWidget* mainWindow_;
    QVector<QPointer<QWidget>> open_;
};

} // namespace workbench
