#include "window/front_notice.h"

#include "window/active_windows.h"
#include "window/plugin_link.h"
#include "window/plugin_windows.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr int newsMs = 8000;

} // namespace

FrontNotice::FrontNotice(const PluginLink& link, PluginWindows& windows) : windows_(windows)
{
    news_.setInterval(newsMs);
    connect(&news_, &QTimer::timeout, this, [this] {
        if (!notice_ || !notice_->underMouse())
            tell(Result, {});
    });
    connect(&link, &PluginLink::passed, this, [this](Direction, quint32 id) {
        if (id == quint32(Message::OpenTelemetry))
            noteTelemetry();
    });
    connect(&windows_, &PluginWindows::opened, this, [this](QWidget* window) {
        if (std::exchange(isOpeningTelemetry_, false))
            telemetry_ = window;
    });
    connect(&windows_, &PluginWindows::closed, this, [this] { tell(Result, {}); });
    connect(&ActiveWindows::instance(), &ActiveWindows::activated, this, [this] {
        if (notice_ && notice_->parentWidget() != owner())
            move();
    });
}

FrontNotice::~FrontNotice()
{
    // The windows of the plug-in live on.
    delete notice_;
}

// The plug-in opens its window within the message, unless it is open.
void FrontNotice::noteTelemetry()
{
    isOpeningTelemetry_ = true;
    QMetaObject::invokeMethod(
        this, [this] { isOpeningTelemetry_ = false; }, Qt::QueuedConnection);
}

void FrontNotice::tell(Topic topic, const Told& notice)
{
    if (topic == Result)
        news_.stop();
    std::erase_if(told_, [topic](const auto& told) { return told.first == topic; });
    if (notice)
        told_.emplace_back(topic, notice);
    move();
    if (notice_)
        notice_->say(topic, notice);
}

void FrontNotice::recall(Topic topic)
{
    if (notice_)
        notice_->recall(topic);
}

void FrontNotice::tellNews(const Told& notice)
{
    tell(Result, notice);
    news_.start();
}

QWidget* FrontNotice::owner() const
{
    if (QWidget* modal = windows_.modal())
        return modal;
    const QVector<QWidget*> latest = ActiveWindows::instance().latest();
    const auto found = std::find_if(latest.begin(), latest.end(), [this](const QWidget* window) {
        return window == telemetry_ || window == PluginWindows::calibration();
    });
    return found == latest.end() ? telemetry_.data() : *found;
}

void FrontNotice::move()
{
    QWidget* owner = this->owner();
    std::set<int> dismissed;
    if (notice_ && (notice_->parentWidget() != owner || !owner->isVisible())) {
        dismissed = notice_->dismissed();
        notice_->hide();
        notice_->deleteLater();
        notice_.clear();
    }
    if (!owner || !owner->isVisible())
        return;
    if (notice_)
        return;
    notice_ = new WindowNotice(owner, dismissed);
    for (const auto& [topic, notice] : told_)
        notice_->say(topic, notice);
}

} // namespace workbench
