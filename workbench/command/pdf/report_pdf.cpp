#include "command/pdf/report_pdf.h"

#include "dialog/report_sheet.h"

#include <QGuiApplication>

extern "C" Q_DECL_EXPORT void r7106ReportPdf(const QString& html, QByteArray* pdf, int& argc, char** argv);

void r7106ReportPdf(const QString& html, QByteArray* pdf, int& argc, char** argv)
{
    // Nothing is shown, and there may be no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    *pdf = vlk::reportPdf(html, false);
}
