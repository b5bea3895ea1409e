#pragma once

// The tabs of the full window and the ways to them: their menu, and the buttons for the first, previous, next
// and last tab.

#include "typing/field_mark.h"
#include "windows/tab_menu.h"

#include <optional>

class QPushButton;

namespace vlk {

class TabNavigation : public TabMenu
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

    // Sets the texts of the buttons.
    void retranslate();

    void goToFirst() { goTo(0); }
    void goToPrevious() { goTo(current() - 1); }
    void goToNext() { goTo(current() + 1); }
    void goToLast();
    // Shows the pages from their tops and gives the focus to the first input of the current tab.
    void focusFirstField();

    // At a tab and its entry in the menu; without a mark it has room for one.
    void setMark(int tab, std::optional<Mark> mark, const QString& told);

    // Enables the buttons that lead anywhere from this tab.
    void update(int tab);
    // Disables the menu and all tabs but this one; unlock enables them again.
    void lockAllBut(int tab);
    void unlock();

private:
    void setLocked(bool locked, int kept);

    const Buttons buttons_;
};

} // namespace vlk
