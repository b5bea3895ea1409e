#pragma once

// The Accelerometer page: an inner tab with the virtual sensors (form_config_accel_virtual.h), to which it
// hands everything on.

#include "pages/form_config_accel_virtual.h"

class QTabWidget;

class VLK_Form_Config_Accel : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Accel(QWidget* parent = nullptr);

    QString title() const { return settings().title(); }
    int tabIndex() const { return settings().tabIndex(); }
    void setTabIndex(int index) { settings().setTabIndex(index); }
    void retranslate();
    void setDefaults() { virtual_->setDefaults(); }
    void loadFromXml(CXmlSection* root) { settings().load(root); }
    void saveToXml(CXmlSection* root) { settings().save(root); }
    vlk::PageSettings& settings() const { return virtual_->settings(); }

    void deviceConnected() { virtual_->deviceConnected(); }
    void deviceDisconnected() { virtual_->deviceDisconnected(); }
    void showPresentValues(const vlk::AccelValues& values) { virtual_->showPresentValues(values); }
    void clearPresentValues() { virtual_->clearPresentValues(); }
    void stopAuto() { virtual_->stopAuto(); }
    void pauseAuto() { virtual_->pauseAuto(); }
    void resumeAuto() { virtual_->resumeAuto(); }

public Q_SLOTS:
    void slot_indexChangeed_tabWidget(int index);

private:
    QTabWidget* tabs_;
    VLK_Form_Config_Accel_Virtual* virtual_;
};
