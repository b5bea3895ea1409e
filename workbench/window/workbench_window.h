#pragma once

// The main window: the device, the recent files, and beside them the message log, the last write report and
// the simulated tracker; above them the commands.

#include "window/commands.h"
#include "window/help_viewer.h"
#include "window/host_session.h"
#include "window/key_texts.h"
#include "window/message_log_model.h"
#include "window/settings.h"

#include <QMainWindow>
#include <QPointer>

class DataFolder;
class DevicePanel;
class Languages;
class MessageLogView;
class QComboBox;
class QTabWidget;
class RecentFiles;
class TrackerPanel;
class WriteReportView;

class WorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    WorkbenchWindow(const DataFolder& folder, Settings& settings, Languages& languages);
    ~WorkbenchWindow() override;

    // Loads the plug-in and attaches the tracker. False, with a text in the window, when there is no plug-in.
    bool start(const QString& pluginPath);

    HostSession& session() { return session_; }

    void setLanguage(const QString& code);
    void setMode(int mode);
    // A configuration opens in the configuration window, telemetry in this one.
    void openFile(const QString& path, TelemetryWindow window = TelemetryWindow::Browser);
    void showHelp(const QString& page);
    void showMessage(const QString& text);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildPanels();
    void buildMenus();
    void buildToolBar();
    void connectCommands();
    void retranslate();
    void restoreLayout();

    bool fullWindow() const;
    // What the tracker is asked for; says so when it gives nothing.
    void ask(bool answered);
    void chooseAndShow(TelemetryWindow window);
    void showStored(const QString& path, TelemetryWindow window);
    void chooseFolders();
    void applyFolders();
    void showBalance();
    void about();
    void showReport(const tracker::WriteReport& report);
    void updateCommands();
    void warn(const QString& text);

    const DataFolder& folder_;
    Settings& settings_;
    Languages& languages_;
    KeyTexts texts_;
    HostSession session_;
    MessageLogModel log_;
    Commands commands_;
    HelpPages helpPages_;
    QPointer<HelpViewer> help_;
    DevicePanel* device_;
    RecentFiles* recent_;
    QTabWidget* tabs_;
    MessageLogView* logView_;
    WriteReportView* reportView_;
    TrackerPanel* trackerPanel_;
    QComboBox* windowChoice_;
};
