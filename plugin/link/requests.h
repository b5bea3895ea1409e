#pragma once

// What the plug-in asks of the host, one typed function a message. Nothing is sent before the host has called
// Initialize. Answers come later as messages of their own, perhaps before the function returns.

#include "link/messages.h"

#include <algorithm>

namespace vlk::requests {

namespace detail {

void send(Message id, void* p1 = nullptr, void* p2 = nullptr);

// What stands in the table of messages as one to the host.
constexpr bool isSent(Message id)
{
    return std::ranges::any_of(kMessages, [id](const MessageInfo& message) {
        return message.number == id && message.direction == Direction::ToHost;
    });
}

template <Message id>
requires(isSent(id)) void plain()
{
    send(id);
}

template <Message id>
requires(isSent(id)) void withValue(int value)
{
    send(id, asParameter(value));
}

// The value lives in this frame for the length of the call, as the host expects.
template <Message id, class T>
requires(isSent(id)) void withAddress(T value)
{
    send(id, &value);
}

} // namespace detail

// Shows a help page of the host; an empty name asks for nothing.
void showHelp(const QString& page);
// The host's words for an event code, empty without a host.
QString eventText(int code);
// As it is in that language, "ru" or "en"; empty where the host does not tell.
QString eventTextIn(const char* language, int code);
// With owner 1 the answer goes to the telemetry view, with 0 nowhere.
void liveKey(int owner);

// NOLINTBEGIN(readability-identifier-naming): functions under names of their own
// Path of a configuration file; the file is the host's from then on.
inline constexpr auto writeConfiguration = &detail::withAddress<Message::WriteConfiguration, QString>;
inline constexpr auto lines = &detail::withAddress<Message::RequestLines, QByteArray>; // "21,22,23"
inline constexpr auto supply = &detail::plain<Message::RequestSupply>;
inline constexpr auto analog = &detail::plain<Message::RequestAnalog>;
inline constexpr auto accel = &detail::plain<Message::RequestAccel>;
inline constexpr auto accelCommand = &detail::plain<Message::RequestAccelCommand>;
inline constexpr auto startBtSearch = &detail::plain<Message::StartBtSearch>;
inline constexpr auto cancelBtSearch = &detail::plain<Message::CancelBtSearch>;
inline constexpr auto waitStepEnd = &detail::plain<Message::WaitStepEnd>;
inline constexpr auto rfid = &detail::plain<Message::RequestRfid>;
inline constexpr auto setCanLogProgram = &detail::withAddress<Message::SetCanLogProgram, std::int32_t>;
inline constexpr auto canLogProgram = &detail::plain<Message::RequestCanLogProgram>;
inline constexpr auto currentRecord = &detail::plain<Message::RequestCurrentRecord>;
inline constexpr auto recordByNumber = &detail::withAddress<Message::RequestRecordByNumber, std::uint32_t>;
inline constexpr auto recordByTime = &detail::withAddress<Message::RequestRecordByTime, QDateTime>;     // UTC
inline constexpr auto recordOfPeriod = &detail::withAddress<Message::RequestRecordOfPeriod, QDateTime>; // UTC
inline constexpr auto extraPacket = &detail::withValue<Message::RequestExtraPacket>;  // 1 key touch, 3 RFID
inline constexpr auto clearServerData = &detail::withValue<Message::ClearServerData>; // server 1 to 3
inline constexpr auto guardOff = &detail::plain<Message::GuardOff>;
inline constexpr auto guardOn = &detail::plain<Message::GuardOn>;
inline constexpr auto outputOn = &detail::withValue<Message::OutputOn>;
inline constexpr auto outputOff = &detail::withValue<Message::OutputOff>;
inline constexpr auto setMileage = &detail::withAddress<Message::SetMileage, float>;
inline constexpr auto tachographQuestion = &detail::withValue<Message::TachographQuestion>;
inline constexpr auto tachographFile = &detail::withAddress<Message::TachographFileRequest, szQueryTaho>;
inline constexpr auto tachographRead =
    &detail::withAddress<Message::TachographFileRead, QString>; // path to fill
// NOLINTEND(readability-identifier-naming)

} // namespace vlk::requests
