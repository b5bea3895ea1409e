#include "dialog/tab_navigation.h"

#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace vlk {

TabNavigation::TabNavigation(QTabWidget* tabs, const Buttons& buttons) : TabMenu(tabs), buttons_(buttons)
{
    buttons_.first->hide();
    buttons_.last->hide();
    buttons_.menu->setMenu(menu());
    tabs->setIconSize({kMarkSize, kMarkSize});
    // The arrow keys go over the tabs; what scrolls them is for the mouse.
    for (QToolButton* arrow : tabs->tabBar()->findChildren<QToolButton*>())
        arrow->setFocusPolicy(Qt::NoFocus);
}

void TabNavigation::retranslate()
{
    buttons_.first->setText(tr("wrd_049"));
    buttons_.previous->setText(QStringLiteral("< %1").arg(tr("wrd_051")));
    buttons_.menu->setText(tr("wrd_053"));
    buttons_.next->setText(QStringLiteral("%1 >").arg(tr("wrd_052")));
    buttons_.last->setText(tr("wrd_050"));
}

void TabNavigation::setMark(int tab, std::optional<Mark> mark, const QString& told)
{
    const QIcon icon = tabMark(mark, tabs()->window()->palette());
    tabs()->setTabIcon(tab, icon);
    tabs()->setTabToolTip(tab, told);
    menu()->actions().at(tab)->setIcon(icon);
    menu()->actions().at(tab)->setToolTip(told);
}

void TabNavigation::goToLast()
{
    goTo(tabs()->count() - 1);
}

void TabNavigation::focusFirstField()
{
    scrollToTop();
    auto* area = qobject_cast<QScrollArea*>(tabs()->currentWidget());
    QWidget* const page = area ? area->widget() : nullptr;
    for (QWidget* next = page; next && (next = next->nextInFocusChain()) != page;) {
        const bool field = (next->focusPolicy() & Qt::TabFocus) && !qobject_cast<QPushButton*>(next) &&
                           !qobject_cast<QToolButton*>(next);
        if (field && page->isAncestorOf(next) && next->isVisible() && next->isEnabled()) {
            next->setFocus();
            area->ensureWidgetVisible(next);
            return;
        }
    }
}

void TabNavigation::update(int tab)
{
    const bool several = tabs()->count() > 1;
    const bool before = several && tab > 0;
    const bool behind = several && tab < tabs()->count() - 1;
    buttons_.menu->setEnabled(several);
    buttons_.first->setEnabled(before);
    buttons_.previous->setEnabled(before);
    buttons_.next->setEnabled(behind);
    buttons_.last->setEnabled(behind);
}

void TabNavigation::lockAllBut(int tab)
{
    setLocked(true, tab);
}

void TabNavigation::unlock()
{
    setLocked(false, -1);
}

void TabNavigation::setLocked(bool locked, int kept)
{
    menu()->setEnabled(!locked);
    for (int tab = 0; tab < tabs()->count(); ++tab)
        tabs()->setTabEnabled(tab, !locked || tab == kept);
}

} // namespace vlk
