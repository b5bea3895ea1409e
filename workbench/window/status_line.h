#pragma once

// The line at the foot of the main window. Left what was told last, with its time, one sentence a topic: when
// its cause is gone the topic is cleared, and what was told before shows again; without any topic the line
// says that all is ready. Right what lasts.

#include "window/sentence.h"

#include <QObject>
#include <QTime>

#include <vector>

class QLabel;
class QStatusBar;

namespace workbench {

class StatusLine : public QObject
{
    Q_OBJECT

public:
    enum Topic {
        Program, // what holds for the whole run
        Command, // what became of the last command
        Refused, // why the last command was not sent, while that lasts
        Link,    // what the tracker's answers are like
    };

    // What lasts is asked for at every refresh().
    StatusLine(QStatusBar* bar, const Sentence& lasting);

    // The text is asked for again when the language changes.
    void tell(Topic topic, const Sentence& text);
    void clear(Topic topic);
    void refresh();

private:
    struct Held
    {
        Topic topic;
        Sentence text;
        QTime time;
    };

    Sentence lasting_;
    QLabel* time_;
    QLabel* label_;
    QLabel* lastingLabel_;
    std::vector<Held> held_; // the newest last
};

} // namespace workbench
