#pragma once

// The commands of the workbench as actions, from one table: the same action serves menu, tool bar and
// keyboard. Each has a long text for the menu and a short one for the tool bar.

#include <QAction>

#include <array>

namespace workbench {

enum class Command {
    ReadTracker,
    OpenFile,
    NewConfiguration,
    History,
    Previous,
    LiveTelemetry,
    BrowseFile,
    TableFile,
    Cable,
    Faults,
    DataFolders,
    BalanceCode,
    Help,
    About,
    Quit,
    Count
};

class Commands
{
public:
    // The actions belong to the parent, which thereby has their keyboard shortcuts.
    explicit Commands(QWidget* parent);

    QAction* operator[](Command command) const { return actions_[static_cast<std::size_t>(command)]; }
    void retranslate();

private:
    std::array<QAction*, static_cast<std::size_t>(Command::Count)> actions_{};
};

} // namespace workbench
