#include "typing/typed_entry.h"

#include "typing/mnemonic.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace vlk {

TypedEntry* TypedEntry::of(const QWidget* box)
{
    return box ? box->findChild<TypedEntry*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void TypedEntry::finishIn(const QWidget* window)
{
    const auto entries = window->findChildren<TypedEntry*>();
    for (TypedEntry* entry : entries)
        entry->finish();
}

TypedEntry::TypedEntry(QAbstractSpinBox* box) : QObject(box), box_(box), line_(box->findChild<QLineEdit*>())
{
    box->installEventFilter(this);
}

QString TypedEntry::typed() const
{
    return line_->text();
}

void TypedEntry::typedOn()
{
    setTyping(true);
    told_.reset();
    news_.clear();
    mark(Mark::Invalid, complaint(typed()));
}

void TypedEntry::setTyping(bool isTyping)
{
    if (typing_ != isTyping)
        vlk::setTyping(box_, isTyping);
    typing_ = isTyping;
}

void TypedEntry::mark(Mark mark, const QString& text)
{
    if (isMarked_ || !text.isEmpty())
        markField(box_, MarkReason::Typing, mark, text);
    isMarked_ = !text.isEmpty();
}

void TypedEntry::finish()
{
    if (!typing_)
        return;
    setTyping(false);
    taking_ = true;
    const std::optional<News> news = take(typed());
    restore();
    taking_ = false;
    taken_ = line_->text();
    told_ = news;
    news_ = news ? news->text : QString();
    mark(news ? news->mark : Mark::Advice, news_);
}

void TypedEntry::giveUp()
{
    if (typing_)
        restore();
    setTyping(false);
    news_.clear();
    mark(Mark::Advice, {});
}

void TypedEntry::forget()
{
    told_.reset();
    giveUp();
}

void TypedEntry::retell()
{
    if (!told_ || line_->text() != taken_)
        return;
    news_ = told_->text;
    mark(told_->mark, news_);
}

QString TypedEntry::takeNews()
{
    return std::exchange(news_, {});
}

void TypedEntry::valueChanged()
{
    if (!taking_)
        giveUp();
}

// Whether this event was all that the box has to see of it.
bool TypedEntry::ends(QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        // Behind the menu of the field itself typing goes on.
        if (static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason)
            return typing_;
        finish();
        return false;
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::MouseButtonPress:
        finish();
        return false;
    case QEvent::Wheel:
        if (box_->hasFocus())
            finish();
        told_.reset();
        return false;
    case QEvent::LocaleChange:
        forget();
        restore();
        return false;
    default:
        return false;
    }
}

bool TypedEntry::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const over = static_cast<QKeyEvent*>(event);
        const bool isUndo = over->matches(QKeySequence::Undo);
        // What is being typed is taken back here, other steps by the window.
        if (isUndo || over->matches(QKeySequence::Redo)) {
            event->setAccepted(isUndo && typing_);
            return true;
        }
        if (over->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
    }
    if (event->type() != QEvent::KeyPress)
        return ends(event) || QObject::eventFilter(watched, event);
    auto* const key = static_cast<QKeyEvent*>(event);
    if (isMnemonic(*key))
        return true;
    if (key->matches(QKeySequence::Undo) && typing_) {
        giveUp();
        box_->selectAll();
        return true;
    }
    switch (key->key()) {
    case Qt::Key_Escape:
        // Where there is nothing to give up the key is the window's.
        key->setAccepted(typing_);
        giveUp();
        box_->selectAll();
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        // The box tells of it and leaves the key to the window, which would press its button.
        finish();
        taking_ = true;
        box_->event(key);
        taking_ = false;
        key->accept();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        finish();
        return false;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        finish();
        told_.reset();
        return false;
    default:
        return !box_->isReadOnly() && keyPressed(key);
    }
}

} // namespace vlk
