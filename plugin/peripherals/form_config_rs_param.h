#pragma once

// What every parameter form of a device on the serial line has in common. The RS page (form_config_rs.h)
// keeps one form a device, made when the device is chosen for the first time, shows that of the chosen device
// and hands it these calls.
//
// What a form keeps in the file stands in rows of the page's table (settings/rs_settings.h), which the page
// loads, saves and resets; loadFromXml() and saveToXml() are for what a form keeps besides. `section` is the
// element RS485.
//
// The order of the virtual operations is fixed.

#include "absent/params/user_param.h"

#include <QList>
#include <QWidget>

struct CXmlSection;

namespace vlk {
class PageSettings;
}

class VLK_Form_Config_RS_Param : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual void loadFromXml(CXmlSection* /*section*/) {}
    virtual void saveToXml(CXmlSection* /*section*/) {}
    virtual void deviceConnected() {}
    virtual void deviceDisconnected() {}
    virtual void setDefaults() {}
    // A form that is made has no texts before the first call.
    virtual void retranslate() {}
    // The form comes on show: it tells its line settings again.
    virtual void applyLineSettings() {}

    // Gives the form the settings of its page, before anything else; they outlive the form.
    void setSettings(vlk::PageSettings* settings) { settings_ = settings; }

Q_SIGNALS:
    // Texts as the line's combo boxes hold them: "19200", "None", "1".
    void changeRs_Settings(const QString& speed, const QString& parity, const QString& stop);
    // A value is there for the free slots of the record, or is no more; `third` may be empty, the size is in
    // bytes.
    void signal_UserParam_Add(const QString& code, const QString& name, const QString& third, int size);
    void signal_UserParam_Del(const QString& code, const QString& name, const QString& third, int size);

protected:
    // What the form offers for the free slots of the record, from now on: sends the signals of what is gone
    // and of what is new.
    void tellOffers(const QList<vlk::UserParam>& offers);

    vlk::PageSettings* settings_ = nullptr;

private:
    QList<vlk::UserParam> told_;
};
