#include "tracker/bluetooth_search.h"

#include <QtGlobal>

namespace tracker {

namespace {

using vlk::Message;

// Events of the search go as characters.
constexpr char searchRuns = '0';
constexpr char searchEnded = '1';
constexpr char searchFailed = '2';
constexpr char searchStopped = '3';

struct Device
{
    const char* name;
    const char* mac;
    int afterMs;
};

constexpr Device devices[] = {
    {"TD_710612", "C4:64:E3:0B:52:10", 700},
    {"TL_022417", "C4:64:E3:0B:77:A1", 1100},
    {"TZ-BT04", "E2:15:00:01:3A:70", 1300},
    {"TZ-BT04", "E2:15:00:01:3A:8F", 1400}, // another sensor of that name
    {"TH_118230", "D0:2E:AB:41:09:5C", 1500},
    {"TD_710612", "C4:64:E3:0B:52:10", 1900}, // heard once more
    {"JBL GO 3", "F4:BC:DA:12:60:7E", 2100},
    {"", "7C:2F:80:5A:11:04", 2300},          // one without a name
    {"TD_710655", "C4:64:E3:0B:60:2C", 5200}, // one that advertises seldom
};
constexpr int searchMs = 5600;

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
        return {event(Message::BtSearchEvent, searchFailed, 0)};
    Answers answers{event(Message::BtSearchEvent, searchRuns, 0)};
    for (const Device& device : devices) {
        vlk::BtDevice record{};
        qstrncpy(record.name, device.name, sizeof record.name);
        qstrncpy(record.mac, device.mac, sizeof record.mac);
        Answer answer = Answer::record(record);
        answer.message = Message::BtDeviceFound;
        answer.afterMs = device.afterMs;
        answer.ofSearch = true;
        answers.push_back(answer);
    }
    answers.push_back(event(Message::BtSearchEvent, searchEnded, searchMs));
    return answers;
}

Answers stopBluetoothSearch()
{
    return {event(Message::BtSearchStopped, searchStopped, 0)};
}

} // namespace tracker
