#include "host/device_r7106.h"

#include "base/version.h"
#include "dialog/edit_keeper.h"
#include "dialog/widget_config.h"
#include "telemetry/view/widget_tmi_page.h"
#include "telemetry/view/widget_tmi_table.h"
#include "telemetry/view/widget_tmi_view.h"
#include "windows/form_io_progress.h"
#include "windows/form_param_about.h"

#include <cstring>

namespace {

// How a stored file is to be shown.
enum StoredFileKind : std::int32_t { Browser = 0, Table = 1 };

// Shows the window first, because reading a large file takes a moment.
template <class Window, class... What>
void showIn(Window* window, const What&... what)
{
    window->show();
    window->raise();
    window->activateWindow();
    window->open(what...);
}

// The record's field has 4 bytes. Where pointers are wider, it holds the low half of the address.
std::uint32_t token(const void* address)
{
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(address));
}

void copyText(char* field, std::size_t size, const QByteArray& text)
{
    std::memcpy(field, text.constData(),
                std::min<std::size_t>(size - 1, static_cast<std::size_t>(text.size())));
}

} // namespace

VLK_Device_R7106::VLK_Device_R7106() : vendorText_(QStringLiteral("VELTRONIKA"))
{
    libraryInfo_.handle = token(this);
    copyText(libraryInfo_.modelName, sizeof libraryInfo_.modelName, vlk::modelText().toUtf8());
    copyText(libraryInfo_.displayName, sizeof libraryInfo_.displayName,
             QStringLiteral("Aster R-7106").toLocal8Bit());
    libraryInfo_.versionMajor = vlk::kProgramVersion[0];
    libraryInfo_.versionMinor = vlk::kProgramVersion[1];
    libraryInfo_.versionPatch = vlk::kProgramVersion[2];
    libraryInfo_.versionFourth = vlk::kProgramVersion[3];
    libraryInfo_.interfaceValue = vlk::kInterfaceValue;
}

void VLK_Device_R7106::initialize(vlk::HostCallback callback)
{
    hostCallback_ = callback;
    vlkDevice = this;
    Q_INIT_RESOURCE(plugin);
    if (!aboutForm_)
        aboutForm_ = new VLK_Form_Param_About;
    if (!progressForm_)
        progressForm_ = new VLK_Form_IO_Progress;
}

bool VLK_Device_R7106::isHandle(const void* handle) const
{
    return handle == this || reinterpret_cast<std::uintptr_t>(handle) == libraryInfo_.handle;
}

void VLK_Device_R7106::send(vlk::Message id, void* p1, void* p2)
{
    if (hostCallback_)
        hostCallback_(this, static_cast<std::uint32_t>(id), p1, p2);
}

QString VLK_Device_R7106::tmiFolder() const
{
    return pathTmi_.isEmpty() ? QStringLiteral("./Data/TMI/") : pathTmi_;
}

QString VLK_Device_R7106::xmlFolder() const
{
    return pathXml_.isEmpty() ? QStringLiteral("./Data/XML/") : pathXml_;
}

QString VLK_Device_R7106::fileVersion() const
{
    return vlk::fileVersionText();
}

vlk::TextSource VLK_Device_R7106::textsIn(const char* language) const
{
    if (!texts_.fill)
        return {};
    return [this, language](const char* key) {
        QString text;
        if (texts_.fill)
            texts_.fill(texts_.context, language, key, &text);
        return text.isNull() ? QString::fromLatin1(key) : text;
    };
}

void VLK_Device_R7106::showHelp(const QString& page)
{
    if (page.isEmpty())
        return;
    // Always this model, whatever identity was set: the host finds the help pages by it.
    QString model = QStringLiteral("R-7106");
    QString name = page;
    send(vlk::Message::ShowHelp, &model, &name);
}

void VLK_Device_R7106::showText(const QString& title, const QString& html)
{
    if (!aboutForm_)
        return;
    aboutForm_->setTitle(title);
    aboutForm_->setHtml(html);
    aboutForm_->show();
}

void VLK_Device_R7106::setIdentity(const vlk::IdentityInfo& info)
{
    vlk::setModelText(info.model);
    vendorText_ = info.vendor;
}

void VLK_Device_R7106::setPaths(const vlk::Paths& paths)
{
    pathTmi_ = paths.pathTmi;
    if (paths.pathXml != pathXml_)
        vlk::tellKeptEdits(paths.pathXml);
    pathXml_ = paths.pathXml;
    pathThird_ = paths.pathThird;
    pathFourth_ = paths.pathFourth;
}

void VLK_Device_R7106::attach(const vlk::ConnectInfo& info)
{
    if (info.model != model()) {
        detach();
        return;
    }
    if (info.text1 != trackerText1_)
        endGrowth();
    trackerText1_ = info.text1;
    trackerText2_ = info.text2;
    trackerMask_ = static_cast<quint64>(info.maskHigh) << 32 | info.maskLow;
    connected_ = true;
    balanceUssd_[0] = '\0';
    if (configDialog_)
        configDialog_->deviceConnected();
    if (telemetryView_)
        telemetryView_->deviceConnected();
}

void VLK_Device_R7106::detach()
{
    trackerText1_.clear();
    trackerText2_.clear();
    trackerMask_ = 0;
    connected_ = false;
    balanceUssd_[0] = '\0';
    if (configDialog_)
        configDialog_->deviceDisconnected();
    if (telemetryView_)
        telemetryView_->deviceDisconnected();
    endGrowth();
}

void VLK_Device_R7106::endGrowth()
{
    if (telemetryView_)
        telemetryView_->endGrowth();
    if (tmiTable_)
        tmiTable_->endGrowth();
}

void VLK_Device_R7106::openConfiguration(const vlk::OpenRequest& request)
{
    if (!configDialog_)
        configDialog_ = new VLK_Widget_Config;
    if (connected_)
        configDialog_->deviceConnected();
    else
        configDialog_->deviceDisconnected();
    configDialog_->open(request, balanceUssd_);
}

void VLK_Device_R7106::confirmWrite(const vlk::WriteConfirmation& told)
{
    confirmsWrites_ = true;
    if (told.step == vlk::WriteConfirmation::Held && told.content && configDialog_)
        configDialog_->trackerHolds(*told.content);
    if (told.step != vlk::WriteConfirmation::Confirmed)
        return;
    if (configDialog_)
        configDialog_->confirmWritten(told.content ? *told.content : QByteArray());
    if (told.content)
        vlk::dropWrittenEdits(pathXml_, *told.content);
}

bool VLK_Device_R7106::hasTakenOver() const
{
    return configDialog_ && configDialog_->hasTakenOver();
}

void VLK_Device_R7106::openTelemetry(const QString& configurationPath)
{
    ensureTelemetryView()->open(configurationPath);
}

void VLK_Device_R7106::showStoredFile(const QString& path, std::int32_t kind)
{
    if (kind == Browser)
        showIn(browser(), path);
    else if (kind == Table)
        showIn(recordsWindow(), path);
}

VLK_Widget_Tmi_Page* VLK_Device_R7106::browser()
{
    if (!tmiPage_) {
        tmiPage_ = new VLK_Widget_Tmi_Page;
        connect(tmiPage_, &VLK_Widget_Tmi_Page::tableWanted, this, [this](const QString& path) {
            if (!path.isEmpty())
                return showIn(recordsWindow(), path);
            recordsWindow()->show();
            recordsWindow()->raise();
            recordsWindow()->activateWindow();
        });
        connect(tmiPage_, &VLK_Widget_Tmi_Page::recordShown, this, [this](const auto& contents, int record) {
            if (tmiTable_)
                tmiTable_->follow(contents, record);
        });
    }
    return tmiPage_;
}

VLK_Widget_Tmi_Table* VLK_Device_R7106::recordsWindow()
{
    if (!tmiTable_) {
        tmiTable_ = new VLK_Widget_Tmi_Table;
        connect(tmiTable_, &VLK_Widget_Tmi_Table::recordOpened, this,
                [this](const auto& contents, const QString& name, int record) {
                    showIn(browser(), contents, name, record);
                });
        connect(tmiTable_, &VLK_Widget_Tmi_Table::recordChosen, this,
                [this](const auto& contents, int record) {
                    if (tmiPage_)
                        tmiPage_->follow(contents, record);
                });
    }
    return tmiTable_;
}

VLK_Widget_Tmi_View* VLK_Device_R7106::ensureTelemetryView()
{
    if (!telemetryView_) {
        telemetryView_ = new VLK_Widget_Tmi_View;
        connect(telemetryView_, &VLK_Widget_Tmi_View::recordsWanted, this,
                [this](const auto& records, const QString& name, bool grows) {
                    using Growth = VLK_Widget_Tmi_Table::Growth;
                    showIn(recordsWindow(), records, name, grows ? Growth::Live : Growth::None);
                });
        connect(telemetryView_, &VLK_Widget_Tmi_View::recordShown, this,
                [this](const QByteArray& record, quint32 number) {
                    if (tmiTable_)
                        tmiTable_->takeLive(record, number);
                });
        connect(telemetryView_, &VLK_Widget_Tmi_View::presentShown, this,
                [this](const QByteArray& state, quint32 number) {
                    if (tmiTable_)
                        tmiTable_->takePresent(state, number);
                });
    }
    return telemetryView_;
}

void VLK_Device_R7106::retranslate()
{
    if (progressForm_)
        progressForm_->retranslate();
    if (aboutForm_)
        aboutForm_->retranslate();
    if (configDialog_)
        configDialog_->retranslate();
    if (telemetryView_)
        telemetryView_->retranslate();
    if (tmiPage_)
        tmiPage_->retranslate();
    if (tmiTable_)
        tmiTable_->retranslate();
}

void VLK_Device_R7106::closeWindows()
{
    if (configDialog_)
        configDialog_->close();
    if (telemetryView_)
        telemetryView_->closeWindows();
}
