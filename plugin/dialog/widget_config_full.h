#pragma once

// The full configuration window: the settings pages as tabs, the buttons at their side, the walk over the
// pages for loading and saving, and the monitor of live values (config_monitor.h). Configurations come and go
// as XML files with the root DEVICE; a file that does not parse changes nothing, and a missing key takes its
// default. What could not be saved is not written to the tracker.

#include "dialog/config_monitor.h"
#include "dialog/config_pages.h"
#include "windows/wnd_config_full.h"

#include <memory>

struct CXmlSection;
class QAction;
class QMenu;

namespace Ui {
class VLK_Designer_Widget_Config_Full;
}

namespace vlk {
struct BtDevice;
}

class VLK_Widget_Config_Full : public VLK_Wnd_Config_Full
{
    Q_OBJECT

public:
    explicit VLK_Widget_Config_Full(QWidget* parent = nullptr);
    ~VLK_Widget_Config_Full() override;

    // Reads a file into the pages, and its balance request code into `ussdBuffer` (vlk::balanceUssdSize
    // bytes), which an unusable file leaves as it is.
    void loadFile(const QString& path, char* ussdBuffer);
    // Replaces whatever the file holds. False when that failed, which the log says (base/save_log.h).
    bool saveFile(const QString& path);
    // The walks over an open document.
    void loadFromXml(CXmlSection* root, char* ussdBuffer);
    void saveToXml(CXmlSection* root);

    void setDefaults();
    void retranslate();
    void deviceConnected();
    void deviceDisconnected();

    // Services for the pages.
    QString userParamCode(const QString& text) override;
    QString userParamText(const QString& code) override;
    void gotoInputLines() override;
    void gotoRs() override;
    void gotoBluetooth() override;
    void gotoAccel() override;
    void gotoAccelPlain() override;
    void startAccelMonitor(bool on, int periodMs) override { monitor_.startAccel(on, periodMs); }
    void startLinesMonitor(bool on, const QByteArray& list, int periodMs) override
    {
        monitor_.startLines(on, list, periodMs);
    }
    void pollCurrentTab() override { monitor_.pollCurrentTab(); }
    void requestAccel() override { monitor_.requestAccel(); }
    void requestAccelResult() override { monitor_.requestAccelResult(); }
    void requestLines(const QByteArray& list) override { monitor_.requestLines(list); }
    void startBtSearch() override;
    void cancelBtSearch() override;
    void getCanLogProgram() override;
    void setCanLogProgram(int value) override;
    void sendSystemWaitEnd() override;

    // Answers of the host. Byte records may be null.
    void takeLineValues(const QByteArray& text);
    void takeSupply(const uchar* record);
    void takeAnalog(const uchar* record);
    void takeAccel(const uchar* record);
    void takeAccelResult(const uchar* record);
    void rearmMonitor() { monitor_.accelAnswered(); }
    void takeBtSearchStopped(const uchar& event);
    void takeBtSearchEvent(const uchar& event);
    void takeBtDevice(const vlk::BtDevice& device);
    void takeCanLogProgram(const std::int32_t& program);

    const vlk::ConfigPages& pages() const { return pages_; }

public Q_SLOTS:
    void slot_timeOut_TimerAnalog();
    void slot_finished(int result);
    void slot_currentChanged_TabWidget(int index);
    void slot_pressed_Btn_SaveToFile();
    void slot_pressed_Btn_LoadToDevice();
    void slot_pressed_Btn_Help();
    void slot_pressed_Btn_Close();
    void slot_pressed_Btn_ConfigLight();
    void slot_pressed_Btn_First();
    void slot_pressed_Btn_Last();
    void slot_pressed_Btn_PrevScreen();
    void slot_pressed_Btn_NextScreen();
    void slot_pressed_Btn_Goto();
    void slot_triggered_Menu(QAction* action);
    void slot_Excess_Size(bool excess);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void connectButtons();
    void buildTabs();
    void goTo(int index);
    template <class Page>
    bool isCurrent() const;
    ConfigMonitor::Tab liveTab() const;

    std::unique_ptr<Ui::VLK_Designer_Widget_Config_Full> ui_;
    vlk::ConfigPages pages_;
    ConfigMonitor monitor_;
    QMenu* tabMenu_;
    bool connected_ = false;
};
