#pragma once

// The notices of the workbench on a window of the plug-in: a tool window on its upper inner edge, in the
// place that the window keeps for a bar of its own, so that nothing moves under the mouse, below the bar of a
// window that keeps none, which makes room for it, and below the field that is typed in and what a search has
// found, that moves with the window, goes with it and never takes the focus. F6 on the window shows what can
// be done about the notice in a menu; pressed on it goes to the areas of the window.

#include "check/plugin_names.h"
#include "typing/notice_bar.h"

#include <QElapsedTimer>

class QKeyEvent;

namespace workbench {

class WindowNotice : public NoticeBar
{
    Q_OBJECT

public:
    explicit WindowNotice(QWidget* owner);

    void say(int number, const std::function<Notice()>& notice);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void place();
    // Has the bars of the window that are on show leave so much room below them.
    void askForRoom(int pixels);
    bool takesKey(const QWidget& widget, QKeyEvent& event);
    void offerByKeys();

    QElapsedTimer round_; // since F6 was pressed last
};

} // namespace workbench
