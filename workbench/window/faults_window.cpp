#include "window/faults_window.h"

#include "window/faults_panel.h"
#include "window/scrolling.h"

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vlk {

FaultsWindow::FaultsWindow(tracker::SimulatedTracker& tracker, QWidget* owner)
    : QDialog(owner, Qt::Tool | Qt::WindowCloseButtonHint | Qt::WindowDoesNotAcceptFocus),
      panel_(new FaultsPanel(tracker)), trouble_(new QLabel(this))
{
    setObjectName(QStringLiteral("dialog_Faults"));
    setModal(false);
    // The window beside it keeps the keyboard: what it measures live ends when it is no longer the active
    // one.
    setAttribute(Qt::WA_ShowWithoutActivating);
    texts_.bind(this, "wb_faults_title");
    trouble_->setObjectName(QStringLiteral("label_FaultsTrouble"));
    trouble_->setWordWrap(true);
    trouble_->hide();
    auto* column = new QVBoxLayout(this);
    column->addWidget(vlk::scrolling(panel_), 1);
    column->addWidget(trouble_);
    vlk::resizeWithin(this, sizeHint());
}

void FaultsWindow::setTrouble(const QString& text)
{
    trouble_->setText(text);
    trouble_->setVisible(!text.isEmpty());
}

void FaultsWindow::retranslate()
{
    texts_.apply();
    panel_->retranslate();
}

bool FaultsWindow::fitsBeside(const QWidget& window) const
{
    const QScreen* screen = window.screen();
    return screen && screen->availableGeometry().right() - window.frameGeometry().right() >= width();
}

void FaultsWindow::place()
{
    const QWidget& owner = *parentWidget();
    const QRect room = owner.screen() ? owner.screen()->availableGeometry() : owner.frameGeometry();
    const QRect beside = owner.frameGeometry();
    if (fitsBeside(owner))
        move(beside.right() + 1, beside.top());
    else
        move(room.right() - width(), room.bottom() - height());
}

} // namespace vlk
