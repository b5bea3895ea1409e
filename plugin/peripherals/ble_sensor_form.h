#pragma once

// The form of one type of wireless sensor: which vendor's device it is, which of the tracker's numbers its
// value takes, and what else the type has. What differs between types is in the table of
// settings/bluetooth_sensor_types.h; values and rules are those of the page's settings. The classes of the
// types (ble_sensor_forms.h) add the names of their signals.
//
// While it is active, the form of its sensor's type, it tells which user parameters the sensor supplies and
// which number it takes. Its widgets are made when it is shown for the first time.

#include "settings/bluetooth_sensor_types.h"
#include "settings/params/user_param_type.h"

#include <QWidget>

struct CXmlSection;

namespace vlk {

class PageSettings;
class Values;

class BleSensorForm : public QWidget
{
    Q_OBJECT

public:
    // `sensor` counts from 1.
    BleSensorForm(const BluetoothSensorType& type, int sensor, PageSettings& settings,
                  QWidget* parent = nullptr);

    const BluetoothSensorType& type() const { return type_; }
    int sensor() const { return sensor_; }
    bool isActive() const { return active_; }
    void setActive(bool on);
    // Whether the edit of the sensor's name is open for the vendor.
    bool needsName() const;
    // The list's text of a number, empty for none.
    QString indexText(int index) const;

    // The element of the type, whichever type the sensor has; `bluetooth` is the section.
    void load(CXmlSection* bluetooth);
    void save(CXmlSection* bluetooth) const;
    virtual void setDefaults();

    // Makes the widgets, once.
    void make();
    bool isMade() const { return made_; }
    virtual void retranslate() {}
    // Tells what has changed since it last did.
    virtual void tellChanges();

Q_SIGNALS:
    void signal_Device_UserParam_Add(userParamType type);
    void signal_Device_UserParam_Del(userParamType type);
    void signal_SetSensorNameEnabled(bool on);
    // A number given up and one taken; -1 for none.
    void indexChanged(int give, int take);

protected:
    virtual void makeWidgets();
    virtual void tellIndex(int give, int take) { Q_EMIT indexChanged(give, take); }
    // The value at a path of this sensor: %1 is its number.
    QString value(const char* path) const;
    PageSettings& settings() const { return settings_; }

private:
    // The settings of the element alone, as though the sensor were of the type: no list has to offer a way to
    // it.
    Values element() const;
    void take(const Values& element);
    int vendor() const;
    int takenIndex() const;
    void tell(bool on, int vendor);

    const BluetoothSensorType& type_;
    const int sensor_;
    PageSettings& settings_;
    const QString vendorPath_; // below the section
    const QString indexPath_;
    bool active_ = false;
    bool made_ = false;
    int previousVendor_ = -1;
    int previousIndex_ = -1;
};

} // namespace vlk
