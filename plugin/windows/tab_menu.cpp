#include "windows/tab_menu.h"

#include "windows/vlk_menuaction.h"

#include <QMenu>
#include <QScrollArea>
#include <QTabWidget>

namespace vlk {

TabMenu::TabMenu(QTabWidget* tabs) : QObject(tabs), tabs_(tabs), menu_(new QMenu(tabs)) {}

int TabMenu::add(QWidget* page, const QString& title)
{
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    const int tab = tabs_->addTab(area, title);
    menu_->addAction(new VLK_MenuAction(title, tab, menu_));
    return tab;
}

void TabMenu::setTitle(int tab, const QString& title)
{
    tabs_->setTabText(tab, title);
    menu_->actions().at(tab)->setText(title);
}

int TabMenu::current() const
{
    return tabs_->currentIndex();
}

void TabMenu::goTo(int tab)
{
    if (tab >= 0)
        tabs_->setCurrentIndex(tab);
}

} // namespace vlk
