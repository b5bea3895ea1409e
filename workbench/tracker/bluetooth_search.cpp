#include "tracker/bluetooth_search.h"

#include "tracker/bluetooth_devices.h"

#include <QtGlobal>

namespace tracker {

namespace {

using vlk::Message;

constexpr int kSearchMs = 5600;

Answer event(Message message, char value, int afterMs)
{
    Answer answer = Answer::record(value);
    answer.message = message;
    answer.afterMs = afterMs;
    answer.ofSearch = message == Message::BtSearchEvent;
    return answer;
}

} // namespace

Answers searchBluetooth(bool switchedOn)
{
    if (!switchedOn)
        return {event(Message::BtSearchEvent, kSearchFailed, 0)};
    Answers answers{event(Message::BtSearchEvent, kSearchRuns, 0)};
    for (const BluetoothDevice& device : kBluetoothDevices) {
        vlk::BtDevice record{};
        qstrncpy(record.name, device.name, sizeof record.name);
        qstrncpy(record.mac, device.mac, sizeof record.mac);
        Answer answer = Answer::record(record);
        answer.message = Message::BtDeviceFound;
        answer.afterMs = device.heardAfterMs;
        answer.ofSearch = true;
        answers.push_back(answer);
    }
    answers.push_back(event(Message::BtSearchEvent, kSearchEnded, kSearchMs));
    return answers;
}

Answers stopBluetoothSearch()
{
    return {event(Message::BtSearchStopped, kSearchStopped, 0)};
}

} // namespace tracker
