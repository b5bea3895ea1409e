#include "window/commands.h"

#include "window/languages.h"
#include "window/line_icon.h"

#include <QWidget>

namespace workbench {

namespace {

struct CommandRow
{
    Command command;
    const char* name;
    const char* icon;
    const char* key;
    const char* shortKey;
    const char* shortcut;
};

constexpr CommandRow kCommandRows[] = {
    {Command::ReadTracker, "action_Read", "read", "wb_read", "wb_read_short", "Ctrl+R"},
    {Command::OpenFile, "action_Open", "open", "wb_open", "wb_open_short", "Ctrl+O"},
    {Command::NewConfiguration, "action_New", "new", "wb_new", "wb_new_short", "Ctrl+N"},
    {Command::History, "action_History", "history", "wb_history_menu", "wb_history", "Ctrl+H"},
    {Command::Previous, "action_Previous", "previous", "wb_previous", "wb_previous", ""},
    {Command::LiveTelemetry, "action_Telemetry", "telemetry", "wb_telemetry", "wb_telemetry_short", "Ctrl+T"},
    {Command::BrowseFile, "action_Browse", "browse", "wb_browse", "wb_browse_short", "Ctrl+B"},
    {Command::TableFile, "action_Table", "table", "wb_table", "wb_table_short", "Ctrl+L"},
    {Command::Cable, "action_Cable", "attach", "wb_cable", "wb_cable_short", "Ctrl+K"},
    {Command::Faults, "action_Faults", "faults", "wb_faults_window", "wb_faults_window", "F9"},
    {Command::DataFolders, "action_Folders", "folders", "wb_folders_menu", "wb_folders", ""},
    {Command::BalanceCode, "action_Balance", "balance", "wb_balance", "wb_balance", ""},
    {Command::Help, "action_Help", "help", "wb_help_menu", "wb_help", "F1"},
    {Command::About, "action_About", "about", "wb_about", "wb_about", ""},
    {Command::Quit, "action_Quit", "quit", "wb_quit", "wb_quit", "Ctrl+Q"},
};
static_assert(std::size(kCommandRows) == static_cast<std::size_t>(Command::Count));

} // namespace

Commands::Commands(QWidget* parent)
{
    for (const CommandRow& row : kCommandRows) {
        auto* action = new QAction(lineIcon(QLatin1String(row.icon)), {}, parent);
        action->setObjectName(QLatin1String(row.name));
        action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
        actions_[static_cast<std::size_t>(row.command)] = action;
    }
    (*this)[Command::Cable]->setCheckable(true);
    (*this)[Command::Quit]->setMenuRole(QAction::QuitRole);
    (*this)[Command::About]->setMenuRole(QAction::AboutRole);
    retranslate();
}

void Commands::retranslate()
{
    for (const CommandRow& row : kCommandRows) {
        QAction* action = (*this)[row.command];
        action->setText(text(row.key));
        action->setIconText(plainText(row.shortKey));
        QString tip = plainText(row.key).remove(QStringLiteral("…"));
        if (!action->shortcut().isEmpty())
            tip += QStringLiteral(" (%1)").arg(action->shortcut().toString(QKeySequence::NativeText));
        action->setToolTip(tip);
    }
}

} // namespace workbench
