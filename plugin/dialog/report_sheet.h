#pragma once

// The report on paper, on a printer or as a PDF file.

#include <QByteArray>
#include <QString>

#include <memory>

class QPagedPaintDevice;
class QTextDocument;

namespace vlk {

// What is meant for one page gets letters as large as it has room for, down to what can be read; more than
// that goes on over other pages. In points.
qreal pointsOnOnePage(const QString& html, const QPagedPaintDevice& device);
// As it lies on the pages of the device. No heading stands at the foot of a page without what it heads.
std::unique_ptr<QTextDocument> reportSheet(const QString& html, bool isOnePage,
                                           const QPagedPaintDevice& device);
// How many pages of A4 that takes at least.
int leastPages(const QString& html);
void printReport(const QString& html, bool isOnePage, QPagedPaintDevice& device);
// A4.
QByteArray reportPdf(const QString& html, bool isOnePage);

} // namespace vlk
