#pragma once

// What the workbench has to say on the window of the plug-in that is looked at: a modal one is in front of
// all others, else it is the one that shows the attached tracker's telemetry or the calibration over it,
// whichever was active last.

#include "window/window_notice.h"

#include <QPointer>
#include <QTimer>

#include <utility>
#include <vector>

namespace workbench {

class PluginLink;
class PluginWindows;

class FrontNotice : public QObject
{
    Q_OBJECT

public:
    // Where both are as bad, the newer one is on show.
    enum Topic { Result, Trouble };
    using Told = std::function<Notice()>;

    FrontNotice(const PluginLink& link, PluginWindows& windows);
    ~FrontNotice() override;

    // Stays until it is told otherwise; null takes it away.
    void tell(Topic topic, const Told& notice);
    // That the user has closed it counts no longer.
    void recall(Topic topic);
    // Goes by itself, but not from under the mouse.
    void tellNews(const Told& notice);

private:
    QWidget* owner() const;
    // On the window that is looked at now.
    void move();
    void noteTelemetry();

    PluginWindows& windows_;
    std::vector<std::pair<Topic, Told>> told_; // the newest is the last
    QTimer news_;
    QPointer<QWidget> telemetry_;
    bool isOpeningTelemetry_ = false;
    QPointer<WindowNotice> notice_;
};

} // namespace workbench
