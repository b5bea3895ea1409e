#include "window/front_notice.h"

#include "window/active_windows.h"
#include "window/plugin_link.h"
#include "window/plugin_windows.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr int kNewsMs = 8000;

} // namespace

FrontNotice::FrontNotice(const PluginLink& link, PluginWindows& windows) : windows_(windows)
{
    news_.setInterval(kNewsMs);
    connect(&news_, &QTimer::timeout, this, &FrontNotice::goByItself);
    connect(&link, &PluginLink::passed, this, [this](Direction, quint32 id) {
        if (id == static_cast<quint32>(Message::OpenTelemetry))
            noteTelemetry();
    });
    connect(&windows_, &PluginWindows::opened, this, [this](QWidget* window) {
        if (std::exchange(isOpeningTelemetry_, false))
            telemetry_ = window;
    });
    connect(&windows_, &PluginWindows::closed, this, [this] { tell(Result, {}); });
    connect(&ActiveWindows::instance(), &ActiveWindows::activated, this, &FrontNotice::place);
}

FrontNotice::~FrontNotice()
{
    // The windows of the plug-in live on.
    for (WindowNotice* notice : notices_)
        delete notice;
}

// The plug-in opens its window within the message, unless it is open.
void FrontNotice::noteTelemetry()
{
    isOpeningTelemetry_ = true;
    QMetaObject::invokeMethod(
        this, [this] { isOpeningTelemetry_ = false; }, Qt::QueuedConnection);
}

void FrontNotice::tell(Topic topic, const Told& notice, QWidget* window)
{
    if (topic == Result)
        news_.stop();
    Entry entry{topic, notice, window, {}};
    if (const auto known = std::ranges::find(told_, topic, &Entry::topic); known != told_.end()) {
        entry.on = known->on;
        // A result is another one each time.
        entry.isClosed = known->isClosed && topic == Trouble;
        told_.erase(known);
    }
    WindowNotice* const before = entry.on;
    if (notice)
        told_.push_back(entry);
    else if (before)
        before->end(topic);
    place();
    if (notice && before && told_.back().on == before)
        before->say(topic, notice);
}

void FrontNotice::recall(Topic topic)
{
    if (const auto known = std::ranges::find(told_, topic, &Entry::topic); known != told_.end())
        known->isClosed = false;
}

void FrontNotice::tellNews(const Told& notice, QWidget* window)
{
    tell(Result, notice, window);
    news_.start();
}

void FrontNotice::goByItself()
{
    const auto result = std::ranges::find(told_, Result, &Entry::topic);
    if (result == told_.end() || !result->on || !result->on->underMouse())
        tell(Result, {});
}

QWidget* FrontNotice::lookedAt() const
{
    if (QWidget* modal = windows_.modal())
        return modal;
    const QVector<QWidget*> latest = ActiveWindows::instance().latest();
    const auto found = std::ranges::find_if(latest, [this](const QWidget* window) {
        return window == telemetry_ || PluginWindows::isOfTelemetry(window);
    });
    return found == latest.end() ? telemetry_.data() : *found;
}

void FrontNotice::place()
{
    for (Entry& entry : told_) {
        QWidget* window = entry.window && entry.window->isVisible() ? entry.window.data() : lookedAt();
        if (entry.isClosed || (window && !window->isVisible()))
            window = nullptr;
        if (entry.on && entry.on->parentWidget() == window)
            continue;
        if (entry.on)
            entry.on->end(entry.topic);
        entry.on = window ? noticeOn(window) : nullptr;
        if (entry.on)
            entry.on->say(entry.topic, entry.told);
    }
    // The next thing to tell often follows at once.
    QMetaObject::invokeMethod(this, &FrontNotice::dropUnused, Qt::QueuedConnection);
}

void FrontNotice::dropUnused()
{
    std::erase_if(notices_, [this](const QPointer<WindowNotice>& notice) {
        const bool isInUse =
            std::ranges::any_of(told_, [&notice](const Entry& entry) { return entry.on == notice; });
        if (notice && !isInUse)
            notice->deleteLater();
        return !isInUse;
    });
}

WindowNotice* FrontNotice::noticeOn(QWidget* window)
{
    for (WindowNotice* notice : notices_) {
        if (notice && notice->parentWidget() == window)
            return notice;
    }
    auto* notice = new WindowNotice(window);
    connect(notice, &NoticeBar::closed, this, [this](int topic) {
        for (Entry& entry : told_)
            entry.isClosed |= entry.topic == topic;
        place();
    });
    notices_.emplace_back(notice);
    return notice;
}

} // namespace workbench
