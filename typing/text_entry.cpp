#include "typing/text_entry.h"

#include "typing/field_mark.h"
#include "typing/mnemonic.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QValidator>

#include <algorithm>

namespace vlk {

namespace {
// Longer texts than this are limited by no line.
constexpr int kLongest = 1024;

bool isFilled(QChar sign)
{
    return sign.isLetterOrNumber();
}
} // namespace

TextEntry* TextEntry::join(QLineEdit* line)
{
    auto* known = line->findChild<TextEntry*>(QString(), Qt::FindDirectChildrenOnly);
    return known ? known : new TextEntry(line);
}

void TextEntry::settleIn(const QWidget* window)
{
    const auto entries = window->findChildren<TextEntry*>();
    for (TextEntry* entry : entries)
        entry->before_ = entry->line_->text();
}

TextEntry::TextEntry(QLineEdit* line)
    : QObject(line), line_(line), before_(line->text()), shown_(line->text())
{
    line->installEventFilter(this);
    connect(line, &QLineEdit::inputRejected, this, &TextEntry::rejected);
    connect(line, &QLineEdit::cursorPositionChanged, this, &TextEntry::keepInMask);
    connect(line, &QLineEdit::textChanged, this, [this] {
        // A text that was set is no one's typing. What was left out stays told while more is typed beside it.
        if (!line_->isModified())
            before_ = line_->text();
        wasTyped_ = line_->isModified();
        if (!line_->isModified() || line_->text().size() < shown_.size() || beginsAnew_)
            tell({});
        beginsAnew_ = false;
        shown_ = line_->text();
        follow();
        mark();
        keepInMask();
    });
}

// Behind the last place of a mask a line drops what is typed or pasted without a word, and a click leads
// there.
void TextEntry::keepInMask()
{
    if (line_->inputMask().isEmpty())
        return;
    const QString shown = line_->displayText();
    const int free = shown.indexOf(QLatin1Char(' '));
    const int place = line_->cursorPosition();
    const bool isChosen = line_->hasSelectedText() && std::ranges::any_of(shown, isFilled);
    if (free >= 0 && place > free && !isChosen &&
        std::ranges::none_of(shown.begin() + place, shown.end(), isFilled))
        line_->setCursorPosition(free);
}

void TextEntry::doubt(std::function<QString(const QString&)> complaint)
{
    complaint_ = std::move(complaint);
    mark();
}

QString TextEntry::complaint() const
{
    return complaint_ ? complaint_(line_->text()) : QString();
}

void TextEntry::forget()
{
    cut_.clear();
    tell({});
}

void TextEntry::follow()
{
    if (!news_.isEmpty())
        cut_.insert(line_->text(), news_);
    else if (!line_->isModified())
        retell();
}

void TextEntry::retell()
{
    tell(cut_.value(line_->text()));
    if (news_.isEmpty())
        return;
    isKeyOnly_ = false;
    if (!line_->hasFocus())
        markField(line_, MarkReason::Typing, Mark::Advice, news_);
}

void TextEntry::mark()
{
    const QString complaint = this->complaint();
    if (isDoubted_ || !complaint.isEmpty())
        markField(line_, MarkReason::Value, Mark::Invalid, complaint);
    isDoubted_ = !complaint.isEmpty();
}

void TextEntry::tell(const QString& text)
{
    if (isMarked_ || !text.isEmpty())
        markField(line_, MarkReason::Typing, Mark::Invalid, text);
    isMarked_ = !text.isEmpty();
    news_ = text;
}

int TextEntry::room() const
{
    QString probe;
    int place = 0;
    const int most = std::min(line_->maxLength(), kLongest);
    while (probe.size() < most) {
        QString longer = probe + QLatin1Char('0');
        if (line_->validator() && line_->validator()->validate(longer, place) == QValidator::Invalid)
            break;
        probe = longer;
    }
    return probe.size();
}

// A line drops what does not fit without a word.
void TextEntry::rejected()
{
    const int fit = room();
    // The line may hold the refused text still.
    const int wanted = shown_.size() - chosen_ + std::max(1, typed_.size());
    const bool isTooLong = line_->inputMask().isEmpty() && wanted > fit;
    isKeyOnly_ = (isKeyOnly_ || !isMarked_) && !isTooLong && !isPasted_;
    tell(isTooLong ? QCoreApplication::translate("vlk", "typed_long").arg(fit)
                   : QCoreApplication::translate("vlk", "typed_sign"));
    cut_.insert(shown_, news_);
    beginsAnew_ = false;
    // By the menu: a key has been through here before.
    if (isPasted_)
        QTimer::singleShot(0, this, [this] {
            if (pastesTrimmed())
                forget();
        });
}

void TextEntry::comes(const QString& text, bool isPasted)
{
    beginsAnew_ = beginsAnew_ || isBlank();
    isPasted_ = isPasted;
    typed_ = isPasted ? QApplication::clipboard()->text() : text;
    chosen_ = line_->selectedText().size();
}

bool TextEntry::takes(const QString& text) const
{
    QString whole = line_->text();
    int place = line_->hasSelectedText() ? line_->selectionStart() : line_->cursorPosition();
    whole.replace(place, line_->selectedText().size(), text);
    const QValidator* validator = line_->validator();
    return whole.size() <= line_->maxLength() &&
           (!validator || validator->validate(whole, place) != QValidator::Invalid);
}

// Blanks and ends of lines around a text from elsewhere are not meant where it is the whole one or they do
// not fit.
bool TextEntry::pastesTrimmed()
{
    const QString trimmed = typed_.trimmed();
    const bool isWhole = isBlank() || line_->selectedText().size() == line_->text().size();
    if (line_->isReadOnly() || !line_->inputMask().isEmpty() || trimmed.isEmpty() || trimmed == typed_ ||
        (takes(typed_) && !isWhole) || !takes(trimmed))
        return false;
    line_->insert(trimmed);
    return true;
}

// The text that stands there is taken; but where a key was left out of it, it is not the one that was meant.
void TextEntry::leave()
{
    const bool isMissed = !isKeyOnly_ || (wasTyped_ && !isBlank());
    if (!isMissed && complaint().isEmpty())
        tell({});
    if (news_.isEmpty() && (!isMissed || wasTyped_))
        cut_.remove(line_->text());
    if (isMarked_)
        markField(line_, MarkReason::Typing, Mark::Advice, news_);
}

bool TextEntry::isBlank() const
{
    const QString stands = line_->text();
    return line_->inputMask().isEmpty() ? stands.isEmpty() : std::ranges::none_of(stands, isFilled);
}

bool TextEntry::keyPressed(QKeyEvent* event)
{
    if (isMnemonic(*event))
        return true;
    comes(event->text(), event->matches(QKeySequence::Paste));
    if (isPasted_ && pastesTrimmed())
        return true;
    switch (event->key()) {
    case Qt::Key_Escape:
        // Where there is nothing to give up the key is the window's.
        event->setAccepted(!line_->isReadOnly() && line_->text() != before_);
        tell({});
        if (event->isAccepted())
            line_->setText(before_);
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        before_ = line_->text();
        line_->event(event);
        event->accept();
        return true;
    default:
        return false;
    }
}

// Steps of the window are taken back once nothing is left of what has been typed since the line was entered.
bool TextEntry::leavesToWindow(QKeyEvent* event) const
{
    const bool leaves = event->matches(QKeySequence::Undo)   ? line_->text() == before_
                        : event->matches(QKeySequence::Redo) ? !line_->isRedoAvailable()
                                                             : false;
    if (leaves)
        event->ignore();
    return leaves;
}

bool TextEntry::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (const auto reason = static_cast<QFocusEvent*>(event)->reason();
            reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            before_ = line_->text();
            beginsAnew_ = true;
            wasTyped_ = wasTyped_ && isMarked_;
        }
        break;
    case QEvent::FocusOut:
        if (const auto reason = static_cast<QFocusEvent*>(event)->reason();
            reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            leave();
            // Of a text that is too long for the line its beginning says most.
            if (line_->fontMetrics().horizontalAdvance(line_->displayText()) > line_->contentsRect().width())
                line_->home(false);
        }
        break;
    case QEvent::ContextMenu:
        comes({}, true);
        break;
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
            return true;
        }
        return leavesToWindow(static_cast<QKeyEvent*>(event));
    case QEvent::KeyPress:
        return keyPressed(static_cast<QKeyEvent*>(event));
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vlk
