#pragma once

// The Input lines page: name and use of the three lines, and below each the settings of its use
// (form_lines_in_settings.h). Its settings are those of the section SENSORS (settings/lines_in_settings.h).
// It shows the voltages on the lines, asked for once or as long as the window's monitor runs.

#include "windows/binder/page_settings.h"
#include "windows/present_age.h"

#include <QWidget>

#include <array>
#include <memory>

class VLK_Form_Lines_In_Settings;

namespace Ui {
class VLK_Designer_Form_Config_Lines_In;
}

class VLK_Form_Config_Lines_In : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Lines_In(QWidget* parent = nullptr);
    ~VLK_Form_Config_Lines_In() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root) { settings_.load(root); }
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }

    // Answers with the voltages: seven bytes of the host's and "21:1F4,22:0", line and millivolts in
    // hexadecimal; a record with three words (messages.h), which may be null.
    void showLineValues(const QByteArray& answer);
    void showAnalogRecord(const uchar* record);
    // The monitor has stopped, for as long as the user works in another window, or begins anew.
    void stopAuto();
    void pauseAuto();
    void resumeAuto();

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_currentIndexChanged_NormState_In1(const QString&) {}
    void slot_currentIndexChanged_NormState_In2(const QString&) {}
    void slot_currentIndexChanged_NormState_In3(const QString&) {}
    void slot_stateChanged_Ignition_In1(int) {}
    void slot_stateChanged_Ignition_In2(int) {}
    void slot_stateChanged_Ignition_In3(int) {}
    void slot_stateChanged_checkBox_Auto(int state);
    void slot_pressed_pushButton_Quest();

private:
    void showUses();

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Lines_In> ui_;
    std::array<VLK_Form_Lines_In_Settings*, 3> lines_{};
    vlk::PageSettings settings_;
    vlk::PresentAge age_;
};
