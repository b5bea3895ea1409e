#include "window/command_bars.h"

#include "typing/grid.h"
#include "window/settings.h"

#include <QActionGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace workbench {

namespace {

struct LanguageRow
{
    const char* code;
    const char* name; // in the language itself
};

constexpr LanguageRow kLanguageRows[] = {{"ru", "Русский"}, {"en", "English"}};

constexpr const char* kAppearanceKeys[] = {"wb_appearance_system", "wb_appearance_light",
                                           "wb_appearance_dark"};

} // namespace

CommandBars::CommandBars(QMainWindow* window, Commands& commands, Settings& settings,
                         const Languages& languages, QMenu* recentFiles)
    : QObject(window), window_(window), commands_(commands), settings_(settings), languages_(languages),
      languageChoice_(new QActionGroup(this))
{
    buildMenus(recentFiles);
    buildToolBar();
}

void CommandBars::buildMenus(QMenu* recentFiles)
{
    const auto addMenu = [this](const char* key, std::initializer_list<Command> commands) {
        QMenu* menu = texts_.bind(window_->menuBar()->addMenu(QString()), key);
        for (const Command command : commands)
            menu->addAction(commands_[command]);
        return menu;
    };
    QMenu* configuration = addMenu("wb_menu_configuration",
                                   {Command::ReadTracker, Command::OpenFile, Command::NewConfiguration});
    configuration->addMenu(recentFiles);
    configuration->addSeparator();
    configuration->addAction(commands_[Command::History]);
    configuration->addAction(commands_[Command::Previous]);
    configuration->addSeparator();
    configuration->addAction(commands_[Command::BalanceCode]);
    configuration->addSeparator();
    configuration->addAction(commands_[Command::Quit]);
    addMenu("wb_menu_telemetry", {Command::LiveTelemetry, Command::BrowseFile, Command::TableFile});
    QMenu* tools = addMenu("wb_menu_tools", {Command::Cable, Command::Faults, Command::DataFolders});
    buildReviewChoice(tools);
    buildLanguages(texts_.bind(tools->addMenu(QString()), "wb_language"));
    buildAppearances(texts_.bind(tools->addMenu(QString()), "wb_appearance"));
    addMenu("wb_menu_help", {Command::Help, Command::About});
}

// The review has it too, but does not come any more once it is turned off.
void CommandBars::buildReviewChoice(QMenu* menu)
{
    QAction* action = texts_.bind(menu->addAction(QString()), "wb_review_menu");
    action->setObjectName(QStringLiteral("action_ReviewAlways"));
    action->setCheckable(true);
    const auto show = [this, action] { action->setChecked(settings_.reviewAlways()); };
    connect(menu, &QMenu::aboutToShow, action, show);
    connect(action, &QAction::triggered, this, [this, show] {
        settings_.setReviewAlways(!settings_.reviewAlways());
        show();
    });
    show();
}

// In the menu, and by their own names in the corner, where nobody has to read another language to find them.
void CommandBars::buildLanguages(QMenu* menu)
{
    menu->setToolTipsVisible(true);
    auto* corner = new QWidget(window_);
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, vlk::grid::kWindow, 0);
    row->setSpacing(0);
    window_->menuBar()->setCornerWidget(corner);
    for (const LanguageRow& language : kLanguageRows) {
        QAction* action = menu->addAction(QString::fromUtf8(language.name));
        action->setCheckable(true);
        action->setActionGroup(languageChoice_);
        const QString code = QLatin1String(language.code);
        action->setObjectName(QStringLiteral("action_Language_") + code);
        auto* button = new QToolButton(corner);
        button->setObjectName(QStringLiteral("toolButton_Language_") + code);
        button->setAutoRaise(true);
        button->setDefaultAction(action);
        row->addWidget(button);
        connect(action, &QAction::triggered, this, [this, code] { Q_EMIT languageChosen(code); });
        texts_.bind([this, action, code] { action->setChecked(languages_.current() == code); });
    }
    texts_.bind([this] { setLanguagesOffered(languageChoice_->isEnabled()); });
}

void CommandBars::buildAppearances(QMenu* menu)
{
    auto* choice = new QActionGroup(menu);
    for (const Appearance appearance : {Appearance::System, Appearance::Light, Appearance::Dark}) {
        QAction* action =
            texts_.bind(menu->addAction(QString()), kAppearanceKeys[static_cast<int>(appearance)]);
        action->setObjectName(QStringLiteral("action_Appearance_%1").arg(static_cast<int>(appearance)));
        action->setCheckable(true);
        action->setActionGroup(choice);
        action->setChecked(settings_.appearance() == appearance);
        connect(action, &QAction::triggered, this, [this, appearance] {
            settings_.setAppearance(appearance);
            apply(appearance);
        });
    }
}

void CommandBars::setLanguagesOffered(bool offered)
{
    languageChoice_->setEnabled(offered);
    const QString why = offered ? QString() : text("wb_language_later");
    for (QAction* action : languageChoice_->actions()) {
        action->setToolTip(why);
        action->setStatusTip(why);
    }
}

void CommandBars::buildToolBar()
{
    auto* bar = new QToolBar(window_);
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
    bar->addWidget(buildWindowChoice());
    bar->addSeparator();
    add({Command::LiveTelemetry, Command::BrowseFile, Command::TableFile});
    add({Command::Cable});
    bar->addAction(commands_[Command::Help]);
    window_->addToolBar(bar);
}

QComboBox* CommandBars::buildWindowChoice()
{
    auto* choice = new QComboBox(window_);
    choice->setObjectName(QStringLiteral("comboBox_Window"));
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    choice->addItems({QString(), QString()});
    texts_.bind([choice] {
        choice->setItemText(0, text("wb_window_full"));
        choice->setItemText(1, text("wb_window_quick"));
        choice->setToolTip(text("wb_window"));
        choice->setAccessibleName(text("wb_window"));
    });
    choice->setCurrentIndex(settings_.fullWindow() ? 0 : 1);
    connect(choice, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { settings_.setFullWindow(index == 0); });
    return choice;
}

} // namespace workbench
