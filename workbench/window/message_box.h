#pragma once

// Boxes of the workbench. They come up over whatever window is in front, a modal one included, and leave that
// one active.

#include <QStringList>

class QWidget;

namespace workbench {

// A sentence or two that the user has to know. Holds nothing up: the caller goes on at once. The same text
// does not come up twice at a time. The window is where the box goes when no other one is in front.
void showWarning(const QString& text, QWidget* window);

// Asks before something that cannot be brought back: the verb is on the button that agrees, and Cancel is the
// default.
bool agrees(const QString& question, const QString& verb, const QString& name, QWidget* window);

// Answers the question of that name with Cancel, if it is open: what it asks about has gone.
void withdrawQuestion(const QString& name);

// Asks which of several things is meant, none of which loses anything; the first is the default. The place of
// the verb that was pressed, -1 for Cancel.
int choose(const QString& question, const QStringList& verbs, const QString& name, QWidget* window);

// The window that a new one has to be a child of to be usable: the modal one in front, else the active one,
// else the one that was active last, else the given.
QWidget* windowInFront(QWidget* otherwise);

} // namespace workbench
