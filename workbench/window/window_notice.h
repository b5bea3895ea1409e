#pragma once

// A notice of the workbench on a window of the plug-in: a tool window on its upper inner edge that moves with
// it, goes with it and never takes the focus.

#include "typing/notice_bar.h"

namespace vlk {

class WindowNotice : public NoticeBar
{
    Q_OBJECT

public:
    explicit WindowNotice(QWidget* owner);

    // Null takes it away. One that was closed stays so until then.
    void say(const std::function<QString()>& sentence);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void place();

    bool isDismissed_ = false;
};

} // namespace vlk
