#include "typing/date_entry.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <utility>

namespace vlk {

namespace {

QString dateText(const char* key, const QString& typed, const QDateTimeEdit& edit)
{
    return QCoreApplication::translate("vlk", key)
        .arg(typed, edit.locale().toString(edit.dateTime(), edit.displayFormat().simplified()));
}

} // namespace

DateEntry* DateEntry::join(QDateTimeEdit* box)
{
    auto* known = qobject_cast<DateEntry*>(of(box));
    return known ? known : new DateEntry(box);
}

DateEntry::DateEntry(QDateTimeEdit* box) : TypedEntry(box), edit_(box), validator_(line()->validator())
{
    connect(box, &QDateTimeEdit::dateTimeChanged, this, &DateEntry::valueChanged);
}

// Blanks count once, figures need no leading zeros, and the time of day may be missing.
DateEntry::Typed DateEntry::read(const QString& typed) const
{
    const QString text = typed.simplified();
    const auto moment = [&](const QString& format) {
        QDateTime read = QDateTime::fromString(text, format);
        read.setTimeSpec(edit_->timeSpec());
        return read;
    };
    QString shown = edit_->displayFormat().simplified();
    for (const char* two : {"dd", "MM", "HH", "mm", "ss"})
        shown.replace(QLatin1String(two), QLatin1String(two + 1));
    for (const QString& format :
         {shown, QString(shown).remove(QStringLiteral(":s")), QStringLiteral("yyyy-MM-dd HH:mm:ss"),
          QStringLiteral("yyyy-MM-ddTHH:mm:ss")}) {
        if (QDateTime read = moment(format); read.isValid())
            return {read};
    }
    // Figures alone, as the keypad gives them.
    QString figures = edit_->displayFormat().remove(QRegularExpression(QStringLiteral("[^A-Za-z]")));
    for (; figures.size() > 8; figures.chop(2)) {
        if (QDateTime read = moment(figures); text.size() == figures.size() && read.isValid())
            return {read};
    }
    for (const QString& format :
         {shown.section(QLatin1Char(' '), 0, 0), figures, QStringLiteral("yyyy-MM-dd")}) {
        if (QDateTime read = moment(format); read.isValid()) {
            read.setTime(edit_->time());
            return {read, true};
        }
    }
    return {};
}

std::optional<TypedEntry::News> DateEntry::take(const QString& typed)
{
    const QDateTime moment = read(typed).moment;
    if (!moment.isValid())
        return News{Mark::Invalid, dateText("typed_date", typed.simplified(), *edit_)};
    edit_->setDateTime(moment);
    if (edit_->dateTime() == moment)
        return {};
    return News{Mark::Advice, dateText("typed_date_range", typed.simplified(), *edit_)};
}

void DateEntry::restore()
{
    line()->setValidator(validator_);
    edit_->setDateTime(edit_->dateTime());
}

bool DateEntry::isAllSelected() const
{
    return !line()->text().isEmpty() && line()->selectedText().size() == line()->text().size();
}

void DateEntry::pasted(const QString& text)
{
    {
        const QSignalBlocker quiet(line());
        line()->setValidator(nullptr);
        line()->setText(text);
    }
    typedOn();
    finish();
}

// The box must not see what is typed until it is whole: it would make a date of every beginning.
void DateEntry::forward(QKeyEvent* event)
{
    {
        const QSignalBlocker quiet(line());
        line()->setValidator(nullptr);
        line()->event(event);
    }
    typedOn();
}

// Where the section that a place of the line lies in, or comes behind, begins and ends.
DateEntry::Span DateEntry::sectionAt(int place) const
{
    const QString text = line()->text();
    const auto isDigit = [&](int at) { return at >= 0 && at < text.size() && text.at(at).isDigit(); };
    while (place < text.size() && !isDigit(place) && !isDigit(place - 1))
        ++place;
    int begin = place;
    int end = place;
    while (isDigit(begin - 1))
        --begin;
    while (isDigit(end))
        ++end;
    return {begin, end};
}

// Counted from 0; the line may hold fewer than the box shows.
int DateEntry::indexOf(const Span& section) const
{
    return line()->text().left(section.begin).split(QRegularExpression(QStringLiteral("\\D+"))).size() - 1;
}

void DateEntry::select(Span span)
{
    const QSignalBlocker quiet(line());
    line()->setSelection(span.begin, span.end - span.begin);
}

// Digits fill a section, and a full one leads to the next. The separator that is typed all the same does not
// lead to the one behind it.
void DateEntry::typeInSection(QKeyEvent* event)
{
    const auto next = [this](const Span& section) { return sectionAt(section.end + 1); };
    if (!event->text().at(0).isDigit()) {
        if (!std::exchange(cameBySection_, false))
            select(next(sectionAt(line()->cursorPosition())));
        return;
    }
    cameBySection_ = false;
    // The shown moment has the widths of the sections, in their order.
    const QStringList shown = edit_->locale()
                                  .toString(edit_->dateTime(), edit_->displayFormat())
                                  .split(QRegularExpression(QStringLiteral("\\D+")));
    const auto widthOf = [&](const Span& section) { return shown.value(indexOf(section)).size(); };
    const Span before = sectionAt(line()->cursorPosition());
    if (!line()->hasSelectedText() && before.end - before.begin >= widthOf(before))
        select(before);
    forward(event);
    const Span section = sectionAt(line()->cursorPosition());
    if (section.end - section.begin < widthOf(section) || section.end >= line()->text().size())
        return;
    select(next(section));
    cameBySection_ = true;
}

// The section that Tab goes on from: the box does not know where typing has come to.
int DateEntry::tabbedFrom(bool isBack) const
{
    if (!isWhole_) {
        const int section = indexOf(sectionAt(line()->cursorPosition()));
        // A full one has led on already.
        return cameBySection_ && !isBack ? section - 1 : section;
    }
    if (isBack)
        return 0;
    if (read(typed()).isDay) {
        for (int index = 1; index < edit_->sectionCount(); ++index) {
            if (edit_->sectionAt(index) == QDateTimeEdit::HourSection)
                return index - 1;
        }
    }
    return edit_->sectionCount() - 1;
}

bool DateEntry::eventFilter(QObject* watched, QEvent* event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (isTyping() && (key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
        const int from = tabbedFrom(key == Qt::Key_Backtab);
        finish();
        edit_->setCurrentSectionIndex(from);
    }
    return TypedEntry::eventFilter(watched, event);
}

bool DateEntry::keyPressed(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        pasted(QApplication::clipboard()->text());
        return true;
    }
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isSign = !isCommand && !event->text().isEmpty() && event->text().at(0).isPrint();
    const bool deletes = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    const bool moves = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right ||
                       event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    if (!isTyping())
        isWhole_ = cameBySection_ = false;
    isWhole_ = isWhole_ || ((isSign || deletes) && isAllSelected());
    if (deletes || (isWhole_ && (isSign || moves))) {
        forward(event);
        return true;
    }
    if (isSign) {
        typeInSection(event);
        return true;
    }
    if (moves)
        finish();
    return false;
}

} // namespace vlk
