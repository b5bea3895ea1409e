#pragma once

// Typing into a box for numbers or dates. What is being typed is no value yet: it becomes one when typing
// ends (Enter, Tab, the focus leaves, a step by arrow or wheel, a save). What the box cannot take is refused,
// the value before it stands; what lies beyond the range becomes the nearest limit. Either is marked at the
// box. Esc gives back what stood there before and closes no
// window.
//
// An entry belongs to its box and lives as long as it does.

#include "typing/field_mark.h"

#include <QObject>
#include <QString>

#include <optional>

class QAbstractSpinBox;
class QKeyEvent;
class QLineEdit;

namespace vlk {

class TypedEntry : public QObject
{
    Q_OBJECT

public:
    // The entry of a box, null where it has none.
    static TypedEntry* of(const QWidget* box);
    // Ends typing in all boxes below a window.
    static void finishIn(const QWidget* window);

    QAbstractSpinBox* box() const { return box_; }
    bool isTyping() const { return typing_; }
    // Takes what was typed.
    void finish();
    // Shows the value of the box, whatever was typed, and takes the mark away.
    void giveUp();
    // The same; and retell() finds nothing.
    void forget();
    // Marks the box again where a value is set again beside which something else was typed.
    void retell();
    // What was typed last and not taken as it was, as the box is marked for it; empty if it was.
    QString news() const { return news_; }
    // The same, once.
    QString takeNews();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    struct News
    {
        Mark mark;
        QString text;
    };

    explicit TypedEntry(QAbstractSpinBox* box);

    QLineEdit* line() const { return line_; }
    // What the line holds besides what the box puts round every value.
    virtual QString typed() const;

    // Gives the value to the box; with news where it is not what was typed.
    virtual std::optional<News> take(const QString& typed) = 0;
    // What is wrong already while typing goes on; empty where it may become right.
    virtual QString complaint(const QString& typed) const = 0;
    // Shows the value of the box anew.
    virtual void restore() = 0;
    // A key that goes to the box; true where there is nothing left to do for it.
    virtual bool keyPressed(QKeyEvent* event) = 0;

    void typedOn();
    // Marks the box; an empty text takes the mark away.
    void mark(Mark mark, const QString& text);
    // The box has another value than the one that was typed.
    void valueChanged();

private:
    bool ends(QEvent* event);
    void setTyping(bool isTyping);

    QAbstractSpinBox* box_;
    QLineEdit* line_;
    bool typing_ = false;
    bool taking_ = false;
    bool isMarked_ = false;
    QString news_;
    QString taken_; // what stood there when news were told last
    std::optional<News> told_;
};

} // namespace vlk
