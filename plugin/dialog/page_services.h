#pragma once

// What the full window does for its pages: names of user parameters, jumps to other tabs, the monitor of live
// values and what else goes to the tracker. The way back, from the tracker to the pages, is in answers().

#include "dialog/tracker_answers.h"
#include "windows/wnd_config_full.h"

#include <memory>

namespace vlk {

class ConfigPages;
class TabNavigation;

class PageServices : public VLK_Wnd_Config_Full
{
    Q_OBJECT

public:
    explicit PageServices(QWidget* parent);
    ~PageServices() override;

    const ConfigPages& pages() const { return *pages_; }
    TrackerAnswers& answers() { return answers_; }

    QString userParamCode(const QString& text) override;
    QString userParamText(const QString& code) override;
    void gotoInputLines() override;
    void gotoRs() override;
    void gotoBluetooth() override;
    void gotoAccel() override;
    void gotoAccelPlain() override;
    void startAccelMonitor(bool on, int periodMs) override;
    void startLinesMonitor(bool on, const QByteArray& list, int periodMs) override;
    void pollCurrentTab() override;
    void requestAccel() override;
    void requestAccelResult() override;
    void requestLines(const QByteArray& list) override;
    void startBtSearch() override;
    void cancelBtSearch() override;
    void getCanLogProgram() override;
    void setCanLogProgram(int value) override;
    void sendSystemWaitEnd() override;
    void addUserParam(const QString& code, const QString& name, const QString& third, int size) override;
    void deleteUserParam(const QString& code, const QString& name, const QString& third, int size) override;

protected:
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    std::unique_ptr<ConfigPages> pages_;
    TabNavigation* navigation_ = nullptr; // made by the window, with its buttons
    TrackerAnswers answers_;
};

} // namespace vlk
