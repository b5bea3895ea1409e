#include "window/trouble_text.h"

#include "road/backups.h"
#include "typing/file_error.h"
#include "window/languages.h"

#include <QFile>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cerrno>

namespace workbench {

QString sentences(std::initializer_list<QString> parts)
{
    QStringList said(parts);
    said.removeAll(QString());
    return said.join(QLatin1Char(' '));
}

QString reasonOf(const ConfigurationProblem& problem)
{
    switch (problem.kind) {
    case ConfigurationProblem::Empty:
        return text("wb_problem_empty");
    case ConfigurationProblem::TooLarge:
        return text("wb_problem_large").arg(number(kLargestConfiguration));
    case ConfigurationProblem::CutShort:
        return text("wb_problem_cut")
            .arg(number(problem.bytes), number(problem.line), number(problem.column));
    case ConfigurationProblem::Damaged:
        return text("wb_problem_damaged").arg(number(problem.line), number(problem.column));
    case ConfigurationProblem::ForeignRoot:
        return text("wb_problem_root").arg(number(problem.line), number(problem.column), problem.found);
    case ConfigurationProblem::ForeignModel:
        return text("wb_problem_model").arg(problem.found);
    }
    return {};
}

QString damageOf(const Backups& backups, int backup, const QString& model)
{
    const auto known = backups.find(backup);
    if (!known || !QFile::exists(known->path))
        return text("wb_back_gone").arg(number(backup));
    const auto problem = checkConfiguration(backups.document(backup), model);
    return problem ? sentences({text("wb_back_unreadable").arg(number(backup)), reasonOf(*problem)})
                   : QString();
}

QString reasonOf(const TelemetryFileProblem& problem)
{
    switch (problem.kind) {
    case TelemetryFileProblem::Unreadable:
        return text("wb_problem_unreadable").arg(vlk::fileErrorText(problem.reason));
    case TelemetryFileProblem::Empty:
        return text("wb_problem_empty");
    case TelemetryFileProblem::CutShort:
        return text("wb_problem_first_record").arg(number(problem.bytes));
    case TelemetryFileProblem::Damaged:
        return text("wb_problem_records");
    case TelemetryFileProblem::NoRecord:
        return text("wb_problem_no_record");
    }
    return {};
}

QString noteOn(const AnswerProblem& problem)
{
    switch (problem.kind) {
    case AnswerProblem::CutShort:
        return problem.expected == 0
                   ? text("wb_answer_cut").arg(number(problem.bytes))
                   : text("wb_answer_cut_of").arg(number(problem.bytes), number(problem.expected));
    case AnswerProblem::Damaged:
        return text("wb_answer_damaged");
    case AnswerProblem::TimeOutside:
        return text("wb_answer_time").arg(moment(QDateTime::fromSecsSinceEpoch(problem.time)));
    case AnswerProblem::TimeJumps:
        return text("wb_answer_jump")
            .arg(moment(QDateTime::fromSecsSinceEpoch(problem.before)),
                 moment(QDateTime::fromSecsSinceEpoch(problem.time)));
    case AnswerProblem::OtherNumber:
        return text("wb_answer_number").arg(number(problem.number), number(problem.expected));
    case AnswerProblem::OutsidePeriod:
        return text("wb_answer_period").arg(moment(QDateTime::fromSecsSinceEpoch(problem.time)));
    }
    return {};
}

bool isAboutRoom(const QString& systemText)
{
    constexpr int codes[] = {ENOSPC, EDQUOT, EFBIG};
    return std::ranges::any_of(
        codes, [&systemText](int code) { return systemText.contains(qt_error_string(code)); });
}

QString adviceOnDisk(const QString& systemText)
{
    return text(isAboutRoom(systemText) ? "wb_do_disk" : "wb_do_folder");
}

QString number(qint64 value)
{
    return QLocale().toString(value);
}

QString moment(const QDateTime& time)
{
    return time.toLocalTime().toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
}

QString timeOfDay(const QDateTime& time)
{
    return time.toString(QStringLiteral("HH:mm:ss"));
}

} // namespace workbench
