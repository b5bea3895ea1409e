#pragma once

// The Bluetooth page: whether the tracker's Bluetooth is used, the search for devices around the tracker, and
// the four sensors that it is bound to (form_config_bluetooth_device.h). Its settings are those of the
// section BLUETOOTH (settings/bluetooth_settings.h). The search runs in the host; the page shows what comes
// of it.

#include "windows/binder/page_settings.h"

#include <QPair>
#include <QSet>
#include <QWidget>

#include <memory>

class QTreeWidgetItem;
class VLK_Form_Config_Bluetooth_Device;

namespace Ui {
class VLK_Designer_Form_Config_Bluetooth;
}

namespace vlk {
struct BtDevice;
}

class VLK_Form_Config_Bluetooth : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Bluetooth(QWidget* parent = nullptr);
    ~VLK_Form_Config_Bluetooth() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root);
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }

    void deviceConnected() { setConnected(true); }
    void deviceDisconnected() { setConnected(false); }

    // Display text of a stored user parameter, and the way back; empty for an unknown one.
    QString keyToDisplay(const QString& key) const;
    QString displayToKey(const QString& text) const;

    // What the host tells of a search; events are the characters '0' to '3', others change nothing.
    void onSearchEvent(uchar event);
    void onSearchStopped(uchar event);
    void onDeviceFound(const vlk::BtDevice& device);

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_stateChanged_Bt_Use(int) {}
    void slot_pressed_Btn_Bt_Find();
    void slot_pressed_Btn_Bt_Add();
    void slot_pressed_Btn_Bt_Cancel();
    void slot_currentIndexChanged_BtDevice(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setConnected(bool connected);
    void applyConnection();
    void clearList();
    // Devices that a sensor is bound to already have a mark.
    void markIfBound(QTreeWidgetItem* item);
    void showMark(QTreeWidgetItem* item);
    void markBound();
    void setUsable(QWidget* part, bool usable);
    void endSearch(bool canAdd);
    void offerSensors(const QPoint& where);

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Bluetooth> ui_;
    vlk::PageSettings settings_;
    VLK_Form_Config_Bluetooth_Device* sensors_;
    QSet<QPair<QString, QString>> found_; // name and address of every row of the list
    QString rememberedMac_;               // of the headset
    QString rememberedPassword_;
    bool connected_ = false;
};
