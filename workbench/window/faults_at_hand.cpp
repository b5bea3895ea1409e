#include "window/faults_at_hand.h"

#include "window/answer_watch.h"
#include "window/message_box.h"

#include <QApplication>
#include <QDataStream>
#include <QKeyEvent>
#include <QWindow>

namespace workbench {

FaultsAtHand::FaultsAtHand(tracker::SimulatedTracker& tracker, const AnswerWatch& answers,
                           const QKeySequence& key, QWidget* mainWindow)
    : tracker_(tracker), key_(key), mainWindow_(mainWindow)
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(&answers, &AnswerWatch::asked, this, [this] { asker_ = QApplication::activeModalWidget(); });
    connect(&answers, &AnswerWatch::late, this, &FaultsAtHand::offer);
}

FaultsAtHand::~FaultsAtHand()
{
    // It may hang on a window of the plug-in, which outlives the tracker.
    delete window_;
}

// A shortcut of the main window works in none that is modal, nor in those of the plug-in.
bool FaultsAtHand::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        if (window_ && object == window_->parentWidget())
            leave();
        return false;
    }
    if (event->type() == QEvent::WindowBlocked) {
        if (window_ && window_->isVisible() && object == window_->windowHandle()) {
            if (!std::exchange(isAway_, true))
                home_ = window_->parentWidget();
            moveOn();
        }
        return false;
    }
    if (event->type() != QEvent::KeyPress || !object->isWidgetType() || QApplication::activePopupWidget())
        return false;
    const auto& pressed = *static_cast<QKeyEvent*>(event);
    if (QKeySequence(pressed.key() | static_cast<int>(pressed.modifiers())) != key_)
        return false;
    toggle();
    return true;
}

void FaultsAtHand::offer()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!wanted_ || !modal || modal != asker_)
        return;
    // Where there is no room it stays where it is.
    if (!window_ || window_->fitsBeside(*modal)) {
        FaultsWindow* window = windowOf(modal);
        if (window->fitsBeside(*modal))
            window->comeUp(false);
    }
}

void FaultsAtHand::leave()
{
    if (!window_->isVisible())
        return;
    at_ = window_->state();
    window_->hide();
    moveOn();
}

void FaultsAtHand::moveOn()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            QWidget* modal = QApplication::activeModalWidget();
            QWidget* owner = modal ? modal : home_.data();
            // The cable may have taken it away, behind a box or without one.
            if ((isAway_ || isInvited_) && !(owner && owner->isVisible()))
                owner = windowInFront(mainWindow_);
            isAway_ &= modal != nullptr;
            if (owner && owner != window_ && owner->isVisible())
                // It is back where it was: nobody has asked it to go elsewhere.
                windowOf(owner, modal != nullptr)->comeUp(false);
        },
        Qt::QueuedConnection);
}

FaultsWindow* FaultsAtHand::windowOf(QWidget* owner, bool makesWay)
{
    if (window_ && window_->parentWidget() == owner) {
        if (at_ && !window_->isVisible())
            window_->follow(*at_, makesWay);
        return window_;
    }
    // One that changes its owner loses its place with some window managers.
    auto* window = new FaultsWindow(tracker_, owner);
    if (window_) {
        at_ = window_->state();
        window_->hide();
        window_->deleteLater();
    }
    if (at_)
        window->follow(*at_, makesWay);
    window_ = window;
    window_->setTrouble(trouble_);
    connect(window_, &QDialog::rejected, this, [this] {
        at_ = window_->state();
        wanted_ = false;
        isInvited_ = false;
    });
    return window_;
}

void FaultsAtHand::toggle()
{
    if (window_ && QApplication::activeWindow() == window_) {
        window_->reject();
        return;
    }
    wanted_ = true;
    isInvited_ = true;
    home_.clear();
    isAway_ = false;
    // Where the user has put it, it stays.
    const bool isChosen = at_ && at_->isChosen;
    windowOf(windowInFront(mainWindow_), !isChosen)->comeUp(true);
}

QByteArray FaultsAtHand::layout() const
{
    const auto state = window_ && window_->isVisible() ? window_->state() : at_;
    QByteArray layout;
    QDataStream stream(&layout, QIODevice::WriteOnly);
    if (state && (state->isChosen || state->tank != 0))
        stream << (state->isChosen ? state->place : QRect()) << state->tank;
    return layout;
}

void FaultsAtHand::setLayout(const QByteArray& layout)
{
    QRect place;
    QDataStream stream(layout);
    stream >> place;
    if (stream.status() != QDataStream::Ok)
        return;
    int tank = 0;
    stream >> tank; // 0 where an earlier version has kept none
    at_ = FaultsWindow::State{place, place.isValid(), tank};
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

} // namespace workbench
