#pragma once

// The Output lines page: name and use of the output line, the form of its signal, safe blocking, and the
// events that switch it. Its settings are those of the section OUTPUTS (settings/lines_out_settings.h).

#include "windows/binder/page_settings.h"

#include <QWidget>

#include <memory>

namespace Ui {
class VLK_Designer_Form_Config_Lines_Out;
}

class VLK_Form_Config_Lines_Out : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Lines_Out(QWidget* parent = nullptr);
    ~VLK_Form_Config_Lines_Out() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults() { settings_.setDefaults(); }
    void loadFromXml(CXmlSection* root) { settings_.load(root); }
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    // Puts the controls in the state of a use, by its text; uses that the list does not offer count too.
    void slot_currentIndexChanged_UseAs_O1(const QString& use);
    void slot_currentIndexChanged_SignalForm_O1(const QString&) {}
    void slot_stateChanged_TimeAutoSwitchOff_O1(int) {}

private:
    std::unique_ptr<Ui::VLK_Designer_Form_Config_Lines_Out> ui_;
    vlk::PageSettings settings_;
};
