#pragma once

// The report of a configuration file on disk.

#include "review/compare_files.h"
#include "review/report.h"

namespace vlk::review {

struct FileReportText
{
    Comparison outcome;
    QString html;
};

// The changes are those against the file `before`, or against the defaults where that is null.
FileReportText reportOfFile(const QString& path, const QString& before, const QStringList& about,
                            const ReportChoice& choice);

} // namespace vlk::review
