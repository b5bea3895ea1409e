#include "window/write_report_text.h"

#include "window/languages.h"
#include "window/write_report_model.h"

#include <QFile>

namespace vlk {

QString summary(const tracker::WriteReport& report)
{
    if (!report.accepted) {
        QString reason = text(report.reasonKey.toLatin1().constData());
        if (!report.detail.isEmpty())
            reason += QLatin1Char(' ') + report.detail;
        QString refusal = text("wb_report_refused").arg(reason);
        if (QFile::exists(report.file))
            refusal += QLatin1Char('\n') + text("wb_report_kept").arg(report.file);
        return refusal;
    }
    QString taken = report.sameAsBefore() ? text("wb_report_same")
                                          : text("wb_report_taken")
                                                .arg(report.changed.size())
                                                .arg(report.added.size())
                                                .arg(report.removed.size());
    if (!report.keptSections.isEmpty())
        taken += QLatin1Char('\n') +
                 text("wb_report_kept_sections").arg(report.keptSections.join(QStringLiteral(", ")));
    return taken;
}

QString plainText(const tracker::WriteReport& report)
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

} // namespace vlk
