#pragma once

// What the workbench has to say on windows of the plug-in. What became of a command or of a file stands on
// the window that it came from. What is wrong with the tracker stands on the one that is looked at: a modal
// one is in front of all others, else it is the one that shows the attached tracker's telemetry or the
// calibration over it, whichever was active last.

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

    // Stays until it is told otherwise; null takes it away. Trouble that the user has closed stays so until
    // then, or until it is recalled. Without a window, or with one that is not on show, it stands on the one
    // that is looked at.
    void tell(Topic topic, const Told& notice, QWidget* window = nullptr);
    void recall(Topic topic);
    // A result that goes by itself, but not from under the mouse.
    void tellNews(const Told& notice, QWidget* window);
    // The result that is told goes likewise: what it stands before lasts longer.
    void letResultGo() { news_.start(); }
    QWidget* telemetry() const { return telemetry_; }

private:
    struct Entry
    {
        Topic topic;
        Told told;
        QPointer<QWidget> window;
        QPointer<WindowNotice> on; // null while it is not on show
        bool isClosed = false;
    };

    QWidget* lookedAt() const;
    // Each on its window.
    void place();
    WindowNotice* noticeOn(QWidget* window);
    void dropUnused();
    void noteTelemetry();
    void goByItself();

    PluginWindows& windows_;
    std::vector<Entry> told_; // the newest is the last
    std::vector<QPointer<WindowNotice>> notices_;
    QTimer news_;
    QPointer<QWidget> telemetry_;
    bool isOpeningTelemetry_ = false;
};

} // namespace workbench
