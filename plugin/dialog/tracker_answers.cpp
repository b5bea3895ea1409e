#include "dialog/tracker_answers.h"

#include "dialog/config_pages.h"
#include "link/messages.h"

#include <utility>

namespace vlk {

template <class Act>
void TrackerAnswers::onLivePage(ConfigMonitor::Tab kind, Act act)
{
    if (kind == ConfigMonitor::Tab::Accel)
        pages_.forEach([&](ShowsAccel auto& page) { act(page); });
    else
        pages_.forEach([&](ShowsLines auto& page) { act(page); });
}

TrackerAnswers::TrackerAnswers(const ConfigPages& pages, std::function<int()> currentTab,
                               std::function<bool()> isActive)
    : pages_(pages), currentTab_(std::move(currentTab)),
      monitor_({[this] { return liveTab(); }, std::move(isActive),
                [this](ConfigMonitor::Tab kind) { onLivePage(kind, [](auto& page) { page.stopAuto(); }); },
                [this](ConfigMonitor::Tab kind) { onLivePage(kind, [](auto& page) { page.pauseAuto(); }); },
                [this](ConfigMonitor::Tab kind) { onLivePage(kind, [](auto& page) { page.resumeAuto(); }); },
                [this] { pages_.forEach([](ShowsAccel auto& page) { page.clearPresentValues(); }); }})
{
}

ConfigMonitor::Tab TrackerAnswers::liveTab() const
{
    const int tab = currentTab_();
    if (tab < 0)
        return ConfigMonitor::Tab::Other;
    if (tab == pages_.tabOf([](ShowsAccel auto&) {}))
        return ConfigMonitor::Tab::Accel;
    if (tab == pages_.tabOf([](ShowsLines auto&) {}))
        return ConfigMonitor::Tab::InputLines;
    if (tab == pages_.tabOf([](ShowsSupply auto&) {}))
        return ConfigMonitor::Tab::System;
    return ConfigMonitor::Tab::Other;
}

void TrackerAnswers::takeLineValues(const QByteArray& text)
{
    if (liveTab() == ConfigMonitor::Tab::InputLines)
        pages_.forEach([&](ShowsLines auto& page) { page.showLineValues(text); });
    monitor_.linesAnswered();
}

void TrackerAnswers::takeSupply(const uchar* record)
{
    monitor_.supplyAnswered();
    if (!record || liveTab() != ConfigMonitor::Tab::System)
        return;
    const auto* supply = reinterpret_cast<const SupplyRecord*>(record);
    pages_.forEach([&](ShowsSupply auto& page) { page.setCurrentSupply(supply->values[kSupplyElement]); });
}

void TrackerAnswers::takeAnalog(const uchar* record)
{
    if (record && liveTab() == ConfigMonitor::Tab::InputLines)
        pages_.forEach([&](ShowsLines auto& page) { page.showAnalogRecord(record); });
    monitor_.linesAnswered();
}

void TrackerAnswers::takeAccel(const uchar* record)
{
    if (record) {
        const auto* values = reinterpret_cast<const AccelValues*>(record);
        pages_.forEach([&](ShowsAccel auto& page) { page.showPresentValues(*values); });
    }
    monitor_.accelAnswered();
}

void TrackerAnswers::takeAccelResult(const uchar* record)
{
    if (record)
        monitor_.accelCommandAnswered(record[kAccelStatusByte]);
}

void TrackerAnswers::takeBtSearchStopped(const uchar& event)
{
    pages_.forEach([&](FindsBluetooth auto& page) { page.onSearchStopped(event); });
}

void TrackerAnswers::takeBtSearchEvent(const uchar& event)
{
    pages_.forEach([&](FindsBluetooth auto& page) { page.onSearchEvent(event); });
}

void TrackerAnswers::takeBtDevice(const BtDevice& device)
{
    pages_.forEach([&](FindsBluetooth auto& page) { page.onDeviceFound(device); });
}

void TrackerAnswers::takeCanLogProgram(const std::int32_t& program)
{
    pages_.forEach([&](HasSerialLine auto& page) { page.setCanLogProgram(program); });
}

} // namespace vlk
