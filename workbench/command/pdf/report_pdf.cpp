#include "command/pdf/report_pdf.h"

#include "dialog/report_sheet.h"

#include <QGuiApplication>

extern "C" Q_DECL_EXPORT QByteArray r7106ReportPdf(const QString& html, int& argc, char** argv);

QByteArray r7106ReportPdf(const QString& html, int& argc, char** argv)
{
    // Nothing is shown, and there may be no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return vlk::reportPdf(html, false);
}
