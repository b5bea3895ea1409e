#include "window/tracker_commands.h"

#include "check/record_check.h"
#include "window/languages.h"
#include "window/request_table.h"
#include "window/trouble_text.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr int kServers = 3;
constexpr double kSameKm = 1; // the vehicle goes on while it is asked

QString servers(const std::vector<int>& numbers)
{
    QStringList list;
    for (const int number : numbers)
        list.append(workbench::number(number));
    return list.join(QLatin1String(", "));
}

// With the decimals that it is typed with.
QString km(double mileage)
{
    return QLocale().toString(mileage, 'f', 2);
}

Sentence saying(const char* key)
{
    return [key] { return text(key); };
}

} // namespace

TrackerCommands::TrackerCommands(tracker::SimulatedTracker& tracker, RepeatedRequests& requests,
                                 PluginLink& link)
    : tracker_(tracker), requests_(requests), link_(link)
{
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, [this] {
        cleared_.clear();
        isAskedAnew_ = false;
        hasGone_ = true;
    });
}

bool TrackerCommands::take(Message message, void* p1)
{
    if (!hasEffect(message, Effect::Destroys) && !hasEffect(message, Effect::Switches))
        return false;
    Command command{message, 0, 0};
    if (message == Message::SetMileage) {
        if (!p1)
            return true;
        command.mileage = *static_cast<const float*>(p1);
    } else {
        command.number = static_cast<int>(asValue(p1));
    }
    // The next server of a sequence, which was asked for.
    if (isAnswered_ && message == Message::ClearServerData) {
        isAnswered_ = false;
        cleared_.push_back(command.number);
        Q_EMIT sent(message);
        requests_.send(message, p1, nullptr);
        return true;
    }
    commands_.push_back(command);
    if (commands_.size() == 1)
        QMetaObject::invokeMethod(this, &TrackerCommands::carryOutNext, Qt::QueuedConnection);
    return true;
}

void TrackerCommands::carryOutNext()
{
    const Command command = commands_.front();
    if (command.message == Message::ClearServerData)
        clear(command);
    else if (command.message == Message::SetMileage)
        setMileage(command);
    else
        switchOutput(command);
    commands_.erase(commands_.begin());
    if (!commands_.empty())
        QMetaObject::invokeMethod(this, &TrackerCommands::carryOutNext, Qt::QueuedConnection);
}

const char* TrackerCommands::whyNotNow(Message command)
{
    if (!tracker_.attached())
        return "wb_command_detached";
    if (!hasEffect(command, Effect::Destroys))
        return nullptr;
    const RunningWork running = link_.runningWork();
    if (running.saving != 0)
        return "wb_command_saving";
    return running.automatic != 0 ? "wb_command_automatic" : nullptr;
}

bool TrackerCommands::isAllowed(Message command, const QString& question, const char* verb)
{
    const char* reason = whyNotNow(command);
    if (!reason && agrees_ && !question.isEmpty()) {
        hasGone_ = false;
        const bool isAgreed = agrees_(question, text(verb));
        if (!hasGone_ && !isAgreed) {
            Q_EMIT done(saying("wb_command_cancelled"));
            return false;
        }
        reason = hasGone_ ? "wb_command_detached" : whyNotNow(command);
    }
    if (reason)
        Q_EMIT refused(saying(reason), [this, command, reason] { return whyNotNow(command) == reason; });
    return !reason;
}

QString TrackerCommands::clearQuestion(int first)
{
    const unsigned told = link_.runningWork().clearing;
    std::vector<int> wanted;
    for (int server = 1; server <= kServers; ++server) {
        if ((told >> (server - 1) & 1) != 0)
            wanted.push_back(server);
    }
    if (wanted.empty()) // by a plug-in that does not tell
        wanted.push_back(first);
    QStringList named;
    for (const int server : wanted) {
        const QString address = tracker_.serverAddress(server);
        named.append(address.isEmpty() ? text("wb_clear_server").arg(number(server))
                                       : text("wb_clear_server_at").arg(number(server), address));
    }
    return text("wb_clear_question").arg(named.join(QLatin1String(", ")));
}

void TrackerCommands::clear(const Command& command)
{
    if (!isAllowed(command.message, clearQuestion(command.number), "wb_clear_verb"))
        return;
    cleared_ = {command.number};
    isDoubtful_ = false;
    Q_EMIT sent(command.message);
    requests_.send(command.message, asParameter(command.number), nullptr);
}

void TrackerCommands::handOver(Message answer, void* p1, void* p2)
{
    // A save that has begun meanwhile would take it for one of its own.
    if (answer == Message::CurrentRecord && std::exchange(isAskedAnew_, false) &&
        link_.runningWork().saving != 0)
        return;
    if (RecordCheck::carriesRecord(answer))
        isPresentShown_ = answer == Message::CurrentRecord || answer == Message::ClearedRecord;
    isAnswered_ = answer == Message::ClearedRecord && !cleared_.empty();
    if (isAnswered_)
        isDoubtful_ |= !p1 || RecordCheck().look(answer, *static_cast<const QByteArray*>(p1));
    link_.send(answer, p1, p2);
    // Reset when the plug-in went on to the next server.
    if (!std::exchange(isAnswered_, false))
        return;
    const auto told = [numbers = std::exchange(cleared_, {})](const char* key) {
        return [numbers, key] { return text(key).arg(servers(numbers)); };
    };
    if (isDoubtful_)
        Q_EMIT failed(told("wb_clear_unknown"));
    else
        Q_EMIT done(told("wb_clear_done"));
}

void TrackerCommands::setMileage(const Command& command)
{
    const std::optional<tracker::Present> before = tracker_.readPresent();
    const auto told = [mileage = command.mileage](const char* key) {
        return [mileage, key] { return text(key).arg(km(mileage)); };
    };
    if (!isAllowed(command.message,
                   before ? told("wb_mileage_question")().arg(km(before->mileage))
                          : told("wb_mileage_question_blind")(),
                   "wb_mileage_verb"))
        return;
    float mileage = command.mileage;
    requests_.send(command.message, &mileage, nullptr);
    look([this, before, mileage, told](const std::optional<tracker::Present>& present) {
        if (!present || std::abs(present->mileage - mileage) > kSameKm)
            Q_EMIT failed(told("wb_mileage_unknown"));
        else if (before)
            confirm(
                [sentence = told("wb_mileage_done"), before] { return sentence().arg(km(before->mileage)); });
        else
            confirm(told("wb_mileage_done_blind"));
    });
}

// Whatever an output drives, it does so at once: on the road that may be the engine.
QString TrackerCommands::outputQuestion(const Command& command)
{
    const std::optional<tracker::Present> present = tracker_.readPresent();
    QString reason;
    if (!present)
        reason = text("wb_output_blind");
    else if (const int speed = qRound(present->speed); speed > 0)
        reason = text("wb_output_moving").arg(number(speed));
    else if (present->ignition)
        reason = text("wb_output_ignition");
    else
        return {};
    const bool on = command.message == Message::OutputOn;
    return reason + QLatin1Char(' ') +
           text(on ? "wb_output_on_question" : "wb_output_off_question").arg(number(command.number));
}

void TrackerCommands::switchOutput(const Command& command)
{
    const bool on = command.message == Message::OutputOn;
    if (!isAllowed(command.message, outputQuestion(command), on ? "wb_output_on_verb" : "wb_output_off_verb"))
        return;
    requests_.send(command.message, asParameter(command.number), nullptr);
    look([this, on, output = command.number](const std::optional<tracker::Present>& present) {
        const bool isOn = present && output > 0 && (quint64{present->outputs} << 1 >> output & 1) != 0;
        const auto told = [output](const char* key) {
            return [output, key] { return text(key).arg(number(output)); };
        };
        if (!present || isOn != on)
            Q_EMIT failed(told(on ? "wb_output_on_unknown" : "wb_output_off_unknown"));
        else
            confirm(told(on ? "wb_output_on" : "wb_output_off"));
    });
}

// A record that comes unasked would be in the way of somebody who walks through old ones, and during the save
// of a period, and behind it, the plug-in takes none but its own.
void TrackerCommands::confirm(const Sentence& sentence)
{
    const RunningWork running = link_.runningWork();
    const bool isFollowed = running.saving == 0 && (isPresentShown_ || running.automatic != 0);
    Q_EMIT done(isFollowed ? sentence
                           : [sentence] { return sentence() + QLatin1Char(' ') + text("wb_values_before"); });
    if (!isFollowed || running.automatic != 0)
        return;
    isAskedAnew_ = true;
    Q_EMIT sent(Message::RequestCurrentRecord);
    requests_.send(Message::RequestCurrentRecord, nullptr, nullptr);
}

void TrackerCommands::look(const std::function<void(const std::optional<tracker::Present>&)>& tell)
{
    QTimer::singleShot(std::max(0, tracker_.faults().delayMs), this,
                       [this, tell] { tell(tracker_.readPresent()); });
}

} // namespace workbench
