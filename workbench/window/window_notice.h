#pragma once

// The notices of the workbench on a window of the plug-in: a tool window on its upper inner edge, below a bar
// of the window's own, that moves with it, goes with it and never takes the focus. F6 on the window shows
// what can be done about the notice in a menu; pressed on it goes to the areas of the window.

#include "plugin_names.h"
#include "typing/notice_bar.h"

#include <QElapsedTimer>

#include <set>

class QKeyEvent;

namespace workbench {

class WindowNotice : public NoticeBar
{
    Q_OBJECT

public:
    WindowNotice(QWidget* owner, std::set<int> dismissed);

    // The numbers that were closed, for the one that takes its place on another window.
    const std::set<int>& dismissed() const { return dismissed_; }
    // Null takes it away. One that was closed stays so until then, or until it is recalled.
    void say(int number, const std::function<Notice()>& notice);
    void recall(int number) { dismissed_.erase(number); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place();
    bool takesKey(const QWidget& widget, QKeyEvent& event);
    void offerByKeys();

    QElapsedTimer round_; // since F6 was pressed last
    std::set<int> dismissed_;
};

} // namespace workbench
