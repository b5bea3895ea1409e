#pragma once

// The area in the bottom row of the telemetry view that shows how far a save has come: what is being done,
// and from the moment on when the number of records is known a bar, counters, the time that went by and the
// time that is left, and the button that cancels. When no record comes the bar tells since when.

#include <QDateTime>
#include <QTimer>

namespace Ui {
class VLK_Designer_Widget_Tmi_View;
}

class SaveProgress
{
public:
    explicit SaveProgress(const Ui::VLK_Designer_Widget_Tmi_View& ui);

    void clear();
    // What is being done, by the key of its text. Shown at once, also if the event loop has to wait.
    void setStatus(const char* key);
    // Shows the bar at its start and the button, which takes the focus where no other control has it.
    void start(quint32 total);
    // A record has come.
    void moveBar();
    // No record is waited for any more.
    void stopWaiting();
    void resetBar();
    // `done` above 0, in as many seconds as went by.
    void setFetched(quint32 done, quint32 total, qint64 seconds);
    void retranslate();

private:
    void wait();
    void showSilence(bool silent);

    const Ui::VLK_Designer_Widget_Tmi_View& ui_;
    const char* statusKey_ = nullptr;
    QTimer silence_;
    QDateTime heard_;
    bool isSilent_ = false;
};
