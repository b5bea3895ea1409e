#pragma once

// Ways to widgets that are out of sight for no reason of the settings: on a page of a stack that the user
// chooses in a list, or in a window that a button opens.

class QComboBox;
class QPushButton;
class QStackedWidget;
class QWidget;

namespace vlk {

// The list chooses the page; its lines are in the order of the pages.
void leadsTo(QStackedWidget* pages, QComboBox* list);
void leadsTo(QWidget* window, QPushButton* opener);

// Goes them, from the outermost on.
void goWaysTo(QWidget* widget);
// What opens the window in which the widget stands; null where none does.
QPushButton* openerOf(const QWidget* widget);

} // namespace vlk
