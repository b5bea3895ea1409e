#pragma once

// The content form for telemetry records of protocol 3.0: four tabs of values, and two commands, switching an
// output and setting the mileage. The live view gives it bytes, a browser of stored records gives it pages.

#include "telemetry/record/telemetry_titles.h"
#include "telemetry/view/record_on_show.h"

#include <QWidget>

#include <vector>

class QMenu;
class VLK_Form_Tmi_F3_Tab;
class VLK_Form_Tmi_F3_Tab_Main;
class VLK_Form_Tmi_F3_Tab_Sensors;
class VLK_TabWidget;

class VLK_Form_TMI_Zeta3 : public QWidget
{
    Q_OBJECT

public:
    // Records go to `panel` too, if there is one.
    explicit VLK_Form_TMI_Zeta3(vlk::EventPanel* panel, QWidget* parent = nullptr);

    // The names of lines and sensors that the tabs show beside their values.
    void setTitles(const vlk::TelemetryTitles& titles);
    // Bit 3: the tracker has four outputs, else three.
    void setCapabilityMask(quint64 mask);
    // Off while records are requested automatically: the user cannot command the tracker then.
    void setCommandsBlocked(const char* reasonKey);
    // A form without a tracker shows no controls for one.
    void setLive(bool live);

    // A record, from its type byte on.
    void takeRecord(const QByteArray& record) { fill(record_.take(record)); }
    // A record that somebody else owns and shows in the event panel.
    void fill(const TmiPage_Zeta3& page);

    // The next record is one of another tracker or file: tabs of which it has nothing go behind the others.
    // With the records that follow the order stays, so that no tab moves under the mouse.
    void begin() { isOrdered_ = false; }

    // Seconds east of UTC.
    void setUtcOffset(int seconds);
    // The number of the last record that the form took; -1 before the first one.
    qint64 number() const { return record_.number(); }
    const TmiPage_Zeta3* page() const { return record_.page(); }
    void retranslate();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void slot_SetOut_On(int output);
    void slot_SetOut_Off(int output);
    void slot_Set_Run(float kilometres);
    void slot_triggered_Menu(QAction* action);

private:
    void addTab(VLK_Form_Tmi_F3_Tab* tab);
    void hideAbsentParts();
    void fillTabs(const TmiPage_Zeta3& page);
    void orderTabs();

    vlk::RecordOnShow record_;
    VLK_TabWidget* tabWidget_;
    QMenu* menu_;
    VLK_Form_Tmi_F3_Tab_Main* main_;
    VLK_Form_Tmi_F3_Tab_Sensors* sensors_;
    struct Tab
    {
        VLK_Form_Tmi_F3_Tab* form;
        QWidget* area; // in the tab widget
    };
    std::vector<Tab> tabs_; // in the order of the menu
    bool isOrdered_ = false;
};
