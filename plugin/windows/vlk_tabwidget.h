#pragma once

// A tab widget that knows which tab of an outer window it is, so that the window can look it up by number.

#include <QTabWidget>

class VLK_TabWidget : public QTabWidget
{
    Q_OBJECT

public:
    using QTabWidget::QTabWidget;

    int tabIndex() const { return tabIndex_; }
    void setTabIndex(int index) { tabIndex_ = index; }

private:
    int tabIndex_ = 0;
};
