#pragma once

// How far work has come that goes on in slices from the event loop: what is done, a bar, the time that is
// left and Cancel. It shows nothing in the first fifth of a second.

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace vlk {

// How long a slice of work lasts. What takes less than kQuietMs is done at one go.
inline constexpr int kSliceMs = 20;
inline constexpr int kQuietMs = 200;

class WorkProgress : public QWidget
{
    Q_OBJECT

public:
    explicit WorkProgress(QWidget* parent);

    // `what`: a key.
    void start(const char* what);
    void setShare(double share);
    void end();
    bool isRunning() const { return what_ != nullptr; }
    // What the user may still believe to be running: whoever cancels it means nothing else.
    bool hasJustEnded() const { return ended_.isValid() && !ended_.hasExpired(kJustMs); }
    void retranslate();

Q_SIGNALS:
    void cancelled();

private:
    static constexpr int kJustMs = 1000;

    const char* what_ = nullptr;
    QElapsedTimer clock_;
    QElapsedTimer ended_; // since it was seen
    QLabel* text_;
    QProgressBar* bar_;
    QLabel* left_;
    QPushButton* cancel_;
};

} // namespace vlk
