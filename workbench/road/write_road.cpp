#include "road/write_road.h"

#include "road/backups.h"
#include "road/sections.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace workbench {

namespace {

// Without what only the other side has in sections that the sent document leaves alone.
void leaveKeptSections(SettingChanges& changes, const QSet<QString>& sent, QString SettingChange::*there)
{
    changes.erase(std::remove_if(changes.begin(), changes.end(),
                                 [&](const SettingChange& change) {
                                     return (change.*there).isNull() &&
                                            !sent.contains(sectionOf(change.path));
                                 }),
                  changes.end());
}

// In the review: what is removed, that with which nothing goes last, what the user has edited, what goes
// along.
std::tuple<bool, bool, bool> placeInReview(const SettingChange& change)
{
    return {!change.isRemoved(), change.readsAlike, change.cause != SettingChange::Cause::Edited};
}

RoadReport::Fault faultOf(PortAnswer::Outcome outcome)
{
    switch (outcome) {
    case PortAnswer::Outcome::Done:
        break;
    case PortAnswer::Outcome::Detached:
        return RoadReport::Fault::Detached;
    case PortAnswer::Outcome::Unplugged:
        return RoadReport::Fault::Unplugged;
    case PortAnswer::Outcome::Refused:
        return RoadReport::Fault::Refused;
    }
    return RoadReport::Fault::None;
}

} // namespace

WriteRoad::WriteRoad(TrackerPort& port, Backups& backups, Compare compare, Advise advise)
    : WriteRoad(port, backups, std::move(compare), std::move(advise), Timing())
{
}

WriteRoad::WriteRoad(TrackerPort& port, Backups& backups, Compare compare, Advise advise, Timing timing)
    : port_(port), backups_(backups), compare_(std::move(compare)), advise_(std::move(advise)),
      timing_(timing), pending_(backups.pendingWrite())
{
    qRegisterMetaType<RoadReport>();
    qRegisterMetaType<WriteReview>();
    notice_.setSingleShot(true);
    patience_.setSingleShot(true);
    connect(&notice_, &QTimer::timeout, this, [this] {
        isSilent_ = true;
        Q_EMIT silent(since_);
    });
    connect(&patience_, &QTimer::timeout, this, &WriteRoad::giveUp);
    connect(&port_, &TrackerPort::readEnded, this, &WriteRoad::readCame);
    connect(&port_, &TrackerPort::writeEnded, this, &WriteRoad::writeCame);
    connect(&port_, &TrackerPort::gone, this, [this] { wasGone_ = true; });
    connect(&port_, &TrackerPort::sent, this, [this](qint64 bytes, qint64 all) {
        listen();
        Q_EMIT progressed(bytes, all);
    });
    connect(&port_, &TrackerPort::taken, this, [this] {
        isTaken_ = true;
        Q_EMIT taken();
    });
}

bool WriteRoad::begin(const WriteRequest& request)
{
    if (isBusy_)
        return false;
    isBusy_ = true;
    wasGone_ = false;
    isTaken_ = false;
    before_.clear();
    review_ = {};
    review_.request = request;
    review_.tracker = port_.tracker();
    report_ = {};
    report_.request = request;
    report_.tracker = review_.tracker;
    setStep(Step::Reading);
    if (request.origin == WriteRequest::Origin::Previous && request.document.isEmpty()) {
        reading_ = TrackerPort::Copy::Previous;
        port_.read(reading_);
    } else if ((report_.problem = checkConfiguration(request.document, review_.tracker.model))) {
        // Told later, as everything is.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (isBusy_ && report_.problem)
                    fail(Fault::BadRequest);
            },
            Qt::QueuedConnection);
    } else {
        readPresent();
    }
    return true;
}

void WriteRoad::tellLeft()
{
    const std::optional<RoadReport> report = pending_.left();
    if (!report)
        return;
    unsettled_ = *report;
    Q_EMIT ended(*report);
    // It is told once.
    pending_.drop();
}

void WriteRoad::tellRead(const QByteArray& document)
{
    // One that is under way reads for itself.
    const std::optional<RoadReport> report = isBusy_ ? std::nullopt : settledBy(document);
    if (report)
        Q_EMIT settled(*report);
}

void WriteRoad::reject(const WriteRequest& request, RoadReport::Fault fault, const QString& detail)
{
    RoadReport report;
    report.request = request;
    report.tracker = port_.tracker();
    report.fault = fault;
    report.detail = detail;
    report.time = QDateTime::currentDateTime();
    settle(report);
    Q_EMIT ended(report);
}

void WriteRoad::setStep(Step step)
{
    report_.step = step;
    const bool waits = step == Step::Reading || step == Step::Writing || step == Step::ReadingBack;
    notice_.stop();
    patience_.stop();
    if (waits)
        listen();
    Q_EMIT stepChanged(step);
}

// The tracker has been heard of, or is asked from now on.
void WriteRoad::listen()
{
    since_ = QDateTime::currentDateTime();
    notice_.start(timing_.noticeMs);
    patience_.start(timing_.patienceMs);
    if (std::exchange(isSilent_, false))
        Q_EMIT heard();
    Q_EMIT waits(since_);
}

void WriteRoad::readPresent()
{
    reading_ = TrackerPort::Copy::Present;
    port_.read(reading_);
}

void WriteRoad::readCame(const PortAnswer& answer)
{
    if (!isBusy_ || (report_.step != Step::Reading && report_.step != Step::ReadingBack))
        return;
    if (answer.outcome != PortAnswer::Outcome::Done) {
        fail(faultOf(answer.outcome), answer);
        return;
    }
    if ((report_.problem = checkConfiguration(answer.document, review_.tracker.model))) {
        fail(Fault::BadAnswer);
        return;
    }
    listen();
    if (report_.step == Step::ReadingBack)
        readBackCame(answer.document);
    else if (reading_ == TrackerPort::Copy::Previous)
        previousCame(answer.document);
    else
        presentCame(answer.document);
}

void WriteRoad::previousCame(const QByteArray& document)
{
    review_.request.document = document;
    review_.request.readFrom = review_.tracker.number;
    report_.request = review_.request;
    readPresent();
}

void WriteRoad::presentCame(const QByteArray& document)
{
    before_ = document;
    const QByteArray& wanted = review_.request.document;
    if (const std::optional<RoadReport> earlier = settledBy(document)) {
        if (earlier->outcome == Outcome::Confirmed && earlier->request.document == wanted) {
            // The next try of the same has nothing left to write.
            report_ = *earlier;
            report_.request = review_.request;
            end(Outcome::Confirmed);
            return;
        }
        Q_EMIT settled(*earlier);
    }
    auto changes = compare_(before_, wanted);
    if (!changes) {
        fail(Fault::Incomparable);
        return;
    }
    const QSet<QString> sent = sectionsOf(wanted);
    leaveKeptSections(*changes, sent, &SettingChange::after);
    std::ranges::stable_sort(*changes, {}, placeInReview);
    review_.changes = *changes;
    const auto count = [&](bool (SettingChange::*is)() const) {
        return static_cast<int>(std::ranges::count_if(*changes, is));
    };
    review_.added = count(&SettingChange::isAdded);
    review_.removed = count(&SettingChange::isRemoved);
    QSet<QString> kept = sectionsOf(before_);
    review_.keptSections = kept.subtract(sent).values();
    review_.keptSections.sort();
    report_.keptSections = review_.keptSections;
    if (advise_) {
        const auto advice = advise_(wanted);
        review_.isUnchecked = !advice;
        review_.advice = advice.value_or(QVector<SettingAdvice>());
    }
    addRefused(&review_.advice, review_.request.typed);
    report_.toLookAt = toLookAt(review_.advice);
    review_.errors = static_cast<int>(std::ranges::count_if(review_.advice, &SettingAdvice::isError));
    review_.typed = static_cast<int>(std::ranges::count_if(review_.advice, &SettingAdvice::isTyped));
    review_.isOfThisTracker = review_.request.readFrom == review_.tracker.number;
    review_.isKnownNoMore = review_.isOfThisTracker && isChanged(review_.request.known);
    const QByteArray& broughtBack = review_.request.broughtBack;
    review_.isBroughtBack = review_.isKnownNoMore && !broughtBack.isEmpty() && !isChanged(broughtBack);
    setStep(Step::Review);
    Q_EMIT reviewReady(review_);
}

bool WriteRoad::isChanged(const QByteArray& known) const
{
    if (known.isEmpty() || known == before_)
        return false;
    const auto changes = compare_(known, before_);
    return !changes || !changes->isEmpty();
}

void WriteRoad::approve()
{
    if (!isBusy_ || report_.step != Step::Review)
        return;
    const TrackerIdentity now = port_.tracker();
    if (now.isAttached() && now.number != review_.tracker.number) {
        fail(Fault::OtherTracker);
        return;
    }
    if (!now.isAttached() || wasGone_) {
        fail(now.isAttached() ? Fault::Reattached : Fault::Detached);
        return;
    }
    setStep(Step::Backup);
    report_.backup = backups_.add(review_.tracker, before_, QDateTime::currentDateTimeUtc(), &report_.detail);
    if (report_.backup == 0) {
        fail(Fault::NoBackup);
        return;
    }
    setStep(Step::Writing);
    pending_.keep(report_);
    port_.write(review_.request.document);
}

bool WriteRoad::cancel()
{
    if (!isBusy_ || isTaken_)
        return !isTaken_;
    port_.drop();
    end(Outcome::Cancelled);
    return true;
}

void WriteRoad::writeCame(const PortAnswer& answer)
{
    if (!isBusy_ || report_.step != Step::Writing)
        return;
    if (answer.outcome == PortAnswer::Outcome::Done) {
        isTaken_ = true;
        setStep(Step::ReadingBack);
        readPresent();
    } else {
        fail(faultOf(answer.outcome), answer);
    }
}

void WriteRoad::readBackCame(const QByteArray& document)
{
    if (const auto outcome = outcomeIn(document, before_, review_.changes, report_))
        end(*outcome);
    else
        fail(Fault::Incomparable);
}

// What came back decides, whatever was said before.
std::optional<RoadReport::Outcome> WriteRoad::outcomeIn(const QByteArray& document, const QByteArray& before,
                                                        const SettingChanges& changes,
                                                        RoadReport& report) const
{
    const auto missed = compare_(report.request.document, document);
    const auto moved = compare_(before, document);
    if (!missed || !moved)
        return {};
    report.readBack = document;
    // The report shows it.
    if (!report.request.known.isEmpty())
        report.request.known = document;
    SettingChanges notTaken = *missed;
    leaveKeptSections(notTaken, sectionsOf(report.request.document), &SettingChange::before);
    // Where nothing was to change, what came back is not what had been there.
    for (const SettingChange& change : std::as_const(notTaken)) {
        SettingChange sent = change;
        std::tie(sent.after, sent.afterText) = std::tie(change.before, change.beforeText);
        report.settings.append({sent, change.after, change.afterText, false});
    }
    for (const SettingChange& change : changes) {
        const auto found = std::ranges::find_if(
            report.settings.begin(), report.settings.begin() + notTaken.size(),
            [&](const WrittenSetting& setting) { return setting.change.path == change.path; });
        if (found == report.settings.begin() + notTaken.size())
            report.settings.append({change, change.after, change.afterText, true});
        else
            found->change = change;
    }
    if (notTaken.isEmpty()) {
        report.fault = Fault::None;
        return Outcome::Confirmed;
    }
    return moved->isEmpty() && report.fault != Fault::None ? Outcome::NotWritten : Outcome::NotTaken;
}

std::optional<RoadReport> WriteRoad::settledBy(const QByteArray& document)
{
    const TrackerIdentity tracker = port_.tracker();
    if (!tracker.isAttached() || tracker.number != unsettled_.tracker.number)
        return {};
    RoadReport report = unsettled_;
    const QByteArray& sent = report.request.document;
    // Where the backup is gone nobody can tell any more what was there before.
    const QByteArray kept = backups_.document(report.backup);
    const QByteArray& before = kept.isEmpty() ? sent : kept;
    auto changes = compare_(before, sent);
    if (!changes)
        return {};
    leaveKeptSections(*changes, sectionsOf(sent), &SettingChange::after);
    const std::optional<Outcome> outcome = outcomeIn(document, before, *changes, report);
    if (!outcome)
        return {};
    report.outcome = *outcome;
    report.fault = Fault::None;
    report.problem.reset();
    report.reasonKey.clear();
    report.detail.clear();
    report.time = QDateTime::currentDateTime();
    report.isSeenLater = true;
    unsettled_ = {};
    keepInPart(report);
    return report;
}

void WriteRoad::giveUp()
{
    port_.drop();
    fail(Fault::Silent);
}

void WriteRoad::fail(Fault fault, const PortAnswer& answer)
{
    // The first fault is the cause of the others.
    if (report_.fault == Fault::None) {
        report_.fault = fault;
        report_.reasonKey = answer.reasonKey;
        if (!answer.detail.isEmpty())
            report_.detail = answer.detail;
    }
    // All of it is there, and only looking tells what became of it.
    if (report_.step == Step::Writing && isTaken_ && fault != Fault::Refused &&
        port_.tracker().isAttached()) {
        setStep(Step::ReadingBack);
        readPresent();
        return;
    }
    const bool mayBeThere = report_.step == Step::ReadingBack ||
                            (report_.step == Step::Writing && isTaken_ && fault != Fault::Refused);
    end(mayBeThere ? Outcome::Unknown : Outcome::NotWritten);
}

void WriteRoad::end(Outcome outcome)
{
    notice_.stop();
    patience_.stop();
    if (std::exchange(isSilent_, false))
        Q_EMIT heard();
    isBusy_ = false;
    report_.outcome = outcome;
    report_.time = QDateTime::currentDateTime();
    settle(report_);
    // Who hears of it may begin the next one.
    const RoadReport report = report_;
    Q_EMIT ended(report);
    // Now that somebody knows of it.
    if (!isBusy_)
        pending_.drop();
}

void WriteRoad::settle(RoadReport& report)
{
    // One that is not attached may be the same.
    const auto maybeSame = [&report](const RoadReport& earlier) {
        return earlier.backup > 0 &&
               (report.tracker.number.isEmpty() || report.tracker.number == earlier.tracker.number);
    };
    if (report.outcome == Outcome::Unknown) {
        unsettled_ = report;
    } else if (report.outcome == Outcome::NotWritten) {
        report.isEarlierInPart = !maybeSame(unsettled_) && maybeSame(inPart_);
        const RoadReport& earlier = report.isEarlierInPart ? inPart_ : unsettled_;
        if (maybeSame(earlier))
            std::tie(report.earlier, report.earlierFile) = std::tie(earlier.backup, earlier.request.file);
    } else if (report.outcome != Outcome::Cancelled) {
        if (maybeSame(unsettled_))
            unsettled_ = {};
        keepInPart(report);
    }
}

void WriteRoad::keepInPart(const RoadReport& seen)
{
    if (seen.outcome == Outcome::NotTaken)
        inPart_ = seen;
    else if (seen.outcome == Outcome::Confirmed && seen.tracker.number == inPart_.tracker.number)
        inPart_ = {};
}

} // namespace workbench
