#pragma once

// The report on paper, on a printer or as a PDF file.

#include <QByteArray>
#include <QString>

class QPagedPaintDevice;

namespace vlk {

// What is meant for one page gets letters as small as it needs, down to what can be read; more than that
// goes on over other pages.
void printReport(const QString& html, bool isOnePage, QPagedPaintDevice& device);
// A4.
QByteArray reportPdf(const QString& html, bool isOnePage);

} // namespace vlk
