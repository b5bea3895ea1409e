#include "typing/area_keys.h"

#include "typing/notice_bar.h"

#include <QApplication>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

constexpr int kRoundMs = 5000; // between two steps of one round

bool holds(const QWidgetList& area, const QWidget* widget)
{
    return widget && std::ranges::any_of(area, [widget](const QWidget* part) {
               return part == widget || part->isAncestorOf(widget);
           });
}

bool takesKeys(const QWidget* widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() && widget->isEnabled();
}

// The tabs themselves where nothing else takes keys.
QWidget* firstIn(const QWidgetList& area)
{
    QWidget* tabs = nullptr;
    for (QWidget* part : area) {
        for (QWidget* widget : QWidgetList{part} + part->findChildren<QWidget*>()) {
            if (!takesKeys(widget))
                continue;
            if (!widget->inherits("QTabBar") && !widget->inherits("QTabWidget"))
                return widget;
            tabs = tabs ? tabs : widget;
        }
    }
    return tabs;
}

} // namespace

AreaKeys::AreaKeys(QWidget* window, Areas areas) : QObject(window), window_(window), areas_(std::move(areas))
{
    for (const auto& [key, step] : {std::pair("F6", 1), std::pair("Shift+F6", -1)}) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(key)), window);
        const auto go = [this, step = step] { this->go(step); };
        connect(shortcut, &QShortcut::activated, this, go);
        // A bar has the key too.
        connect(shortcut, &QShortcut::activatedAmbiguously, this, go);
    }
}

AreaKeys* AreaKeys::of(const QWidget* window)
{
    return window->findChild<AreaKeys*>(QString(), Qt::FindDirectChildrenOnly);
}

std::vector<QWidgetList> AreaKeys::areasNow() const
{
    std::vector<QWidgetList> areas = areas_();
    QWidgetList bars;
    for (NoticeBar* bar : window_->findChildren<NoticeBar*>()) {
        if (bar->window() == window_ && bar->isVisible() && bar->isTelling())
            bars.append(bar);
    }
    areas.insert(areas.begin(), bars);
    return areas;
}

void AreaKeys::go(int step)
{
    const std::vector<QWidgetList> areas = areasNow();
    QWidget* focus = QApplication::focusWidget();
    const auto here =
        std::ranges::find_if(areas, [focus](const QWidgetList& area) { return holds(area, focus); });
    const int count = static_cast<int>(areas.size());
    int at = step > 0 ? -1 : count;
    if (here != areas.end()) {
        at = static_cast<int>(here - areas.begin());
        left_[at] = focus;
    }
    const bool isFirst = !round_.isValid() || round_.hasExpired(kRoundMs);
    round_.start();
    const int before = std::exchange(before_, 0);
    if (isFirst && step > 0 && at > 0 && !areas.front().isEmpty())
        before_ = std::exchange(at, -1);
    else if (!isFirst && step > 0 && at == 0)
        at = before;
    for (int i = 0; i < count; ++i) {
        at = (at + step + count) % count;
        if (enter(at, areas[at]))
            return;
    }
}

bool AreaKeys::enter(int index, const QWidgetList& area)
{
    if (index == 0) {
        if (area.isEmpty())
            return false;
        static_cast<NoticeBar*>(area.front())->takeFocus();
        return true;
    }
    const QPointer<QWidget> left = left_[index];
    QWidget* next = left && holds(area, left) && takesKeys(left) ? left.data() : firstIn(area);
    if (next)
        next->setFocus(Qt::ShortcutFocusReason);
    return next != nullptr;
}

} // namespace vlk
