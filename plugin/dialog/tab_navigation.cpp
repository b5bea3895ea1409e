#include "dialog/tab_navigation.h"

#include "windows/vlk_menuaction.h"

#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolButton>

namespace vlk {

TabNavigation::TabNavigation(QTabWidget* tabs, const Buttons& buttons)
    : QObject(tabs), tabs_(tabs), buttons_(buttons), menu_(new QMenu(tabs))
{
    buttons_.first->hide();
    buttons_.last->hide();
    buttons_.menu->setMenu(menu_);
}

int TabNavigation::add(QWidget* page, const QString& title)
{
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    const int tab = tabs_->addTab(area, title);
    menu_->addAction(new VLK_MenuAction(title, tab, menu_));
    return tab;
}

void TabNavigation::setTitle(int tab, const QString& title)
{
    tabs_->setTabText(tab, title);
    menu_->actions().at(tab)->setText(title);
}

void TabNavigation::retranslate()
{
    buttons_.first->setText(tr("wrd_049"));
    buttons_.previous->setText(QStringLiteral("< %1").arg(tr("wrd_051")));
    buttons_.menu->setText(tr("wrd_053"));
    buttons_.next->setText(QStringLiteral("%1 >").arg(tr("wrd_052")));
    buttons_.last->setText(tr("wrd_050"));
}

int TabNavigation::current() const
{
    return tabs_->currentIndex();
}

void TabNavigation::goTo(int tab)
{
    if (tab >= 0)
        tabs_->setCurrentIndex(tab);
}

void TabNavigation::goToLast()
{
    goTo(tabs_->count() - 1);
}

void TabNavigation::focusFirstField()
{
    auto* area = qobject_cast<QScrollArea*>(tabs_->currentWidget());
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
    const bool several = tabs_->count() > 1;
    const bool before = several && tab > 0;
    const bool behind = several && tab < tabs_->count() - 1;
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
    menu_->setEnabled(!locked);
    for (int tab = 0; tab < tabs_->count(); ++tab)
        tabs_->setTabEnabled(tab, !locked || tab == kept);
}

} // namespace vlk
