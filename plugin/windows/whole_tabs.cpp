#include "windows/whole_tabs.h"

#include "windows/page_style.h"

#include <QEvent>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace vlk {

WholeTabs::WholeTabs(QTabWidget* tabs) : QObject(tabs), tabs_(tabs)
{
    setPageStyle(tabs->tabBar());
    tabs->installEventFilter(this);
    connect(tabs, &QTabWidget::currentChanged, this, &WholeTabs::arrange);
}

bool WholeTabs::eventFilter(QObject* watched, QEvent* event)
{
    // Behind what the tabs do themselves.
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        QMetaObject::invokeMethod(this, &WholeTabs::arrange, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void WholeTabs::arrange()
{
    QTabBar* bar = tabs_->tabBar();
    const int last = bar->count() - 1;
    const int current = bar->currentIndex();
    if (current < 0)
        return;
    const auto width = [bar](int from, int to) {
        return bar->tabRect(to).right() - bar->tabRect(from).left() + 1;
    };
    if (width(0, last) <= tabs_->width()) {
        bar->setMaximumWidth(QWIDGETSIZE_MAX);
        return;
    }
    const int buttons = 2 * bar->style()->pixelMetric(QStyle::PM_TabBarScrollButtonWidth, nullptr, bar);
    constexpr int kMark = 7; // at the left, where there are more
    const int room = tabs_->width() - buttons - kMark;
    const int next = std::min(current + 1, last);
    first_ = std::min(first_, current);
    while (first_ < current && width(first_, next) > room)
        ++first_;
    int end = next;
    while (end < last && width(first_, end + 1) <= room)
        ++end;
    while (first_ > 0 && width(first_ - 1, end) <= room)
        --first_;
    bar->setMaximumWidth(width(first_, end) + buttons + (first_ > 0 ? kMark : 0));

    // The bar scrolls as little as it can to what becomes current.
    const QSignalBlocker blocker(bar);
    for (const int tab : {last, first_, current})
        bar->setCurrentIndex(tab);
}

} // namespace vlk
