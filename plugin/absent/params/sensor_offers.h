#pragma once

// What a wireless sensor gives to others, as a function of the settings of the Bluetooth page: the user
// parameters that it offers for the free slots of a record, and the tracker's numbers that its values take.

#include "settings/bluetooth_sensor_types.h"
#include "settings/bluetooth_settings.h"

#include <QString>

#include <array>
#include <vector>

namespace vlk {

class Values;

struct SensorOffers
{
    // A value of the universal sensor. One that is not in use gives nothing.
    struct Universal
    {
        bool isUsed = false;
        int target = 0; // what the value is in the tracker: a code of the list, 0 for nothing
        QString number; // " 7" among those of the target, empty for none
        QString name;   // of the user parameter that it is, empty for none
        QString element;

        bool operator==(const Universal&) const = default;
    };

    const BluetoothSensorType* type = nullptr; // null for none
    int vendor = 0;
    int number = -1; // that the value of the sensor takes, -1 for none
    std::array<Universal, kUniversalValues> rows{};
};

// Looks up the settings of a sensor once, for whoever asks at every edit.
class SensorOfferSource
{
public:
    // `sensor` counts from 1.
    SensorOfferSource(const Values& bluetooth, int sensor);

    SensorOffers offers() const;

private:
    struct TypeRows
    {
        const BluetoothSensorType* type;
        int vendor;
        int number; // -1: the type has none
    };
    struct UniversalRows
    {
        int group;
        int target;
        int number;
        int element;
    };

    SensorOffers::Universal universal(int place) const;

    const Values& values_;
    const int sensor_;
    const int type_;
    std::vector<TypeRows> types_;
    std::array<UniversalRows, kUniversalValues> rows_{};
};

} // namespace vlk
