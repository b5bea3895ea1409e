#include "command/pdf/report_pdf.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

extern "C" Q_DECL_EXPORT QByteArray r7106ReportPdf(const QString& html, int& argc, char** argv);

QByteArray r7106ReportPdf(const QString& html, int& argc, char** argv)
{
    // Nothing is shown, and there may be no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QTextDocument document;
    document.setHtml(html);
    QByteArray pdf;
    QBuffer buffer(&pdf);
    if (!buffer.open(QIODevice::WriteOnly))
        return {};
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setTitle(document.metaInformation(QTextDocument::DocumentTitle));
        document.print(&writer);
    }
    return pdf;
}
