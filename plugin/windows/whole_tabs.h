#pragma once

// Tabs that have no room for all: none of those on show is cut, and the one behind the current is among them.

#include <QObject>

#include <memory>

class QTabWidget;

namespace vlk {

class PageStyle;

class WholeTabs : public QObject
{
    Q_OBJECT

public:
    explicit WholeTabs(QTabWidget* tabs);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrange();

    QTabWidget* const tabs_;
    const std::shared_ptr<PageStyle> style_;
    int first_ = 0; // of those on show
};

} // namespace vlk
