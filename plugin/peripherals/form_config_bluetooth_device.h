#pragma once

// The four wireless sensors that the tracker can be bound to: for each its type, address and name, and below
// them the form of the type. A number that the value of one takes is gone from the lists of the others; that
// is a rule of the settings.

#include <QWidget>

#include <array>

class QComboBox;
class QGroupBox;
class QLineEdit;
class VLK_Form_Config_Bluetooth_Device_Type;

namespace vlk {
class PageSettings;
}

class VLK_Form_Config_Bluetooth_Device : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kSensors = 4;

    explicit VLK_Form_Config_Bluetooth_Device(vlk::PageSettings& settings, QWidget* parent = nullptr);

    QString title() const { return tr("cfgt17_003"); }
    void retranslate();

    // `sensor` counts from 1.
    VLK_Form_Config_Bluetooth_Device_Type* type(int sensor) const { return sensors_[sensor - 1].type; }
    // Binds a sensor to a device that was found, and goes to it.
    void bind(int sensor, const QString& mac, const QString& name);
    // "Sensor 1"
    QString title(int sensor) const;
    // The address that a sensor is bound to; empty without one.
    QString address(int sensor) const;

    // The first sensor that knows the user parameter.
    QString keyToDisplay(const QString& key) const;
    QString displayToKey(const QString& text) const;
    // Unchecks the boxes of the universal sensors' tests, which the settings do not hold.
    void clearTests();

public Q_SLOTS:
    // Shows the form of the type with this text, whether the list offers it or not.
    void slot_currentIndexChanged_Type_Sensor_1(const QString& text) { selectType(1, text); }
    void slot_currentIndexChanged_Type_Sensor_2(const QString& text) { selectType(2, text); }
    void slot_currentIndexChanged_Type_Sensor_3(const QString& text) { selectType(3, text); }
    void slot_currentIndexChanged_Type_Sensor_4(const QString& text) { selectType(4, text); }
    // The numbers that sensors share are a rule of the settings.
    void slot_ChangeIdxFS_Sensor_1(const QString&, const QString&) {}
    void slot_ChangeIdxFS_Sensor_2(const QString&, const QString&) {}
    void slot_ChangeIdxFS_Sensor_3(const QString&, const QString&) {}
    void slot_ChangeIdxFS_Sensor_4(const QString&, const QString&) {}
    void slot_ChangeIdxTS_Int_Sensor_1(int, int) {}
    void slot_ChangeIdxTS_Int_Sensor_2(int, int) {}
    void slot_ChangeIdxTS_Int_Sensor_3(int, int) {}
    void slot_ChangeIdxTS_Int_Sensor_4(int, int) {}
    void slot_EnabledSensorName1(bool on) { enableName(1, on); }
    void slot_EnabledSensorName2(bool on) { enableName(2, on); }
    void slot_EnabledSensorName3(bool on) { enableName(3, on); }
    void slot_EnabledSensorName4(bool on) { enableName(4, on); }
    // The tab of user parameters is not on this tracker: the offers of the sensors end here.
    void slot_UserParam_Add(const QString&, const QString&, const QString&, int) {}
    void slot_UserParam_Del(const QString&, const QString&, const QString&, int) {}

private:
    struct Sensor
    {
        QGroupBox* box;
        QGroupBox* more;
        QComboBox* types;
        QLineEdit* name;
        VLK_Form_Config_Bluetooth_Device_Type* type;
    };

    Sensor makeSensor(int number);
    void enableName(int sensor, bool on);
    void selectType(int sensor, const QString& text);
    void tellChanges();

    vlk::PageSettings& settings_;
    std::array<Sensor, kSensors> sensors_{};
};
