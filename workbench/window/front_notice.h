#pragma once

// What the workbench has to say on the window of the plug-in that is looked at: a modal one is in front of
// all others, else it is the one that shows the attached tracker's telemetry or the calibration over it,
// whichever was active last.

#include "window/window_notice.h"

#include <QPointer>
#include <QTimer>

#include <array>

namespace workbench {

class PluginLink;
class PluginWindows;

class FrontNotice : public QObject
{
    Q_OBJECT

public:
    // Where both are as bad, what became of a command says more than what its answer was like.
    enum Topic { Result, Trouble, TopicCount };
    using Told = std::function<Notice()>;

    FrontNotice(const PluginLink& link, PluginWindows& windows);
    ~FrontNotice() override;

    // Stays until it is told otherwise; null takes it away.
    void tell(Topic topic, const Told& notice);
    // Goes by itself, but not from under the mouse.
    void tellNews(const Told& notice);

private:
    QWidget* owner() const;
    void show();
    void noteTelemetry();

    PluginWindows& windows_;
    std::array<Told, TopicCount> told_;
    QTimer news_;
    QPointer<QWidget> telemetry_;
    bool isOpeningTelemetry_ = false;
    QPointer<WindowNotice> notice_;
};

} // namespace workbench
