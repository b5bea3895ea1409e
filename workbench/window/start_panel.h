#pragma once

// What there is to do in an empty window: read the tracker, open a file, look at the simulated tracker, each
// with a line on what comes of it. Enter does the one that has the focus: at first reading, without a tracker
// opening.

#include "window/commands.h"
#include "window/key_texts.h"

#include <QWidget>

class QCommandLinkButton;

namespace workbench {

class HostSession;

class StartPanel : public QWidget
{
    Q_OBJECT

public:
    StartPanel(HostSession& session, const Commands& commands, QWidget* parent = nullptr);

    void takeFocus();
    void retranslate() { texts_.apply(); }

private:
    QCommandLinkButton* addLine(const char* name, const char* icon, const char* key);
    void refresh();

    HostSession& session_;
    const Commands& commands_;
    KeyTexts texts_;
    QCommandLinkButton* read_;
    QCommandLinkButton* open_;
    QCommandLinkButton* look_;
};

} // namespace workbench
