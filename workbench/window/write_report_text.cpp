#include "window/write_report_text.h"

#include "typing/file_error.h"
#include "window/languages.h"
#include "window/trouble_text.h"
#include "window/write_report_model.h"

#include <QFile>
#include <QLocale>

#include <algorithm>
#include <array>
#include <iterator>

namespace workbench {

namespace {

using Fault = RoadReport::Fault;
using Outcome = RoadReport::Outcome;

// What to do depends on what the disk said.
constexpr const char* kDisk = "disk";

struct FaultRow
{
    Fault fault;
    const char* reasonKey;
    const char* adviceKey;
};

constexpr FaultRow kFaultRows[] = {
    {Fault::BadRequest, "wb_road_request", nullptr},
    {Fault::Unsaved, "wb_refused_unsaved", kDisk},
    {Fault::Incomparable, "wb_road_incomparable", nullptr},
    {Fault::Detached, "wb_refused_detached", "wb_do_attach"},
    {Fault::Reattached, "wb_road_reattached", "wb_do_again"},
    {Fault::OtherTracker, "wb_road_other", "wb_do_attach"},
    {Fault::Unplugged, "wb_why_unplugged", "wb_do_attach"},
    {Fault::Silent, "wb_refused_silence", "wb_do_cable"},
    {Fault::BadAnswer, "wb_why_answer", "wb_do_cable"},
    {Fault::NoBackup, "wb_road_no_backup", kDisk},
};

struct AdviceRow
{
    const char* reasonKey;
    const char* adviceKey;
};

// What to do about a refusal that a user can mend; the others say enough.
constexpr AdviceRow kAdvices[] = {
    {"wb_refused_memory", kDisk},
    {"wb_refused_record", "wb_do_data_set"},
};

QString reasonFor(const RoadReport& report)
{
    const auto* row =
        std::ranges::find_if(kFaultRows, [&](const FaultRow& each) { return each.fault == report.fault; });
    const char* advice = row == std::end(kFaultRows) ? nullptr : row->adviceKey;
    QString reason = row == std::end(kFaultRows) ? text(report.reasonKey.toLatin1().constData())
                     : report.fault == Fault::Unplugged && report.outcome == Outcome::NotWritten &&
                             report.step == RoadReport::Step::Writing
                         ? text("wb_refused_unplugged")
                         : text(row->reasonKey);
    for (const AdviceRow& each : kAdvices) {
        if (report.reasonKey == QLatin1String(each.reasonKey))
            advice = each.adviceKey;
    }
    if (report.problem)
        reason += QLatin1Char(' ') + reasonOf(*report.problem);
    if (!report.detail.isEmpty())
        reason += QLatin1Char(' ') + vlk::fileErrorText(report.detail);
    // A detail ends without a full stop.
    if (advice)
        reason += (report.detail.isEmpty() ? QLatin1Char(' ') : QLatin1Char('\n')) +
                  (advice != kDisk ? text(advice)
                   : report.fault == Fault::Unsaved
                       ? text(isAboutRoom(report.detail) ? "wb_do_disk_write" : "wb_do_folder_write")
                       : adviceOnDisk(report.detail));
    return reason;
}

bool saysTryAgain(const QString& line)
{
    return std::ranges::any_of(std::array{"wb_do_cable", "wb_do_attach", "wb_do_disk", "wb_do_folder"},
                               [&](const char* advice) { return line.endsWith(text(advice)); });
}

// What the tracker holds, when that was not known before.
QString seenLater(const RoadReport& report)
{
    const auto says = [&report](const char* key) {
        return text(key).arg(report.tracker.number, timeOfDay(report.time));
    };
    switch (report.outcome) {
    case Outcome::Confirmed:
        return says("wb_report_seen_sent");
    case Outcome::NotWritten:
        return says("wb_report_seen_before");
    case Outcome::NotTaken:
    case Outcome::Unknown:
    case Outcome::Cancelled:
        break;
    }
    return says("wb_report_seen_else");
}

// The noun follows the second number: "1 из 21 параметра".
QString someOf(const char* key, const char* singularKey, int some, int all)
{
    const bool isRussian = QLocale().language() == QLocale::Russian;
    const bool isSingular = isRussian ? all % 10 == 1 && all % 100 != 11 : all == 1;
    return text(isSingular ? singularKey : key).arg(number(some), number(all));
}

QString firstLine(const RoadReport& report)
{
    const int all = static_cast<int>(report.settings.size());
    const int missed = report.missed();
    if (report.isSeenLater)
        return seenLater(report);
    switch (report.outcome) {
    case Outcome::Confirmed:
        return all == 0 ? text("wb_report_same") : someOf("wb_report_confirmed", "wb_820", all - missed, all);
    case Outcome::NotTaken:
        return someOf("wb_report_missed", "wb_821", missed, all);
    case Outcome::Unknown:
        if (report.fault == Fault::Interrupted)
            return text("wb_report_left").arg(report.tracker.number, moment(report.time));
        return text("wb_report_unknown").arg(reasonFor(report));
    case Outcome::NotWritten:
        return text("wb_report_refused").arg(reasonFor(report));
    case Outcome::Cancelled:
        return text("wb_write_cancelled");
    }
    return {};
}

bool isWritten(const RoadReport& report)
{
    return report.outcome == Outcome::Confirmed || report.outcome == Outcome::NotTaken;
}

// How much of it the tracker holds no longer; empty for most.
QString removedFrom(const RoadReport& report)
{
    const auto removed = std::ranges::count_if(report.settings, [](const WrittenSetting& setting) {
        return setting.change.isRemoved() && setting.isTaken;
    });
    return removed == 0 || !isWritten(report) ? QString()
                                              : text("wb_782").arg(number(static_cast<int>(removed)));
}

// Where it was not what stands in a window: what it was. Empty otherwise.
QString broughtBack(const RoadReport& report)
{
    const bool isConfirmed = report.outcome == Outcome::Confirmed;
    switch (report.request.origin) {
    case WriteRequest::Origin::Backup:
        if (!isConfirmed)
            return text("wb_report_of_backup").arg(report.request.name);
        return text(report.request.chosen.isEmpty() ? "wb_report_brought" : "wb_report_brought_chosen")
            .arg(report.request.name);
    case WriteRequest::Origin::Previous:
        return text(isConfirmed ? "wb_report_brought_previous" : "wb_report_of_previous");
    case WriteRequest::Origin::Tracker:
    case WriteRequest::Origin::File:
    case WriteRequest::Origin::Fresh:
        break;
    }
    return {};
}

// Where something was to be brought back, no button repeats the write before it.
QString earlierWrite(const RoadReport& report)
{
    const bool isOfBack = report.request.isBringBack();
    const char* key = report.isEarlierInPart ? (isOfBack ? "wb_report_part_back" : "wb_report_part")
                      : isOfBack             ? "wb_report_earlier_back"
                                             : "wb_report_earlier";
    const QString said = text(key).arg(number(report.earlier));
    return isOfBack && QFile::exists(report.earlierFile)
               ? said + QLatin1Char(' ') + text("wb_report_earlier_kept").arg(report.earlierFile)
               : said;
}

// The very file that was to be written.
bool isKept(const WriteRequest& request)
{
    QFile file(request.file);
    return !request.file.isEmpty() && file.open(QIODevice::ReadOnly) &&
           file.read(request.document.size() + 1) == request.document;
}

} // namespace

QString lookAgainText(const RoadReport& report)
{
    return report.toLookAt.isEmpty() || !isWritten(report)
               ? QString()
               : text("wb_typed") + QLatin1Char('\n') + report.toLookAt.join(QLatin1Char('\n'));
}

QString summary(const RoadReport& report)
{
    QStringList lines{firstLine(report)};
    lines.append(removedFrom(report));
    lines.append(broughtBack(report));
    if (report.fault == Fault::Interrupted)
        lines.append(text("wb_report_left_do"));
    else if (report.outcome == Outcome::Unknown || report.outcome == Outcome::NotTaken)
        lines.append(text(saysTryAgain(lines.first()) ? "wb_report_else" : "wb_report_do"));
    if (report.earlier > 0)
        lines.append(earlierWrite(report));
    if (isWritten(report)) {
        lines.append(lookAgainText(report));
        if (!report.keptSections.isEmpty())
            lines.append(text("wb_report_kept_sections").arg(report.keptSections.join(QStringLiteral(", "))));
    }
    if (isKept(report.request))
        lines.append(text("wb_report_kept").arg(report.request.file));
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

QString plainText(const RoadReport& report)
{
    WriteReportModel model;
    model.setReport(report);
    QString lines = summary(report) + QLatin1Char('\n');
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        lines += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return lines;
}

} // namespace workbench
