#pragma once

// The data-set page: the version of the protocol, and on its tabs the fields that the tracker stores and
// sends in a record. Its settings are those of the section PROTOCOL (settings/data_set_settings.h). Which
// tabs there are says the page of the tracker model, which derives from this one (form_config_zeta3.h).
//
// The page tells the size of a stored record, which follows from its mask: every checked box counts, on show
// or not, whatever the version. A record above vlk::kLargestRecord raises an alarm, and signal_Excess_Size
// tells when it begins and ends.

#include "windows/binder/page_settings.h"

#include <QWidget>

#include <functional>
#include <memory>

class QAction;
class VLK_Form_Param_About;

namespace Ui {
class VLK_Designer_Form_Config_Set_Zeta3;
}

namespace vlk {
class DataSetTabs;
}

class VLK_Form_Config_Set_Zeta3 : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3(QWidget* parent = nullptr);
    ~VLK_Form_Config_Set_Zeta3() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root);
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    void deviceConnected();
    void deviceDisconnected();
    vlk::PageSettings& settings() { return settings_; }

    // What forms offer to the free slots of the record, and what the file holds of them, goes to the tabs;
    // the User tab takes it. Loading and saving come behind all pages.
    void userParamAdded(const QString& code, const QString& name, const QString& third, int size);
    void userParamDeleted(const QString& code, const QString& name, const QString& third, int size);
    void loadUserParams(CXmlSection* root);
    void saveUserParams(CXmlSection* root);

    // Other programs know them by these names. The size follows from the mask, so they only look at it again.
    void addSize(int /*bytes*/) { checkSize(); }
    void subSize(int /*bytes*/) { checkSize(); }

Q_SIGNALS:
    // Sent when the record becomes too large, and when it is small enough again.
    void signal_Excess_Size(bool excess);

public Q_SLOTS:
    void slot_currentIndexChanged_FlashFormat(int index);
    void slot_pressed_BtnHelp();
    void slot_triggered_Menu(QAction* action);

protected:
    void mousePressEvent(QMouseEvent* event) override;

    vlk::DataSetTabs& tabs() const;
    // To be called once the tabs are there.
    void finish();

private:
    // Runs what changes many boxes; the size is looked at when all of them have changed.
    void change(const std::function<void()>& boxes);
    // Shows the size of the record, once no change is under way.
    void checkSize();

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Set_Zeta3> ui_;
    std::unique_ptr<VLK_Form_Param_About> help_;
    vlk::PageSettings settings_;
    bool excess_ = false;
    bool changing_ = false;
};
