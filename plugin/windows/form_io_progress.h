#pragma once

// The progress dialog: a title, a line of text with a counter "current / all", a bar, a time and a button
// that asks the running process to stop. It is modal for the whole application and never ends by itself:
// the button, Esc and the window frame send breakProcess(), and the process that showed the dialog closes
// it. Every use begins with reset(). Texts come from the caller, save the button's.

#include <QDialog>

#include <memory>

namespace Ui {
class VLK_Designer_Form_IO_Progress;
}

class VLK_Form_IO_Progress : public QDialog
{
    Q_OBJECT

public:
    explicit VLK_Form_IO_Progress(QWidget* parent = nullptr);
    ~VLK_Form_IO_Progress() override;

    // Empties all labels and sets the bar's minimum, maximum and value to 0.
    void reset();
    // Both make the button, the counter and the time visible again, which a caller may have hidden.
    void showForm();
    void closeForm();

    void setMinimum(int minimum);
    void setMaximum(int maximum);
    void setValue(int value);

    void setBreakVisible(bool visible);
    void setCountersVisible(bool visible);
    void setTimeVisible(bool visible);

    void setTitleText(const QString& text);
    void setFileTextLeft(const QString& text);
    void setFileTextRight(const QString& text);
    // The two sides of the counter; the slash stands between them while there is an "all".
    void setCurText(const QString& text);
    void setAllText(const QString& text);
    void setTimeText(const QString& text);
    // What the user may do, beside the button.
    void setHintText(const QString& text);

    void retranslate();

public Q_SLOTS:
    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;

Q_SIGNALS:
    void breakProcess();
    // Esc or the window frame, behind breakProcess(): for a process that the button does not stop.
    void dismissed();

private Q_SLOTS:
    void slot_pressed_Btn_Break();

private:
    void setEverythingVisible();

    std::unique_ptr<Ui::VLK_Designer_Form_IO_Progress> ui_;
};
