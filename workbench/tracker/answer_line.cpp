#include "tracker/answer_line.h"

#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

namespace tracker {

namespace {

constexpr int kAnswerMs = 20;
constexpr int kGarbledStep = 5;

} // namespace

void AnswerLine::setFaults(const Faults& faults)
{
    if (faults == faults_)
        return;
    faults_ = faults;
    Q_EMIT faultsChanged();
}

void AnswerLine::plug()
{
    cable_ = std::make_unique<QObject>();
    search_ = std::make_unique<QObject>();
}

void AnswerLine::unplug()
{
    cable_.reset();
    search_.reset();
}

void AnswerLine::post(const Answer& answer)
{
    if (!plugged())
        return;
    if (takeUnplug()) {
        QTimer::singleShot(kAnswerMs / 2, cable_.get(), [this] { Q_EMIT pulled(); });
        return;
    }
    if (faults_.silence)
        return;
    Answer sent = answer;
    sent.data = distorted(answer.data, answer.form);
    const int ms = kAnswerMs + answer.afterMs + std::max(0, faults_.delayMs);
    QTimer::singleShot(ms, answer.ofSearch ? search_.get() : cable_.get(), [this, sent] { deliver(sent); });
}

void AnswerLine::dropSearch()
{
    if (plugged())
        search_ = std::make_unique<QObject>();
}

QByteArray AnswerLine::distorted(const QByteArray& bytes, Answer::Form form) const
{
    QByteArray result = bytes;
    if (faults_.garbledAnswers)
        for (int i = 0; i < result.size(); i += kGarbledStep)
            result[i] = static_cast<char>(result.at(i) ^ 0x5A);
    if (faults_.shortAnswers) {
        const int kept = result.size() / 2;
        // The receiver of a record reads all of it.
        if (form == Answer::Form::Record)
            std::ranges::fill(result.begin() + kept, result.end(), '\0');
        else
            result.truncate(kept);
    }
    return result;
}

bool AnswerLine::takeUnplug()
{
    Faults rest = faults_;
    rest.unplug = false;
    const bool taken = faults_.unplug;
    setFaults(rest);
    return taken;
}

void AnswerLine::deliver(const Answer& answer)
{
    if (!sender_)
        return;
    Answer copy = answer;
    void* p1 = nullptr;
    if (copy.form == Answer::Form::Bytes)
        p1 = &copy.data;
    else if (copy.form == Answer::Form::Record)
        p1 = copy.data.data();
    const QScopedValueRollback ticket(ticket_, copy.ticket);
    sender_(copy.message, p1, copy.second.isEmpty() ? nullptr : copy.second.data());
}

} // namespace tracker
