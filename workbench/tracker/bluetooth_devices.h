#pragma once

// The Bluetooth devices around the simulated tracker: how they call themselves, when a search hears them, and
// what they measure. Those that measure nothing of the vehicle are other people's.

#include <array>

namespace tracker {

struct BluetoothDevice
{
    const char* name;
    const char* mac;
    int heardAfterMs;
    int tankSensor = -1; // the tank it hangs in, by the number of the sensor on the line there: 0 is D1
    int climate = -1;    // the place of which it tells the temperature
    bool tellsHumidity = false;
};

inline constexpr std::array kBluetoothDevices{
    BluetoothDevice{.name = "TD_710612", .mac = "C4:64:E3:0B:52:10", .heardAfterMs = 700, .tankSensor = 2},
    BluetoothDevice{.name = "TL_022417", .mac = "C4:64:E3:0B:77:A1", .heardAfterMs = 1100, .climate = 0},
    BluetoothDevice{.name = "TZ-BT04",
                    .mac = "E2:15:00:01:3A:70",
                    .heardAfterMs = 1300,
                    .climate = 1,
                    .tellsHumidity = true},
    BluetoothDevice{.name = "TZ-BT04", // another sensor of that name
                    .mac = "E2:15:00:01:3A:8F",
                    .heardAfterMs = 1400,
                    .climate = 2,
                    .tellsHumidity = true},
    BluetoothDevice{.name = "TH_118230",
                    .mac = "D0:2E:AB:41:09:5C",
                    .heardAfterMs = 1500,
                    .climate = 3,
                    .tellsHumidity = true},
    BluetoothDevice{.name = "TD_710612", .mac = "C4:64:E3:0B:52:10", .heardAfterMs = 1900}, // once more
    BluetoothDevice{.name = "JBL GO 3", .mac = "F4:BC:DA:12:60:7E", .heardAfterMs = 2100},
    BluetoothDevice{.name = "", .mac = "7C:2F:80:5A:11:04", .heardAfterMs = 2300},
    // One that advertises seldom.
    BluetoothDevice{.name = "TD_710655", .mac = "C4:64:E3:0B:60:2C", .heardAfterMs = 5200, .tankSensor = 3},
};

} // namespace tracker
