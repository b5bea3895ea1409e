#pragma once

// The RS page: which device owns the serial line, how the line runs, and below it the form of the device
// (rs_owner_forms.h), made when the device is chosen for the first time. Everything that the file holds is in
// the rows of settings/rs_settings.h, the forms' elements too.

#include "windows/binder/page_settings.h"

#include <QMap>
#include <QWidget>

#include <memory>

class VLK_Form_Config_RS_Param;

namespace Ui {
class VLK_Designer_Form_Config_RS;
}

namespace vlk {
struct RsOwnerForm;
}

class VLK_Form_Config_RS : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_RS(QWidget* parent = nullptr);
    ~VLK_Form_Config_RS() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root);
    void saveToXml(CXmlSection* root);
    void deviceConnected() { setConnected(true); }
    void deviceDisconnected() { setConnected(false); }
    vlk::PageSettings& settings() { return settings_; }

    // Stored code of a user parameter from its name, and the way back; empty when no form knows it.
    QString userParamCode(const QString& text) const;
    QString userParamText(const QString& code) const;
    // The program number that the CAN-LOG adapter told.
    void setCanLogProgram(int program);

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_currentIndexChanged_RS485_Owner_1(const QString&) {}
    void slot_SetRS485_Settings(const QString& speed, const QString& parity, const QString& stop);
    void slot_CanLogProgramm_Get();
    void slot_CanLogProgramm_Set(int program);
    void slot_UserParam_Add(const QString& code, const QString& name, const QString& third, int size);
    void slot_UserParam_Del(const QString& code, const QString& name, const QString& third, int size);

private:
    struct MadeForm
    {
        const vlk::RsOwnerForm* entry;
        VLK_Form_Config_RS_Param* form;
    };

    void setConnected(bool connected);
    void takeChange(const QString& path);
    void connectForm(VLK_Form_Config_RS_Param* form);
    const MadeForm* madeFor(const QString& owner);
    void showForm();
    void showNotice();

    std::unique_ptr<Ui::VLK_Designer_Form_Config_RS> ui_;
    vlk::PageSettings settings_;
    QMap<QString, MadeForm> made_; // by the owner's code
    const MadeForm* shown_ = nullptr;
    bool connected_ = false;
};
