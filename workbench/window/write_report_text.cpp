#include "window/write_report_text.h"

#include "window/languages.h"
#include "window/write_report_model.h"

#include <QFile>

namespace workbench {

namespace {

struct AdviceRow
{
    const char* reasonKey;
    const char* adviceKey;
};

// What to do about a refusal that a user can mend; the others say enough.
constexpr AdviceRow advices[] = {
    {"wb_refused_detached", "wb_do_attach"}, {"wb_refused_unplugged", "wb_do_attach"},
    {"wb_refused_silence", "wb_do_cable"},   {"wb_refused_unsaved", "wb_do_disk"},
    {"wb_refused_memory", "wb_do_disk"},     {"wb_refused_record", "wb_do_data_set"},
};

QString adviceOn(const QString& reasonKey)
{
    for (const AdviceRow& row : advices)
        if (reasonKey == QLatin1String(row.reasonKey))
            return text(row.adviceKey);
    return {};
}

} // namespace

QString summary(const tracker::WriteReport& report, const QString& typed)
{
    if (!report.accepted) {
        QString reason = text(report.reasonKey.toLatin1().constData());
        if (!report.detail.isEmpty())
            reason += QLatin1Char(' ') + report.detail;
        QString refusal = text("wb_report_refused").arg(reason);
        const QString advice = adviceOn(report.reasonKey);
        // A detail ends without a full stop.
        if (!advice.isEmpty())
            refusal += (report.detail.isEmpty() ? QLatin1Char(' ') : QLatin1Char('\n')) + advice;
        if (QFile::exists(report.file))
            refusal += QLatin1Char('\n') + text("wb_report_kept").arg(report.file);
        return refusal;
    }
    QString taken = report.sameAsBefore() ? text("wb_report_same")
                                          : text("wb_report_taken")
                                                .arg(report.changed.size())
                                                .arg(report.added.size())
                                                .arg(report.removed.size());
    if (!typed.isEmpty())
        taken += QLatin1Char('\n') + typed;
    if (!report.keptSections.isEmpty())
        taken += QLatin1Char('\n') +
                 text("wb_report_kept_sections").arg(report.keptSections.join(QStringLiteral(", ")));
    return taken;
}

QString plainText(const tracker::WriteReport& report, const QString& typed)
{
    WriteReportModel model;
    model.setReport(report);
    QString lines = summary(report, typed) + QLatin1Char('\n');
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        lines += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return lines;
}

} // namespace workbench
