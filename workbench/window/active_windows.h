#pragma once

// Which windows of the program were active, the plug-in's among them. When a dialog closes there may be none
// for a moment; what comes up then belongs to the one that was active before.

#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace workbench {

class ActiveWindows : public QObject
{
    Q_OBJECT

public:
    // The one of the application.
    static ActiveWindows& instance();

    // On show, the one that was active last first.
    QVector<QWidget*> latest() const;

Q_SIGNALS:
    void activated(QWidget* window);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    explicit ActiveWindows(QObject* application);

    QVector<QPointer<QWidget>> windows_; // the latest is the last
};

} // namespace workbench
