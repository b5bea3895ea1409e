#pragma once

// Tabs that have no room for all: none of those on show is cut, and the one behind the current is among them.

#include <QObject>

class QTabWidget;

namespace vlk {

class WholeTabs : public QObject
{
    Q_OBJECT

public:
    explicit WholeTabs(QTabWidget* tabs);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrange();

    QTabWidget* const tabs_;
    int first_ = 0; // of those on show
};

} // namespace vlk
