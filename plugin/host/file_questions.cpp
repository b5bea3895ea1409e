#include "host/file_questions.h"

#include "base/translated.h"
#include "dialog/handed_over.h"
#include "review/bring_settings.h"
#include "review/check_file.h"
#include "review/compare_files.h"
#include "review/report_file.h"

namespace vlk {

namespace {

const QString* orNull(const QString& text)
{
    return text.isNull() ? nullptr : &text;
}

FileRemark told(const review::FileRemark& remark)
{
    FileRemark told;
    told.kind = remark.kind == review::FileRemark::Kind::Advice ? FileRemark::Advice : FileRemark::Finding;
    told.severity = static_cast<std::uint32_t>(remark.severity);
    told.path = &remark.path;
    told.paths = &remark.paths;
    told.page = orNull(remark.page);
    told.group = orNull(remark.group);
    told.caption = orNull(remark.caption);
    told.text = &remark.text;
    return told;
}

review::Secrets secretsOf(const auto& asked)
{
    return asked.showSecrets == 1 ? review::Secrets::Shown : review::Secrets::Masked;
}

FileComparison::Outcome outcomeOf(review::Comparison comparison)
{
    switch (comparison) {
    case review::Comparison::BeforeUnreadable:
        return FileComparison::BeforeUnreadable;
    case review::Comparison::AfterUnreadable:
        return FileComparison::AfterUnreadable;
    case review::Comparison::Done:
        break;
    }
    return FileComparison::Done;
}

// The note's text has to stay.
void tellCause(FileDifference& told, const HandedOver& written, QString* note)
{
    const bool isUnedited = written.notes.contains(*told.path);
    *note = translated(written.notes.value(*told.path));
    told.note = note->isEmpty() ? nullptr : note;
    told.cause = isUnedited                            ? FileDifference::Unedited
                 : written.edited.contains(*told.path) ? FileDifference::Edited
                                                       : FileDifference::Opened;
}

} // namespace

FileDifference toldDifference(const review::Difference& difference, const review::DifferenceText& text)
{
    FileDifference told;
    told.path = &difference.path;
    told.page = &text.page;
    told.group = &text.group;
    told.caption = &text.caption;
    told.before = orNull(text.before);
    told.after = orNull(text.after);
    told.beforeText = told.before ? &text.beforeText : nullptr;
    told.afterText = told.after ? &text.afterText : nullptr;
    told.readsAlike = difference.readsAlike ? 1 : 0;
    return told;
}

void compareFiles(FileComparison& asked, const HandedOver* written)
{
    if (!asked.after || !asked.take)
        return;
    asked.differences = 0;
    const bool isWritten = written && !written->document.isEmpty() &&
                           written->document == review::configurationText(*asked.after);
    asked.outcome = outcomeOf(
        review::compareFiles(asked.before ? *asked.before : QString(), *asked.after, secretsOf(asked),
                             [&](const review::Difference& difference, const review::DifferenceText& text) {
                                 FileDifference row = toldDifference(difference, text);
                                 QString note;
                                 if (isWritten)
                                     tellCause(row, *written, &note);
                                 ++asked.differences;
                                 asked.take(asked.context, &row);
                             }));
}

void checkFile(FileCheck& asked)
{
    if (!asked.file || !asked.take)
        return;
    asked.remarks = 0;
    const bool isRead =
        review::checkFile(*asked.file, secretsOf(asked), [&](const review::FileRemark& remark) {
            const FileRemark row = told(remark);
            ++asked.remarks;
            asked.take(asked.context, &row);
        });
    asked.outcome = isRead ? FileCheck::Done : FileCheck::Unreadable;
}

void reportFile(FileReport& asked)
{
    if (!asked.file || !asked.html)
        return;
    const review::ReportChoice choice{asked.changesAlone == 1, asked.onePage == 1, secretsOf(asked)};
    const QStringList about =
        asked.about ? asked.about->split(QLatin1Char('\n'), Qt::SkipEmptyParts) : QStringList();
    const review::FileReportText report =
        review::reportOfFile(*asked.file, asked.before ? *asked.before : QString(), about, choice);
    switch (report.outcome) {
    case review::Comparison::AfterUnreadable:
        asked.outcome = FileReport::FileUnreadable;
        break;
    case review::Comparison::BeforeUnreadable:
        asked.outcome = FileReport::BeforeUnreadable;
        break;
    case review::Comparison::Done:
        asked.outcome = FileReport::Done;
        *asked.html = report.html;
        break;
    }
}

void bringSettings(BroughtSettings& asked)
{
    if (!asked.file || !asked.from || !asked.paths || !asked.content)
        return;
    const auto content = review::withSettings(review::configurationText(*asked.file),
                                              review::configurationText(*asked.from), *asked.paths);
    asked.outcome = content ? BroughtSettings::Done : BroughtSettings::Refused;
    if (content)
        *asked.content = *content;
}

} // namespace vlk
