#pragma once

// Listens to the messages and knows since when the tracker owes an answer. Any answer ends the wait, also one
// to another request: it shows that the tracker is there.

#include "window/plugin_link.h"

#include <QDateTime>
#include <QTimer>

namespace workbench {

class AnswerWatch : public QObject
{
    Q_OBJECT

public:
    // An answer takes milliseconds; what takes longer than this does not come by itself.
    static constexpr int kPatienceMs = 3000;
    // Who asks on in a silence that was told hears of it again after this.
    static constexpr int kReminderMs = 15'000;
    // What takes longer than this, a user notices.
    static constexpr int kNoticeMs = 500;

    explicit AnswerWatch(const PluginLink& link);

    // Something is asked of the tracker: a command that the user has agreed to, or what is no message.
    void begin(vlk::Message request, const QDateTime& since = QDateTime::currentDateTime());
    bool isSilent() const { return told_; }
    // Nobody waits any more: the window that asked is closed, or the tracker gone.
    void forget();

Q_SIGNALS:
    // With every request.
    void asked();
    // The last request waits for longer than a user expects.
    void late();
    // The request is the one that came last; told again where it came after the first time.
    void silent(const QDateTime& since, vlk::Message request);
    // After silent(): an answer came, or nobody waits any more.
    void over();

private:
    void look(vlk::Direction direction, quint32 id);

    vlk::Message request_{};
    QDateTime since_; // of the oldest request that waits; invalid when none does
    QTimer patience_;
    QTimer notice_;
    bool told_ = false;
};

} // namespace workbench
