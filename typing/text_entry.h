#pragma once

// Typing a text into a line. Signs that do not fit, or are more than fit, are told at the field; Esc gives
// back the text that stood there when the field was entered and closes no window, and Enter presses no
// button. In an input mask the caret stays where the next sign is missing unless more stands behind it.

#include <QObject>
#include <QString>

#include <functional>
#include <utility>

class QKeyEvent;
class QLineEdit;

namespace vlk {

class TextEntry : public QObject
{
    Q_OBJECT

public:
    // Joins it to a line, once.
    static TextEntry* join(QLineEdit* line);

    // Says what is wrong with a text that is taken all the same, with an empty text if nothing is.
    void doubt(std::function<QString(const QString&)> complaint);

    // What was left out of what was typed since this was asked the last time; empty if nothing was.
    QString takeNews() { return std::exchange(news_, {}); }

    // What is doubtful about the text that stands there; empty if nothing is.
    QString complaint() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit TextEntry(QLineEdit* line);

    bool keyPressed(QKeyEvent* event);
    bool leavesToWindow(QKeyEvent* event) const;
    void rejected();
    void keepInMask();
    bool isBlank() const;
    // How many characters fit, as far as the line limits them.
    int room() const;
    void mark();
    void tell(const QString& text);

    QLineEdit* line_;
    QString before_;
    QString shown_; // the text before a change
    QString news_;
    bool isMarked_ = false;   // for what was typed
    bool isDoubted_ = false;  // for what stands there
    bool beginsAnew_ = false; // nothing was left out of what is typed next
    QString typed_;           // that comes with the key being pressed
    std::function<QString(const QString&)> complaint_;
};

} // namespace vlk
