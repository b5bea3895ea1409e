#pragma once

// The main window: the device, the recent files, and beside them what there is to do, the last write report,
// the simulated tracker and the message log; above them the commands.

#include "window/commands.h"
#include "window/help_viewer.h"
#include "window/host_session.h"
#include "window/key_texts.h"
#include "window/message_log_model.h"
#include "window/plugin_log.h"
#include "window/plugin_windows.h"
#include "window/sentence.h"
#include "window/settings.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

class QSplitter;
class QTabWidget;

namespace vlk {
class NoticeBar;
} // namespace vlk

namespace workbench {

class CommandBars;
class DataFolder;
class DevicePanel;
class FaultsAtHand;
class FileNotices;
class FileOpener;
class HistoryWindow;
class Languages;
class LinkNotices;
class MessageLogView;
class RecentFiles;
class RoadWindows;
class SaveNotices;
class StartPanel;
class StatusLine;
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
    // What holds for the whole run, in the status line and, until it is closed, in the bar; null when it does
    // no longer.
    void tellOfRun(const Sentence& text);
    // The user's session may end: the save of a period that runs ends as a cancel would end it.
    void endSave();
    // The program ends, whatever it has in hand and without a question.
    void leave();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildPanels();
    void connectCommands();
    void connectSession();
    void connectNotices();
    void retranslate();
    void restoreLayout();
    // What the status line says all the time.
    QString lasting();

    // The result of a command that opens a window: empty, or why it did not.
    void tellOpened(const Sentence& failure);
    void chooseFolders();
    void applyFolders();
    void showBalance();
    void about();
    bool mayClose();
    void closeWindows();
    // That the last run was ended in a save.
    void tellCutShort();
    void showReport(const RoadReport& report);
    void showHistory();
    void showEdited();
    void updateCommands();
    bool isConfigurationOpen() const;

    const DataFolder& folder_;
    Settings& settings_;
    Languages& languages_;
    KeyTexts texts_;
    HostSession session_;
    MessageLogModel log_;
    PluginLog pluginLog_;
    PluginWindows windows_;
    Commands commands_;
    HelpPages helpPages_;
    QPointer<HelpViewer> help_;
    QPointer<HistoryWindow> history_;
    StatusLine* status_;
    DevicePanel* device_;
    RecentFiles* recent_;
    FileOpener* opener_;
    CommandBars* bars_;
    vlk::NoticeBar* bar_;
    QSplitter* splitter_;
    QTabWidget* tabs_;
    StartPanel* start_;
    MessageLogView* logView_;
    WriteReportView* reportView_;
    TrackerPanel* trackerPanel_;
    std::unique_ptr<FaultsAtHand> faults_;
    std::unique_ptr<LinkNotices> linkNotices_;
    std::unique_ptr<SaveNotices> saveNotices_;
    std::unique_ptr<FileNotices> fileNotices_;
    RoadWindows* road_;
    bool areFoldersTold_ = false; // one of them cannot be used
};

} // namespace workbench
