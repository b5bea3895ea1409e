#pragma once

// The commands of the plug-in that change the tracker: one that destroys is asked of the user before it is
// sent, and so is the switching of an output unless the vehicle is known to stand with its ignition off; one
// that destroys is refused while records are on their way by themselves; what became of it, and of an output
// that was switched, is told. Clearing the data of several servers is one sequence, which is asked for once.
// Where the tracker's present is on show, it is asked for anew after a command that changed it.
//
// Nothing is asked within the call of the plug-in, which is in the middle of its own work there.

#include "window/plugin_link.h"
#include "window/repeated_requests.h"
#include "window/sentence.h"

namespace workbench {

class TrackerCommands : public QObject
{
    Q_OBJECT

public:
    // The text of the question and that of the button that agrees. What was agreed to after the tracker has
    // gone is not sent.
    using Question = std::function<bool(const QString& text, const QString& verb)>;

    TrackerCommands(tracker::SimulatedTracker& tracker, RepeatedRequests& requests, PluginLink& link);

    // Without one nothing is asked.
    void setQuestion(Question question) { agrees_ = std::move(question); }

    // False when it is no command.
    bool take(Message command, void* p1);
    // Hands an answer of the tracker over, by which a sequence may go on or end.
    void handOver(Message answer, void* p1, void* p2);

Q_SIGNALS:
    // A command is on its way that the tracker answers.
    void sent(vlk::Message command);
    // It ended as the user wished, be it that nothing was sent.
    void done(const workbench::Sentence& sentence);
    // Nobody knows what became of it.
    void failed(const workbench::Sentence& sentence);
    // It was not sent, for a reason that is gone when `holds` says so.
    void refused(const workbench::Sentence& sentence, const std::function<bool()>& holds);

private:
    struct Command
    {
        Message message;
        int number;    // the output or the server
        float mileage; // km
    };

    void carryOutNext();
    // With the servers of the sequence by name.
    QString clearQuestion(int first);
    void clear(const Command& command);
    void setMileage(const Command& command);
    // Empty where nothing needs to be asked.
    QString outputQuestion(const Command& command);
    void switchOutput(const Command& command);
    // The key of the text that says it; null where the command may be sent.
    const char* whyNotNow(Message command);
    // Asks, unless the question is empty, and says why it is not to be sent where that is so.
    bool isAllowed(Message command, const QString& question, const char* verb);
    // When the tracker had as much time as it takes for an answer.
    void look(const std::function<void(const std::optional<tracker::Present>& present)>& tell);
    void confirm(const Sentence& sentence);

    tracker::SimulatedTracker& tracker_;
    RepeatedRequests& requests_;
    PluginLink& link_;
    Question agrees_;
    std::vector<Command> commands_; // the first one is being carried out
    bool isAnswered_ = false;       // the answer to a clearing is being handed over
    std::vector<int> cleared_;      // servers of the sequence
    bool isDoubtful_ = false;       // an answer of the sequence cannot be right
    bool isPresentShown_ = false;   // the record that was handed over last is the tracker's present
    bool isAskedAnew_ = false;      // for it, by nobody but these commands
    bool hasGone_ = false;          // the tracker that the question is about
};

} // namespace workbench
