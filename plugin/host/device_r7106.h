#pragma once

// The one device object of the library: what the host told about the tracker, the identification that the
// host reads, and the windows. It exists from the loading of the library to its end; the pointer `vlkDevice`
// is null until Initialize. Windows are made on first use and live as long as the process: closing one only
// hides it. Messages from outside arrive in `receive`, messages to the host leave through `send`
// (link/requests.h has a typed function for each).

#include "base/model_text.h"
#include "host/host_interface.h"
#include "link/device.h"

#include <QObject>

class VLK_Form_IO_Progress;
class VLK_Form_Param_About;
class VLK_Widget_Config;
class VLK_Widget_Tmi_Page;
class VLK_Widget_Tmi_Table;
class VLK_Widget_Tmi_View;

class VLK_Device_R7106 : public QObject, public vlk::Device
{
    Q_OBJECT

public:
    VLK_Device_R7106();

    // What the exports do.
    const vlk::LibraryInfo& info() const { return libraryInfo_; }
    void initialize(vlk::HostCallback callback);
    bool isHandle(const void* handle) const;
    void receive(std::uint32_t id, void* p1, void* p2);

    void send(vlk::Message id, void* p1 = nullptr, void* p2 = nullptr) override;
    QString tmiFolder() const override;
    QString xmlFolder() const override;
    QString model() const override { return vlk::modelText(); }
    QString vendor() const override { return vendorText_; }
    QString trackerId1() const override { return trackerText1_; }
    QString trackerId2() const override { return trackerText2_; }
    quint64 capabilityMask() const override { return trackerMask_; }
    int mode() const override { return hostMode_; }
    bool confirmsWrites() const override { return confirmsWrites_; }
    QString fileVersion() const override;
    char* balanceUssd() override { return balanceUssd_; }
    void setLiveOwner(int owner) override { liveOwner_ = owner; }
    void showHelp(const QString& page) override;
    void showText(const QString& title, const QString& html) override;
    vlk::TextSource textsIn(const char* language) const override;

    int liveOwner() const { return liveOwner_; }

    // What messages do to the device itself; dispatch.cpp says which.
    void setMode(int mode) { hostMode_ = mode; }
    void setIdentity(const vlk::IdentityInfo& info);
    void setPaths(const vlk::Paths& paths);
    void setTexts(const vlk::OfferedTexts& texts) { texts_ = texts; }
    void attach(const vlk::ConnectInfo& info);
    void detach();
    void openConfiguration(const vlk::OpenRequest& request);
    void openTelemetry(const QString& configurationPath);
    void showStoredFile(const QString& path, std::int32_t kind);
    void retranslate();
    void closeWindows();
    void confirmWrite(const vlk::WriteConfirmation& told);
    bool hasTakenOver() const;

    // Null until the first message that opens them.
    VLK_Widget_Config* configDialog() const { return configDialog_; }
    VLK_Widget_Tmi_View* telemetryView() const { return telemetryView_; }
    VLK_Widget_Tmi_View* ensureTelemetryView();

private:
    void endGrowth();
    VLK_Widget_Tmi_Page* browser();
    VLK_Widget_Tmi_Table* recordsWindow();
    VLK_Form_IO_Progress* progressForm_ = nullptr;
    VLK_Form_Param_About* aboutForm_ = nullptr;
    QString pathTmi_;
    QString pathXml_;
    QString pathThird_;
    QString pathFourth_;
    vlk::OfferedTexts texts_;
    vlk::LibraryInfo libraryInfo_{};
    vlk::HostCallback hostCallback_ = nullptr;
    int liveOwner_ = 0;
    QString vendorText_;
    bool connected_ = false;
    QString trackerText1_;
    QString trackerText2_;
    quint64 trackerMask_ = 0;
    VLK_Widget_Config* configDialog_ = nullptr;
    VLK_Widget_Tmi_View* telemetryView_ = nullptr;
    VLK_Widget_Tmi_Page* tmiPage_ = nullptr;
    VLK_Widget_Tmi_Table* tmiTable_ = nullptr;
    int hostMode_ = 0;
    bool confirmsWrites_ = false;
    char balanceUssd_[vlk::kBalanceUssdSize] = {};
};
