#include "window/workbench_window.h"

#include "check/plugin_names.h"
#include "typing/notice_bar.h"
#include "typing/title_style.h"
#include "window/command_bars.h"
#include "window/data_folder.h"
#include "window/device_panel.h"
#include "window/faults_at_hand.h"
#include "window/file_notices.h"
#include "window/file_opener.h"
#include "window/folders_dialog.h"
#include "window/history_window.h"
#include "window/installed_files.h"
#include "window/link_notices.h"
#include "window/message_box.h"
#include "window/message_log_view.h"
#include "window/recent_files.h"
#include "window/road_windows.h"
#include "window/save_notices.h"
#include "window/scrolling.h"
#include "window/start_panel.h"
#include "window/status_line.h"
#include "window/tracker_panel.h"
#include "window/trouble_text.h"
#include "window/used_folders.h"
#include "window/write_report_text.h"
#include "window/write_report_view.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace workbench {

namespace {

enum Tab { StartTab, ReportTab, TrackerTab, LogTab };
constexpr const char* kTabKeys[] = {"wb_tab_start", "wb_tab_report", "wb_tab_tracker", "wb_tab_log"};
constexpr int kLeftWidth = 290;
const QString kCommandQuestion = QStringLiteral("messageBox_Command");
constexpr QSize kUsualSize(1024, 600);

} // namespace

WorkbenchWindow::WorkbenchWindow(const DataFolder& folder, Settings& settings, Languages& languages)
    : folder_(folder), settings_(settings), languages_(languages),
      session_(folder.trackerFolder(), folder.backupsFolder()), windows_(this), commands_(this),
      helpPages_(sharedFolder(QStringLiteral("help"))),
      status_(new StatusLine(statusBar(), [this] { return lasting(); })),
      device_(new DevicePanel(session_, this)), recent_(new RecentFiles(settings, this)),
      opener_(new FileOpener(session_, settings, *recent_, this)),
      bars_(new CommandBars(this, commands_, settings, languages, recent_->menu())),
      bar_(new vlk::NoticeBar(this)), splitter_(new QSplitter(this)), tabs_(new QTabWidget(this)),
      start_(new StartPanel(session_, commands_, this)), logView_(new MessageLogView(&log_, this)),
      reportView_(new WriteReportView(session_, this)),
      trackerPanel_(new TrackerPanel(session_.tracker(), this)),
      road_(new RoadWindows(session_, settings, this))
{
    setObjectName(QStringLiteral("WorkbenchWindow"));
    setAcceptDrops(true);
    buildPanels();
    connectCommands();
    connectSession();
    connectNotices();
    session_.keepFor(settings_.backupDays());
    showEdited();
    device_->setMode(settings_.mode());
    updateCommands();
    restoreLayout();
}

WorkbenchWindow::~WorkbenchWindow()
{
    delete help_;
    session_.link().withdrawTexts();
}

void WorkbenchWindow::buildPanels()
{
    auto* left = new QWidget;
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins(0, 0, 0, 0);
    leftLayout->addWidget(device_);
    leftLayout->addWidget(recent_, 1);

    tabs_->setObjectName(QStringLiteral("tabWidget_Main"));
    for (QWidget* page : {static_cast<QWidget*>(start_), static_cast<QWidget*>(reportView_),
                          static_cast<QWidget*>(trackerPanel_), static_cast<QWidget*>(logView_)})
        tabs_->addTab(scrolling(page), QString());
    texts_.bind([this] {
        for (const Tab tab : {StartTab, ReportTab, TrackerTab, LogTab})
            tabs_->setTabText(tab, text(kTabKeys[tab]));
    });

    splitter_->setObjectName(QStringLiteral("splitter_Main"));
    splitter_->addWidget(scrolling(left));
    splitter_->addWidget(tabs_);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    auto* frame = new QWidget(this);
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(bar_);
    frameLayout->addWidget(splitter_);
    texts_.bind([this] { bar_->retranslate(); });
    setCentralWidget(frame);
    vlk::dressGroups(frame);
}

void WorkbenchWindow::connectCommands()
{
    const auto on = [this](Command command, auto act) {
        connect(commands_[command], &QAction::triggered, this, act);
    };
    on(Command::ReadTracker, [this] { tellOpened(session_.readConfiguration(settings_.fullWindow())); });
    on(Command::OpenFile, [this] { opener_->chooseConfiguration(); });
    on(Command::NewConfiguration, [this] {
        session_.newConfiguration(settings_.fullWindow());
        tellOpened({});
    });
    on(Command::History, [this] { showHistory(); });
    on(Command::Previous, [this] { tellOpened(session_.bringBackPrevious()); });
    on(Command::LiveTelemetry, [this] { tellOpened(session_.liveTelemetry()); });
    on(Command::BrowseFile, [this] { opener_->chooseTelemetry(TelemetryWindow::Browser); });
    on(Command::TableFile, [this] { opener_->chooseTelemetry(TelemetryWindow::Table); });
    on(Command::Cable,
       [this](bool attach) { attach ? session_.tracker().attach() : session_.tracker().detach(); });
    on(Command::Faults, [this] { faults_->toggle(); });
    on(Command::DataFolders, [this] { chooseFolders(); });
    on(Command::BalanceCode, [this] { showBalance(); });
    on(Command::Help, [this] { showHelp(HelpPages::indexPage()); });
    on(Command::About, [this] { about(); });
    on(Command::Quit, [this] { close(); });
    connect(bars_, &CommandBars::languageChosen, this, &WorkbenchWindow::setLanguage);
    connect(device_, &DevicePanel::modeChosen, this, &WorkbenchWindow::setMode);
    connect(recent_, &RecentFiles::chosen, this, [this](const QString& path, TelemetryWindow window) {
        if (session_.link().isLoaded())
            openFile(path, window);
    });
    connect(opener_, &FileOpener::failed, this, &WorkbenchWindow::tellOpened);
    connect(opener_, &FileOpener::opened, this, [this] { tellOpened({}); });
}

void WorkbenchWindow::connectSession()
{
    // Before all that looks at a message: they mark it in the log.
    connect(&session_.link(), &PluginLink::passed, &log_, &MessageLogModel::append);
    connect(&session_, &HostSession::helpRequested, this, &WorkbenchWindow::showHelp);
    connect(&session_.road(), &WriteRoad::ended, this, &WorkbenchWindow::showReport);
    connect(&session_.road(), &WriteRoad::settled, this, [this](const RoadReport& report) {
        reportView_->setReport(report);
        tabs_->setCurrentIndex(ReportTab);
    });
    connect(&session_.road(), &WriteRoad::stepChanged, this, [this](RoadReport::Step step) {
        if (step == RoadReport::Step::Writing)
            status_->tell(StatusLine::Command, [] { return text("wb_writing"); });
    });
    connect(&session_, &HostSession::writeRefused, this,
            [this] { tellOpened([] { return text("wb_write_busy"); }); });
    connect(&session_, &HostSession::editedChanged, this, &WorkbenchWindow::showEdited);
    session_.commands().setQuestion([this](const QString& text, const QString& verb) {
        return agrees(text, verb, kCommandQuestion, this);
    });
    // The tracker that is attached next may be another one.
    connect(&session_.tracker(), &tracker::SimulatedTracker::attachedChanged, this,
            [] { withdrawQuestion(kCommandQuestion); });
    // Its window is modal, and so are those that come up over it.
    connect(&windows_, &PluginWindows::closed, this, [this](const QWidget* window) {
        if (window->isModal() && !windows_.modal())
            session_.configurationClosed();
    });
    connect(&windows_, &PluginWindows::opened, this, &WorkbenchWindow::updateCommands);
    connect(&session_, &HostSession::editedChanged, this, &WorkbenchWindow::updateCommands);
    const auto* tracker = &session_.tracker();
    connect(tracker, &tracker::SimulatedTracker::attachedChanged, this, &WorkbenchWindow::updateCommands);
    // What a command failed for may be mended.
    const auto clear = [this] { status_->clear(StatusLine::Command); };
    connect(tracker, &tracker::SimulatedTracker::faultsChanged, this, clear);
    connect(tracker, &tracker::SimulatedTracker::attachedChanged, this, clear);
}

void WorkbenchWindow::connectNotices()
{
    connect(&pluginLog_, &PluginLog::warned, &log_,
            [this](PluginLog::Topic /*topic*/, const QString& category, const QString& text) {
                log_.appendWarning(category, text);
            });
    linkNotices_ = std::make_unique<LinkNotices>(pluginLog_, session_, windows_, log_, *status_, this);
    faults_ = std::make_unique<FaultsAtHand>(session_.tracker(), linkNotices_->answers(),
                                             commands_[Command::Faults]->shortcut(), this);
    saveNotices_ = std::make_unique<SaveNotices>(pluginLog_, session_, windows_, *recent_, *status_, this);
    session_.setTyped([this] { return saveNotices_->typing().lines(); });
    connect(saveNotices_.get(), &SaveNotices::asked, linkNotices_.get(), &LinkNotices::forgetDone);
    connect(saveNotices_.get(), &SaveNotices::saved, linkNotices_.get(), &LinkNotices::tellDone);
    connect(saveNotices_.get(), &SaveNotices::savedCut, linkNotices_.get(), &LinkNotices::tellToHeed);
    connect(saveNotices_.get(), &SaveNotices::ended, linkNotices_.get(), &LinkNotices::saveEnded);
    fileNotices_ = std::make_unique<FileNotices>(pluginLog_, *status_, *bar_, this);
    connect(&windows_, &PluginWindows::opened, fileNotices_.get(), [this](const QWidget* window) {
        if (window->isModal())
            fileNotices_->configurationOpened();
    });
    connect(linkNotices_.get(), &LinkNotices::troubleChanged, this, [this] {
        device_->setTrouble(linkNotices_->trouble());
        faults_->setTrouble(linkNotices_->trouble());
    });
}

bool WorkbenchWindow::start(const QString& pluginPath)
{
    const bool loaded = session_.start(pluginPath);
    if (loaded) {
        applyFolders();
        session_.link().setMode(settings_.mode());
        session_.link().offerTexts(languages_);
        session_.link().promiseConfirmations();
        session_.tracker().attach();
    } else {
        tellOfRun([this] { return session_.link().error(); });
    }
    device_->refresh();
    updateCommands();
    start_->takeFocus();
    if (loaded)
        session_.road().tellLeft();
    tellCutShort();
    return loaded;
}

void WorkbenchWindow::updateCommands()
{
    const bool loaded = session_.link().isLoaded();
    const bool attached = session_.tracker().attached();
    for (const Command command : {Command::OpenFile, Command::NewConfiguration, Command::BrowseFile,
                                  Command::TableFile, Command::BalanceCode})
        commands_[command]->setEnabled(loaded);
    for (const Command command : {Command::ReadTracker, Command::Previous, Command::LiveTelemetry})
        commands_[command]->setEnabled(loaded && attached);
    commands_[Command::Cable]->setChecked(attached);
    bars_->setLanguagesOffered(!isConfigurationOpen());
    status_->refresh();
}

QString WorkbenchWindow::lasting()
{
    const tracker::SimulatedTracker& tracker = session_.tracker();
    const QString unit = tracker.attached() ? tracker.model() + QLatin1Char(' ') + tracker.text2()
                                            : text("wb_device_detached");
    QStringList lasting{unit, text(DevicePanel::modeKey(settings_.mode()))};
    // Behind the open configuration no tool tip of theirs would show.
    if (isConfigurationOpen())
        lasting.prepend(text("wb_language_later"));
    return lasting.join(QStringLiteral("  |  "));
}

bool WorkbenchWindow::isConfigurationOpen() const
{
    return windows_.modal() && !session_.edited().name().isEmpty();
}

void WorkbenchWindow::tellOfRun(const Sentence& text)
{
    constexpr int kOfRun = 0;
    if (!text) {
        status_->clear(StatusLine::Program);
        bar_->end(kOfRun);
        return;
    }
    status_->tell(StatusLine::Program, text);
    // The line shows no more than the beginning of a long sentence.
    bar_->tell(kOfRun, [text] { return vlk::Notice{vlk::Mark::Advice, text(), {}}; });
}

void WorkbenchWindow::tellOpened(const Sentence& failure)
{
    if (!failure) {
        status_->clear(StatusLine::Command);
        return;
    }
    status_->tell(StatusLine::Command, failure);
    showWarning(failure(), this);
}

void WorkbenchWindow::openFile(const QString& path, TelemetryWindow window)
{
    opener_->open(path, window);
}

void WorkbenchWindow::chooseFolders()
{
    FoldersDialog dialog(settings_.telemetryFolder(), settings_.configurationFolder(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    settings_.setFolders(dialog.telemetry(), dialog.configurations());
    applyFolders();
}

void WorkbenchWindow::applyFolders()
{
    const std::vector<Sentence> told = useFolders(settings_, folder_, session_.link());
    const bool wasTold = std::exchange(areFoldersTold_, !told.empty());
    if (told.empty()) {
        if (wasTold)
            tellOfRun({});
        return;
    }
    tellOfRun([told] {
        QStringList lines;
        for (const Sentence& sentence : told)
            lines << sentence();
        return lines.join(QLatin1Char('\n'));
    });
}

void WorkbenchWindow::setMode(int mode)
{
    settings_.setMode(mode);
    device_->setMode(mode);
    session_.link().setMode(mode);
    status_->refresh();
}

void WorkbenchWindow::setLanguage(const QString& code)
{
    if (code == languages_.current())
        return;
    if (!languages_.set(code)) {
        tellOpened([code] { return text("wb_language_missing").arg(code); });
        return;
    }
    settings_.setLanguage(code);
    session_.link().send(vlk::Message::LanguageChanged);
}

void WorkbenchWindow::showBalance()
{
    const QString code = session_.link().balanceCode();
    QMessageBox::information(this, text("wb_balance"),
                             code.isEmpty() ? text("wb_balance_none")
                                            : text("wb_balance_code").arg(code.toHtmlEscaped()));
}

void WorkbenchWindow::about()
{
    const PluginLink& link = session_.link();
    QMessageBox::about(
        this, text("wb_about"),
        QStringLiteral("<h3>%1 %2</h3><p>%3</p><p>%4</p>")
            .arg(text("wb_title"), QCoreApplication::applicationVersion(),
                 link.isLoaded() ? text("wb_about_plugin").arg(link.displayName(), link.version())
                                 : link.error().toHtmlEscaped(),
                 text("wb_about_data").arg(QDir::toNativeSeparators(folder_.path()).toHtmlEscaped())));
}

void WorkbenchWindow::showHelp(const QString& page)
{
    // A window over a modal dialog is only usable as its child.
    QWidget* parent = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : this;
    if (help_ && help_->parentWidget() != parent)
        help_->setParent(parent, help_->windowFlags());
    if (!help_)
        help_ = new HelpViewer(helpPages_, languages_.current(), parent);
    help_->showPage(page);
}

void WorkbenchWindow::showReport(const RoadReport& report)
{
    if (report.outcome == RoadReport::Outcome::Cancelled) {
        status_->tell(StatusLine::Command, [] { return text("wb_write_cancelled"); });
        return;
    }
    // What was refused is not written with those numbers yet.
    const QString again = lookAgainText(report);
    if (!again.isEmpty())
        saveNotices_->typing().forget();
    reportView_->setReport(report);
    tabs_->setCurrentIndex(ReportTab);
    status_->tell(StatusLine::Command, [report, again] {
        const QString summary = workbench::summary(report).section(QLatin1Char('\n'), 0, 0);
        return again.isEmpty() ? summary : summary + QLatin1Char('\n') + again;
    });
    road_->showReport(report);
}

void WorkbenchWindow::showHistory()
{
    if (!history_)
        history_ = new HistoryWindow(session_, settings_, this);
    history_->show();
    history_->activateWindow();
}

void WorkbenchWindow::showEdited()
{
    const EditedConfiguration& edited = session_.edited();
    device_->setEdited(edited.text());
    const QString title = text("wb_title");
    setWindowTitle(edited.name().isEmpty() ? title : text("wb_edited_title").arg(title, edited.name()));
}

void WorkbenchWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void WorkbenchWindow::retranslate()
{
    texts_.apply();
    commands_.retranslate();
    bars_->retranslate();
    status_->refresh();
    device_->retranslate();
    recent_->retranslate();
    start_->retranslate();
    logView_->retranslate();
    reportView_->retranslate();
    trackerPanel_->retranslate();
    faults_->retranslate();
    device_->setTrouble(linkNotices_->trouble());
    faults_->setTrouble(linkNotices_->trouble());
    showEdited();
    if (help_)
        help_->setLanguage(languages_.current());
}

void WorkbenchWindow::restoreLayout()
{
    resize(kUsualSize);
    restoreGeometry(settings_.layout(objectName()));
    if (!isMaximized())
        resizeWithin(this, size());
    splitter_->setSizes({kLeftWidth, width() - kLeftWidth});
    splitter_->restoreState(settings_.layout(splitter_->objectName()));
    faults_->setLayout(settings_.layout(QLatin1String(FaultsWindow::kName)));
}

void WorkbenchWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls() && session_.link().isLoaded())
        event->acceptProposedAction();
}

void WorkbenchWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            openFile(url.toLocalFile());
            return;
        }
    }
}

} // namespace workbench
