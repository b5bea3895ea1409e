#pragma once

// The library r7106_pdf: what lays out a report, which the command line loads when it is asked for one.

#include <QByteArray>
#include <QString>

namespace workbench::command {

// Fills nothing where it could not be made. Makes an application for fonts, so that there must be none.
using ReportPdf = void (*)(const QString& html, QByteArray* pdf, int& argc, char** argv);
inline constexpr auto kReportPdfName = "r7106ReportPdf";

} // namespace workbench::command
