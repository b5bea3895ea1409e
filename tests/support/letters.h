#pragma once

// Letters with Alt that lead to more than one place, of what is on show in a window and of each of its menus.

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

inline QString sharedLetters(const QWidget* window, const QStringList& more = {})
{
    QStringList shared;
    const auto look = [&shared](const QStringList& texts) {
        QMap<QString, QStringList> byLetter;
        for (const QString& text : texts) {
            if (const QKeySequence letter = QKeySequence::mnemonic(text); !letter.isEmpty())
                byLetter[letter.toString()] << text;
        }
        for (const QStringList& same : byLetter) {
            if (same.size() > 1)
                shared << same.join(" = ");
        }
    };
    const auto wordsOf = [](const QList<QAction*>& actions) {
        QStringList words;
        for (const QAction* action : actions) {
            if (action->isVisible())
                words << action->text();
        }
        return words;
    };
    QStringList texts = more;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (const auto* menu = qobject_cast<const QMenu*>(widget))
            look(wordsOf(menu->actions()));
        if (!widget->isVisible() || widget->window() != window)
            continue;
        if (const auto* bar = qobject_cast<const QMenuBar*>(widget))
            texts << wordsOf(bar->actions());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            texts << button->text();
        else if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->buddy())
            texts << label->text();
        else if (const auto* group = qobject_cast<const QGroupBox*>(widget))
            texts << group->title();
        else if (const auto* tabs = qobject_cast<const QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i);
    }
    look(texts);
    return shared.join("; ");
}
