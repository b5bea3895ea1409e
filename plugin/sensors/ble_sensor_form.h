#pragma once

// The form of one type of wireless sensor: which vendor's device it is, which of the tracker's numbers its
// value takes, and what else the type has. What differs between types is in the table of
// settings/bluetooth_sensor_types.h; values and rules are those of the page's settings. The classes of the
// types (ble_sensor_forms.h) add the names of their signals, which are sent for the form
// (absent/forms/sensor_teller.h). Its widgets are made when it is shown for the first time.

#include "settings/bluetooth_sensor_types.h"

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
    // Sends the signals of a number given up and one taken; -1 for none.
    virtual void tellIndex(int give, int take) { Q_EMIT indexChanged(give, take); }

Q_SIGNALS:
    void signal_Device_UserParam_Add(userParamType type);
    void signal_Device_UserParam_Del(userParamType type);
    void signal_SetSensorNameEnabled(bool on);
    void indexChanged(int give, int take);

protected:
    virtual void makeWidgets();
    PageSettings& settings() const { return settings_; }

private:
    // The settings of the element alone, as though the sensor were of the type: no list has to offer a way to
    // it.
    Values element() const;
    void take(const Values& element);
    int vendor() const;

    const BluetoothSensorType& type_;
    const int sensor_;
    PageSettings& settings_;
    const QString vendorPath_; // below the section
    const QString indexPath_;
    bool made_ = false;
};

} // namespace vlk
