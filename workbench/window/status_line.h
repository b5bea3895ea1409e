#pragma once

// The line at the foot of the main window: what holds now, the newest first, one sentence a topic. When its
// cause is gone the topic is cleared, and what held before shows again; without any topic the line says
// that all is ready.

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QLabel;
class QStatusBar;

namespace vlk {

class StatusLine : public QObject
{
    Q_OBJECT

public:
    enum Topic {
        Program, // what holds for the whole run
        Command, // what became of the last command
        Link,    // what the tracker's answers are like
    };

    explicit StatusLine(QStatusBar* bar);

    // The text is asked for again when the language changes.
    void tell(Topic topic, const std::function<QString()>& text);
    void clear(Topic topic);
    void retranslate();

private:
    struct Held
    {
        Topic topic;
        std::function<QString()> text;
    };

    QLabel* label_;
    std::vector<Held> held_; // the newest last
};

} // namespace vlk
