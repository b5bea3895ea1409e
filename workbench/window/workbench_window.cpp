#include "window/workbench_window.h"

#include "window/data_folder.h"
#include "window/device_panel.h"
#include "window/folders_dialog.h"
#include "window/installed_files.h"
#include "window/message_log_view.h"
#include "window/recent_files.h"
#include "window/stored_file.h"
#include "window/tracker_panel.h"
#include "window/write_report_text.h"
#include "window/write_report_view.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int leftWidth = 290;

struct LanguageRow
{
    const char* code;
    const char* name; // in the language itself
};

constexpr LanguageRow languageRows[] = {{"ru", "Русский"}, {"en", "English"}};

} // namespace

WorkbenchWindow::WorkbenchWindow(const DataFolder& folder, Settings& settings, Languages& languages)
    : folder_(folder), settings_(settings), languages_(languages), session_(folder.trackerFolder()),
      commands_(this), helpPages_(vlk::sharedFolder(QStringLiteral("help"))),
      device_(new DevicePanel(session_, this)), recent_(new RecentFiles(settings, this)),
      tabs_(new QTabWidget(this)), logView_(new MessageLogView(&log_, this)),
      reportView_(new WriteReportView(this)), trackerPanel_(new TrackerPanel(session_.tracker(), this)),
      windowChoice_(new QComboBox(this))
{
    setObjectName(QStringLiteral("WorkbenchWindow"));
    setAcceptDrops(true);
    connect(&session_.link(), &PluginLink::passed, &log_, &MessageLogModel::append);
    connect(&session_, &HostSession::helpRequested, this, &WorkbenchWindow::showHelp);
    connect(&session_, &HostSession::configurationWritten, this, &WorkbenchWindow::showReport);
    connect(&session_.tracker(), &tracker::SimulatedTracker::attachedChanged, this,
            &WorkbenchWindow::updateCommands);
    connect(device_, &DevicePanel::modeChosen, this, &WorkbenchWindow::setMode);
    connect(recent_, &RecentFiles::chosen, this, [this](const QString& path, TelemetryWindow window) {
        if (session_.link().isLoaded())
            openFile(path, window);
    });

    buildPanels();
    buildMenus();
    buildToolBar();
    connectCommands();
    texts_.bind(static_cast<QWidget*>(this), "wb_title");
    device_->setMode(settings_.mode());
    updateCommands();
    restoreLayout();
}

WorkbenchWindow::~WorkbenchWindow()
{
    delete help_;
}

void WorkbenchWindow::buildPanels()
{
    auto* left = new QWidget(this);
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins(0, 0, 0, 0);
    leftLayout->addWidget(device_);
    leftLayout->addWidget(recent_, 1);

    tabs_->setObjectName(QStringLiteral("tabWidget_Main"));
    for (QWidget* page : {static_cast<QWidget*>(logView_), static_cast<QWidget*>(reportView_),
                          static_cast<QWidget*>(trackerPanel_)})
        tabs_->addTab(page, QString());
    texts_.bind([this] {
        int index = 0;
        for (const char* key : {"wb_tab_log", "wb_tab_report", "wb_tab_tracker"})
            tabs_->setTabText(index++, vlk::text(key));
    });

    auto* splitter = new QSplitter(this);
    splitter->setObjectName(QStringLiteral("splitter_Main"));
    splitter->addWidget(left);
    splitter->addWidget(tabs_);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto* frame = new QWidget(this);
    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(splitter);
    setCentralWidget(frame);
}

void WorkbenchWindow::buildMenus()
{
    const auto addMenu = [this](const char* key, std::initializer_list<Command> commands) {
        QMenu* menu = texts_.bind(menuBar()->addMenu(QString()), key);
        for (const Command command : commands)
            menu->addAction(commands_[command]);
        return menu;
    };
    QMenu* configuration = addMenu("wb_menu_configuration",
                                   {Command::ReadTracker, Command::OpenFile, Command::NewConfiguration});
    configuration->addMenu(recent_->menu());
    configuration->addSeparator();
    configuration->addAction(commands_[Command::BalanceCode]);
    configuration->addSeparator();
    configuration->addAction(commands_[Command::Quit]);
    addMenu("wb_menu_telemetry", {Command::LiveTelemetry, Command::BrowseFile, Command::TableFile});
    QMenu* tools = addMenu("wb_menu_tools", {Command::Cable, Command::DataFolders});
    QMenu* language = texts_.bind(tools->addMenu(QString()), "wb_language");
    auto* group = new QActionGroup(this);
    for (const LanguageRow& row : languageRows) {
        QAction* action = language->addAction(QString::fromUtf8(row.name));
        action->setCheckable(true);
        action->setActionGroup(group);
        const QString code = QLatin1String(row.code);
        action->setObjectName(QStringLiteral("action_Language_") + code);
        connect(action, &QAction::triggered, this, [this, code] { setLanguage(code); });
        texts_.bind([this, action, code] { action->setChecked(languages_.current() == code); });
    }
    addMenu("wb_menu_help", {Command::Help, Command::About});
}

void WorkbenchWindow::buildToolBar()
{
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolBar_Main"));
    texts_.bind(static_cast<QWidget*>(bar), "wb_toolbar");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto add = [&](std::initializer_list<Command> commands) {
        for (const Command command : commands)
            bar->addAction(commands_[command]);
        bar->addSeparator();
    };
    add({Command::ReadTracker, Command::OpenFile, Command::NewConfiguration});

    windowChoice_->setObjectName(QStringLiteral("comboBox_Window"));
    windowChoice_->addItems({QString(), QString()});
    texts_.bind([this] {
        windowChoice_->setItemText(0, vlk::text("wb_window_full"));
        windowChoice_->setItemText(1, vlk::text("wb_window_quick"));
        windowChoice_->setToolTip(vlk::text("wb_window"));
        windowChoice_->setAccessibleName(vlk::text("wb_window"));
    });
    windowChoice_->setCurrentIndex(settings_.fullWindow() ? 0 : 1);
    connect(windowChoice_, QOverload<int>::of(&QComboBox::activated), this,
            [this] { settings_.setFullWindow(fullWindow()); });
    bar->addWidget(windowChoice_);
    bar->addSeparator();

    add({Command::LiveTelemetry, Command::BrowseFile, Command::TableFile});
    add({Command::Cable});
    bar->addAction(commands_[Command::Help]);
    addToolBar(bar);
}

void WorkbenchWindow::connectCommands()
{
    const auto on = [this](Command command, auto act) {
        connect(commands_[command], &QAction::triggered, this, act);
    };
    on(Command::ReadTracker, [this] { ask(session_.readConfiguration(fullWindow())); });
    on(Command::OpenFile, [this] {
        const QString path =
            QFileDialog::getOpenFileName(this, vlk::text("wb_open_caption"), settings_.configurationFolder(),
                                         vlk::text("wb_type_configuration") + QStringLiteral(" (*.xml)"));
        if (!path.isEmpty())
            openFile(path);
    });
    on(Command::NewConfiguration, [this] { session_.newConfiguration(fullWindow()); });
    on(Command::LiveTelemetry, [this] { ask(session_.liveTelemetry()); });
    on(Command::BrowseFile, [this] { chooseAndShow(TelemetryWindow::Browser); });
    on(Command::TableFile, [this] { chooseAndShow(TelemetryWindow::Table); });
    on(Command::Cable,
       [this](bool attach) { attach ? session_.tracker().attach() : session_.tracker().detach(); });
    on(Command::DataFolders, [this] { chooseFolders(); });
    on(Command::BalanceCode, [this] { showBalance(); });
    on(Command::Help, [this] { showHelp(HelpPages::indexPage()); });
    on(Command::About, [this] { about(); });
    on(Command::Quit, [this] { close(); });
}

bool WorkbenchWindow::start(const QString& pluginPath)
{
    const bool loaded = session_.start(pluginPath);
    if (loaded) {
        applyFolders();
        session_.link().setMode(settings_.mode());
        session_.tracker().attach();
        showMessage(vlk::text("wb_ready"));
    } else {
        showMessage(session_.link().error());
    }
    device_->refresh();
    updateCommands();
    return loaded;
}

void WorkbenchWindow::updateCommands()
{
    const bool loaded = session_.link().isLoaded();
    const bool attached = session_.tracker().attached();
    for (const Command command : {Command::OpenFile, Command::NewConfiguration, Command::BrowseFile,
                                  Command::TableFile, Command::BalanceCode})
        commands_[command]->setEnabled(loaded);
    for (const Command command : {Command::ReadTracker, Command::LiveTelemetry})
        commands_[command]->setEnabled(loaded && attached);
    commands_[Command::Cable]->setChecked(attached);
}

bool WorkbenchWindow::fullWindow() const
{
    return windowChoice_->currentIndex() == 0;
}

void WorkbenchWindow::ask(bool answered)
{
    if (!answered)
        warn(vlk::text("wb_read_failed"));
}

void WorkbenchWindow::openFile(const QString& path, TelemetryWindow window)
{
    if (!QFileInfo(path).isFile()) {
        recent_->remove(path);
        warn(vlk::text("wb_file_missing").arg(path));
        return;
    }
    switch (vlk::storedFileKind(path)) {
    case StoredFile::Configuration:
        recent_->add(path, window);
        session_.openConfiguration(path, fullWindow());
        break;
    case StoredFile::Telemetry:
        showStored(path, window);
        break;
    case StoredFile::Unknown:
        warn(vlk::text("wb_file_unknown").arg(path));
        break;
    }
}

void WorkbenchWindow::chooseAndShow(TelemetryWindow window)
{
    const QString path =
        QFileDialog::getOpenFileName(this, vlk::text("wb_browse_caption"), settings_.telemetryFolder(),
                                     vlk::text("wb_type_telemetry") + QStringLiteral(" (*.xml *.tmi)"));
    if (!path.isEmpty())
        showStored(path, window);
}

void WorkbenchWindow::showStored(const QString& path, TelemetryWindow window)
{
    recent_->add(path, window);
    session_.link().showStoredFile(path, static_cast<int>(window));
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
    const auto orOwn = [](const QString& chosen, const QString& own) {
        return !chosen.isEmpty() && QDir().mkpath(chosen) ? chosen : own;
    };
    settings_.setFolders(orOwn(settings_.telemetryFolder(), folder_.telemetryFolder()),
                         orOwn(settings_.configurationFolder(), folder_.configurationFolder()));
    session_.link().setPaths(settings_.telemetryFolder(), settings_.configurationFolder());
}

void WorkbenchWindow::setMode(int mode)
{
    settings_.setMode(mode);
    device_->setMode(mode);
    session_.link().setMode(mode);
}

void WorkbenchWindow::setLanguage(const QString& code)
{
    if (code == languages_.current())
        return;
    if (!languages_.set(code)) {
        warn(vlk::text("wb_language_missing").arg(code));
        return;
    }
    settings_.setLanguage(code);
    session_.link().send(vlk::Message::LanguageChanged);
}

void WorkbenchWindow::showBalance()
{
    const QString code = session_.link().balanceCode();
    QMessageBox::information(this, vlk::text("wb_balance"),
                             code.isEmpty() ? vlk::text("wb_balance_none")
                                            : vlk::text("wb_balance_code").arg(code.toHtmlEscaped()));
}

void WorkbenchWindow::about()
{
    const PluginLink& link = session_.link();
    QMessageBox::about(
        this, vlk::text("wb_about"),
        QStringLiteral("<h3>%1 %2</h3><p>%3</p><p>%4</p>")
            .arg(vlk::text("wb_title"), QCoreApplication::applicationVersion(),
                 link.isLoaded() ? vlk::text("wb_about_plugin").arg(link.displayName(), link.version())
                                 : link.error().toHtmlEscaped(),
                 vlk::text("wb_about_data").arg(QDir::toNativeSeparators(folder_.path()).toHtmlEscaped())));
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

void WorkbenchWindow::showReport(const tracker::WriteReport& report)
{
    reportView_->setReport(report);
    tabs_->setCurrentWidget(reportView_);
    showMessage(vlk::summary(report).section(QLatin1Char('\n'), 0, 0));
    if (QWidget* modal = QApplication::activeModalWidget())
        WriteReportView::showDialog(report, modal);
}

void WorkbenchWindow::showMessage(const QString& text)
{
    statusBar()->showMessage(text);
}

void WorkbenchWindow::warn(const QString& text)
{
    showMessage(text);
    QMessageBox box(QMessageBox::Warning, vlk::text("wb_title"), text, QMessageBox::Ok, this);
    box.exec();
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
    device_->retranslate();
    recent_->retranslate();
    logView_->retranslate();
    reportView_->retranslate();
    trackerPanel_->retranslate();
    if (help_)
        help_->setLanguage(languages_.current());
    showMessage(session_.link().isLoaded() ? vlk::text("wb_ready") : session_.link().error());
}

void WorkbenchWindow::restoreLayout()
{
    statusBar()->setSizeGripEnabled(false);
    resize(1024, 600);
    restoreGeometry(settings_.layout(objectName()));
    auto* splitter = findChild<QSplitter*>(QStringLiteral("splitter_Main"));
    splitter->setSizes({leftWidth, width() - leftWidth});
    splitter->restoreState(settings_.layout(splitter->objectName()));
}

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    settings_.setLayout(objectName(), saveGeometry());
    const auto* splitter = findChild<QSplitter*>(QStringLiteral("splitter_Main"));
    settings_.setLayout(splitter->objectName(), splitter->saveState());
    session_.link().send(vlk::Message::CloseWindows);
    event->accept();
}

void WorkbenchWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls() && session_.link().isLoaded())
        event->acceptProposedAction();
}

void WorkbenchWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) {
            openFile(url.toLocalFile());
            return;
        }
}
