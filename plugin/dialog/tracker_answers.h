#pragma once

// What the tracker answers while a configuration is open, on its way to the page that shows it, and the
// monitor that goes on by these answers.

#include "dialog/config_monitor.h"

namespace vlk {

class ConfigPages;
struct BtDevice;

class TrackerAnswers
{
public:
    // `currentTab` gives the index of the tab on show, `isActive` whether the user works in this window.
    TrackerAnswers(const ConfigPages& pages, std::function<int()> currentTab, std::function<bool()> isActive);

    ConfigMonitor& monitor() { return monitor_; }

    // Byte records may be null.
    void takeLineValues(const QByteArray& text);
    void takeSupply(const uchar* record);
    void takeAnalog(const uchar* record);
    void takeAccel(const uchar* record);
    void takeAccelResult(const uchar* record);
    void takeBtSearchStopped(const uchar& event);
    void takeBtSearchEvent(const uchar& event);
    void takeBtDevice(const BtDevice& device);
    void takeCanLogProgram(const std::int32_t& program);
    void rearmMonitor() { monitor_.accelAnswered(); }

private:
    ConfigMonitor::Tab liveTab() const;
    // On the page that has a monitor of that kind.
    template <class Act>
    void onLivePage(ConfigMonitor::Tab kind, Act act);

    const ConfigPages& pages_;
    std::function<int()> currentTab_;
    ConfigMonitor monitor_;
};

} // namespace vlk
