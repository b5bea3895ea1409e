#pragma once

// Typing a text into a line. Signs that do not fit, or are more than fit, are told at the field, as an error
// while it has the keyboard and as advice afterwards, until it is typed into again, given up or gets another
// text. A key beside which nothing was typed, or nothing stands, is forgotten when the field is left. Esc
// gives back the text that stood there when the field was entered and closes no window, and Enter presses no
// button. In an input mask the caret stays where the next sign is missing unless more stands behind it.

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

class QKeyEvent;
class QLineEdit;
class QWidget;

namespace vlk {

class TextEntry : public QObject
{
    Q_OBJECT

public:
    // Joins it to a line, once.
    static TextEntry* join(QLineEdit* line);
    // What stands in the lines below a window is saved or written: Esc goes back no further than this.
    static void settleIn(const QWidget* window);

    // Says what is wrong with a text that is taken all the same, with an empty text if nothing is.
    void doubt(std::function<QString(const QString&)> complaint);

    // What was left out of what was typed, as the line is marked for it; empty if nothing was.
    QString news() const { return news_; }
    // Takes that mark away: the text is to be shown as it is.
    void giveUp() { tell({}); }
    // The same; it does not come again either.
    void forget();
    // Tells it again where a text is set again beside which it was told: it is still not the one that was
    // meant.
    void retell();

    // What is doubtful about the text that stands there; empty if nothing is.
    QString complaint() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit TextEntry(QLineEdit* line);

    bool keyPressed(QKeyEvent* event);
    bool leavesToWindow(QKeyEvent* event) const;
    void rejected();
    void leave();
    void follow();
    void keepInMask();
    bool isBlank() const;
    // The next text that comes, by a key or the menu.
    void comes(const QString& text, bool isPasted);
    bool takes(const QString& text) const;
    bool pastesTrimmed();
    // How many characters fit, as far as the line limits them.
    int room() const;
    void mark();
    void tell(const QString& text);

    QLineEdit* line_;
    QString before_;
    QString shown_; // the text before a change
    QString news_;
    QHash<QString, QString> cut_; // texts beside which something was told, and what
    bool isMarked_ = false;       // for what was typed
    bool isKeyOnly_ = false;      // for no more than keys that did not fit
    bool wasTyped_ = false;       // on this visit, or on the one that the mark is of
    bool isDoubted_ = false;      // for what stands there
    bool beginsAnew_ = false;     // nothing was left out of what is typed next
    bool isPasted_ = false;       // by the key being pressed
    QString typed_;               // that comes with it
    int chosen_ = 0;              // signs that it takes the place of
    std::function<QString(const QString&)> complaint_;
};

} // namespace vlk
