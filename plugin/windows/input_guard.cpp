#include "windows/input_guard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <optional>

namespace vlk {

namespace {

// The number that would stand in the line of a spin box after this text is typed into it; nothing when it
// would be none.
template <class Box>
std::optional<double> numberAfter(const Box& box, const QString& typed)
{
    const auto* line = box.template findChild<QLineEdit*>();
    if (!line || box.isReadOnly() || typed.isEmpty())
        return {};
    QString text = line->text();
    const int place = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    text.replace(place, line->selectedText().size(), typed);
    if (text.startsWith(box.prefix()))
        text.remove(0, box.prefix().size());
    if (text.endsWith(box.suffix()))
        text.chop(box.suffix().size());
    bool isNumber = false;
    const double number = box.locale().toDouble(text.trimmed(), &isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

// Puts a number that lies beyond the range at its end. A positive one below the least is left: it may be the
// beginning of a larger one.
template <class Box>
bool limit(Box& box, const QString& typed)
{
    const std::optional<double> number = numberAfter(box, typed);
    if (!number || (*number <= box.maximum() && (*number >= box.minimum() || *number >= 0)))
        return false;
    box.setValue(*number > box.maximum() ? box.maximum() : box.minimum());
    return true;
}

class InputFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* input = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Wheel && input && !input->hasFocus()) {
            event->ignore();
            return true;
        }
        return (event->type() == QEvent::KeyPress && limits(watched, *static_cast<QKeyEvent*>(event))) ||
               QObject::eventFilter(watched, event);
    }

private:
    // The box itself would refuse the digit that makes a number too large, and keep the first ones.
    static bool limits(QObject* watched, const QKeyEvent& key)
    {
        const QString typed =
            key.matches(QKeySequence::Paste) ? QApplication::clipboard()->text().trimmed() : key.text();
        auto* whole = qobject_cast<QSpinBox*>(watched);
        if (whole && whole->displayIntegerBase() == 10)
            return limit(*whole, typed);
        auto* real = qobject_cast<QDoubleSpinBox*>(watched);
        return real && limit(*real, typed);
    }
};

bool takesTheWheel(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           (qobject_cast<const QAbstractSlider*>(widget) && !qobject_cast<const QScrollBar*>(widget));
}

} // namespace

void guardInputs(QWidget* page)
{
    auto* filter = new InputFilter(page);
    const auto children = page->findChildren<QWidget*>();
    for (QWidget* child : children) {
        if (takesTheWheel(child)) {
            child->setFocusPolicy(Qt::StrongFocus);
            child->installEventFilter(filter);
        }
        if (auto* button = qobject_cast<QPushButton*>(child))
            button->setAutoDefault(false);
    }
}

void limitTyping(QWidget* box)
{
    box->installEventFilter(new InputFilter(box));
}

} // namespace vlk
