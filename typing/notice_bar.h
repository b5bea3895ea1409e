#pragma once

// A line at the top of a window that says what the user has to know of what is on show: a triangle with an
// exclamation mark, the sentence, and a cross that closes it. It stays until then, or until what it tells is
// over, and never takes the focus.

#include <QFrame>

#include <functional>

class QLabel;
class QToolButton;

namespace vlk {

class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    // The label is called `name`, the button "toolButton_Close" behind it.
    explicit NoticeBar(const QString& name, QWidget* parent);

    // The sentence is asked for again when the language changes; null closes the bar.
    void tell(const std::function<QString()>& sentence);
    void clear();
    void retranslate();

Q_SIGNALS:
    // The user closed it.
    void dismissed();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setColors();

    std::function<QString()> sentence_;
    QLabel* mark_;
    QLabel* text_;
    QToolButton* close_;
};

} // namespace vlk
