#include "window/faults_at_hand.h"

#include "window/faults_window.h"
#include "window/message_box.h"
#include "window/plugin_windows.h"

#include <QShortcut>

namespace vlk {

FaultsAtHand::FaultsAtHand(tracker::SimulatedTracker& tracker, const PluginWindows& windows,
                           QWidget* mainWindow)
    : tracker_(tracker), windows_(windows), mainWindow_(mainWindow)
{
    // The place of a window is known when it is on the screen.
    connect(&windows_, &PluginWindows::opened, this, &FaultsAtHand::follow, Qt::QueuedConnection);
    connect(&windows_, &PluginWindows::closed, this, [this](const QWidget* window) {
        if (window_ && window_->parentWidget() == window)
            window_->hide();
    });
    connect(&windows_, &PluginWindows::closed, this, &FaultsAtHand::follow, Qt::QueuedConnection);
}

FaultsAtHand::~FaultsAtHand()
{
    // It may hang on a window of the plug-in, which outlives the tracker.
    delete window_;
}

void FaultsAtHand::follow()
{
    QWidget* modal = windows_.modal();
    if (modal == nullptr)
        return;
    const QString name = QStringLiteral("shortcut_Faults");
    if (!modal->findChild<QShortcut*>(name, Qt::FindDirectChildrenOnly)) {
        auto* key = new QShortcut(QKeySequence(shortcut()), modal);
        key->setObjectName(name);
        connect(key, &QShortcut::activated, this, &FaultsAtHand::toggle);
    }
    FaultsWindow* window = windowOf(modal);
    if (wanted_ && window->fitsBeside(*modal)) {
        window->place();
        window->show();
    }
}

FaultsWindow* FaultsAtHand::windowOf(QWidget* owner)
{
    if (!window_) {
        window_ = new FaultsWindow(tracker_, owner);
        window_->setTrouble(trouble_);
        connect(window_, &QDialog::rejected, this, [this] { wanted_ = false; });
    } else if (window_->parentWidget() != owner) {
        window_->setParent(owner, window_->windowFlags());
    }
    return window_;
}

void FaultsAtHand::toggle()
{
    QWidget* owner = vlk::windowInFront(mainWindow_);
    // With the focus in it, the window in front is itself.
    if (owner == window_)
        owner = window_->parentWidget();
    const bool show = !window_ || !window_->isVisible();
    FaultsWindow* window = windowOf(owner);
    wanted_ = show;
    if (show)
        window->place();
    window->setVisible(show);
}

void FaultsAtHand::setTrouble(const QString& text)
{
    trouble_ = text;
    if (window_)
        window_->setTrouble(text);
}

void FaultsAtHand::retranslate()
{
    if (window_)
        window_->retranslate();
}

} // namespace vlk
