#pragma once

// The tabs of the full window and the ways to them: the buttons for the first, previous, next and last tab,
// and a menu with an entry for each.

#include <QObject>

class QMenu;
class QPushButton;
class QTabWidget;

namespace vlk {

class TabNavigation : public QObject
{
    Q_OBJECT

public:
    struct Buttons
    {
        QPushButton* first;
        QPushButton* previous;
        QPushButton* menu;
        QPushButton* next;
        QPushButton* last;
    };

    TabNavigation(QTabWidget* tabs, const Buttons& buttons);

    // Puts the page into a scroll area of its own. Gives the index of its tab.
    int add(QWidget* page, const QString& title);
    void setTitle(int tab, const QString& title);
    // Sets the texts of the buttons.
    void retranslate();

    int current() const;
    // Ignores an index without a tab.
    void goTo(int tab);
    void goToFirst() { goTo(0); }
    void goToPrevious() { goTo(current() - 1); }
    void goToNext() { goTo(current() + 1); }
    void goToLast();
    // Gives the focus to the first input of the current tab.
    void focusFirstField();

    // Enables the buttons that lead anywhere from this tab.
    void update(int tab);
    // Disables the menu and all tabs but this one; unlock enables them again.
    void lockAllBut(int tab);
    void unlock();

    QMenu* menu() const { return menu_; }

private:
    void setLocked(bool locked, int kept);

    QTabWidget* const tabs_;
    const Buttons buttons_;
    QMenu* const menu_;
};

} // namespace vlk
