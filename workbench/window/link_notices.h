#pragma once

// What is wrong between the tracker and the plug-in, said where a user sees it: a record that cannot be right
// is marked in the log, and so is an answer that is not passed on; silence and damage stand in the status
// line and in a notice on the window that asked until a right answer comes, and a cable that went while the
// tracker answered is told in a box that says which windows went with it, unless that of a part that was
// saved says so. A tracker that the user detaches is told in the status line where its telemetry window goes.
// While a period is being saved the notice offers to end that. What became of a command stands in the same
// two places, and what is asked again or comes twice in the log.

#include "check/record_check.h"
#include "window/answer_watch.h"
#include "window/front_notice.h"
#include "window/status_line.h"

namespace workbench {

class HostSession;
class MessageLogModel;
class PluginLog;
class PluginWindows;

class LinkNotices : public QObject
{
    Q_OBJECT

public:
    LinkNotices(const PluginLog& pluginLog, HostSession& session, PluginWindows& windows,
                MessageLogModel& log, StatusLine& status, QWidget* mainWindow);

    const AnswerWatch& answers() const { return watch_; }
    // What stands in the status line about the tracker's answers; empty while all is well.
    QString trouble() const { return trouble_ ? trouble_() : QString(); }
    // Ends the save of a period that runs; its file gets what has come.
    void endSave();
    // What is said of a save is looked at again.
    void saveEnded();
    // What went well in a window: in the status line, and for a while on that window.
    void tellDone(const Sentence& sentence, QWidget* window)
    {
        tellResult(StatusLine::Command, sentence, true, window);
    }
    // What is to be seen to in a window: likewise, until it is closed.
    void tellToHeed(const Sentence& sentence, QWidget* window)
    {
        tellResult(StatusLine::Command, sentence, false, window);
    }
    // What went well is not told any more.
    void forgetDone()
    {
        if (!reason_.isActive())
            front_.tell(FrontNotice::Result, {});
    }

Q_SIGNALS:
    void troubleChanged();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void look(vlk::Direction direction, quint32 id, const void* p1);
    void tellRefused(vlk::Message answer, const AnswerProblem& problem, vlk::Message request);
    void tellDetached(bool isPulled);
    void setTrouble(const Sentence& trouble);
    void connectRequests();
    QString silence(const QDateTime& since, vlk::Message request);
    vlk::Notice troubleNotice();
    // Whether the user has cancelled the save that is told of.
    void lookForCancel();
    void endWait(); // for an answer
    // Commands come from the window of telemetry.
    void tellOfCommand(const Sentence& sentence, bool isNews)
    {
        tellResult(StatusLine::Command, sentence, isNews, front_.telemetry());
    }
    void tellResult(StatusLine::Topic topic, const Sentence& sentence, bool isNews, QWidget* window);
    void endReason();
    // Goes with its reason.
    void tellNotSent(const Sentence& sentence, const std::function<bool()>& holds);

    HostSession& session_;
    PluginWindows& windows_;
    MessageLogModel& log_;
    StatusLine& status_;
    QWidget* mainWindow_;
    AnswerWatch watch_;
    FrontNotice front_;
    Sentence trouble_;
    bool isSaving_ = false;    // a period, when the trouble came
    bool isCancelled_ = false; // this save
    bool isPulled_ = false;    // the cable went while the tracker answered
    bool isPartSaved_ = false; // since the tracker was detached
    vlk::Message refused_{};   // the answer that was not passed on last
    // Why the last command was not sent is looked at while it is told: no message tells of its end.
    QTimer reason_;
    std::function<bool()> reasonHolds_;
};

} // namespace workbench
