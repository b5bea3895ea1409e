#include "window/start_panel.h"

#include "typing/grid.h"
#include "window/host_session.h"
#include "window/line_icon.h"

#include <QCommandLinkButton>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr int kWidest = 480;

} // namespace

StartPanel::StartPanel(HostSession& session, const Commands& commands, QWidget* parent)
    : QWidget(parent), session_(session), commands_(commands),
      read_(addLine("commandLink_Read", "read", "wb_start_read")),
      open_(addLine("commandLink_Open", "open", "wb_start_open")),
      look_(addLine("commandLink_Look", "attach", "wb_start_look"))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(vlk::grid::kAroundPage);
    column->setSpacing(vlk::grid::kRow);
    for (QCommandLinkButton* line : {read_, open_, look_})
        column->addWidget(line);
    column->addStretch(1);
    connect(read_, &QAbstractButton::clicked, commands_[Command::ReadTracker], &QAction::trigger);
    connect(open_, &QAbstractButton::clicked, commands_[Command::OpenFile], &QAction::trigger);
    connect(look_, &QAbstractButton::clicked, this, [this] {
        session_.tracker().attach();
        commands_[Command::LiveTelemetry]->trigger();
    });
    texts_.bind([this] { refresh(); });
    connect(&session_.tracker(), &tracker::SimulatedTracker::attachedChanged, this, &StartPanel::refresh);
    // Whether there is anything to do it with.
    for (const Command command : {Command::ReadTracker, Command::OpenFile})
        connect(commands_[command], &QAction::changed, this, &StartPanel::refresh);
}

QCommandLinkButton* StartPanel::addLine(const char* name, const char* icon, const char* key)
{
    auto* line = new QCommandLinkButton(this);
    line->setObjectName(QLatin1String(name));
    line->setIcon(lineIcon(QLatin1String(icon)));
    line->setIconSize({24, 24});
    line->setMaximumWidth(kWidest);
    // Enter does what it says.
    line->setAutoDefault(true);
    texts_.bind(line, key);
    return line;
}

void StartPanel::refresh()
{
    const tracker::SimulatedTracker& tracker = session_.tracker();
    read_->setDescription(tracker.attached() ? text("wb_start_attached").arg(tracker.model(), tracker.text2())
                                             : text("wb_start_detached"));
    open_->setDescription(text("wb_start_open_line"));
    look_->setDescription(text("wb_start_look_line"));
    read_->setEnabled(commands_[Command::ReadTracker]->isEnabled());
    open_->setEnabled(commands_[Command::OpenFile]->isEnabled());
    look_->setEnabled(commands_[Command::OpenFile]->isEnabled());
    for (QCommandLinkButton* line : {read_, open_, look_})
        line->setAccessibleDescription(line->description());
}

void StartPanel::takeFocus()
{
    (read_->isEnabled() ? read_ : open_)->setFocus();
}

} // namespace workbench
