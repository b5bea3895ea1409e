#pragma once

// The notices of the workbench on a window of the plug-in: a tool window on its upper inner edge, below a bar
// of the window's own, that moves with it, goes with it and never takes the focus. F6 on the window shows
// what can be done about the notice in a menu.

#include "plugin_names.h"
#include "typing/notice_bar.h"

#include <QPointer>

#include <set>

class QShortcut;

namespace workbench {

class WindowNotice : public NoticeBar
{
    Q_OBJECT

public:
    WindowNotice(QWidget* owner, std::set<int> dismissed);
    ~WindowNotice() override;

    // The numbers that were closed, for the one that takes its place on another window.
    const std::set<int>& dismissed() const { return dismissed_; }
    // Null takes it away. One that was closed stays so until then.
    void say(int number, const std::function<Notice()>& notice);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place();
    void offerByKeys();

    QPointer<QShortcut> keys_; // of the window below
    std::set<int> dismissed_;
};

} // namespace workbench
