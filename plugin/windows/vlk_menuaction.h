#pragma once

// A menu entry that opens a tab and knows its number.

#include <QAction>

class VLK_MenuAction : public QAction
{
    Q_OBJECT

public:
    VLK_MenuAction(const QString& text, int tabIndex, QObject* parent)
        : QAction(text, parent), tabIndex_(tabIndex)
    {
    }

    int tabIndex() const { return tabIndex_; }

private:
    int tabIndex_;
};
