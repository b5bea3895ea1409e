#pragma once

// Tabs whose pages stand in scroll areas, and a menu with an entry for each of them, in which that of the
// current one is marked.

#include <QObject>

class QActionGroup;
class QMenu;
class QTabWidget;

namespace vlk {

class TabMenu : public QObject
{
    Q_OBJECT

public:
    explicit TabMenu(QTabWidget* tabs);

    // Puts the page into a scroll area of its own. Gives the index of its tab.
    int add(QWidget* page, const QString& title);
    void setTitle(int tab, const QString& title);

    int current() const;
    // Ignores an index without a tab.
    void goTo(int tab);

    // All pages, and what scrolls in them.
    void scrollToTop();

    QMenu* menu() const { return menu_; }

Q_SIGNALS:
    // Another tab is the current one.
    void moved(int tab);

protected:
    QTabWidget* tabs() const { return tabs_; }

private:
    QTabWidget* const tabs_;
    QMenu* const menu_;
    QActionGroup* const entries_;
};

} // namespace vlk
