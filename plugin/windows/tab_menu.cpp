#include "windows/tab_menu.h"

#include "windows/vlk_menuaction.h"

#include <QActionGroup>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

namespace vlk {

namespace {

// The scroll area of a page. It takes the page in when it is first shown: an area that holds a page lays the
// whole of it out at once, and of a window only one page is looked at first.
class PageArea : public QScrollArea
{
public:
    explicit PageArea(QWidget* page) : page_(page)
    {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        page->setParent(viewport());
    }

    void setVisible(bool visible) override
    {
        if (visible && !widget())
            setWidget(page_);
        QScrollArea::setVisible(visible);
    }

private:
    QWidget* page_;
};

} // namespace

TabMenu::TabMenu(QTabWidget* tabs)
    : QObject(tabs), tabs_(tabs), menu_(new QMenu(tabs)), entries_(new QActionGroup(menu_))
{
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) {
        if (QAction* entry = menu_->actions().value(tab))
            entry->setChecked(true);
    });
    connect(tabs_, &QTabWidget::currentChanged, this, &TabMenu::moved);
}

int TabMenu::add(QWidget* page, const QString& title)
{
    const int tab = tabs_->addTab(new PageArea(page), title);
    auto* entry = new VLK_MenuAction(title, tab, menu_);
    entry->setCheckable(true);
    entry->setActionGroup(entries_);
    entry->setChecked(tab == current());
    menu_->addAction(entry);
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

void TabMenu::scrollToTop()
{
    for (const QScrollArea* area : tabs_->findChildren<QScrollArea*>())
        area->verticalScrollBar()->setValue(0);
}

void TabMenu::goTo(int tab)
{
    if (tab >= 0)
        tabs_->setCurrentIndex(tab);
}

} // namespace vlk
