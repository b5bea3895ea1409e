#include "dialog/report_sheet.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QScreen>
#include <QTextDocument>
#include <QTextFrame>

#include <memory>

namespace vlk {

namespace {

constexpr qreal kUsualPoints = 9;    // points
constexpr qreal kLargestPoints = 12; // of the one page, which is filled
constexpr qreal kSmallestPoints = 6; // that can be read on paper
constexpr qreal kStep = 0.5;
constexpr qreal kMargin = 2 / 2.54; // inches, as QTextDocument::print() leaves them

void setSize(QTextDocument& document, qreal points)
{
    QFont font = document.defaultFont();
    font.setPointSizeF(points);
    document.setDefaultFont(font);
}

int pagesOn(const QPagedPaintDevice& device, const QTextDocument& document)
{
    const std::unique_ptr<QTextDocument> sheet(document.clone());
    sheet->documentLayout()->setPaintDevice(const_cast<QPagedPaintDevice*>(&device));
    QTextFrameFormat frame = sheet->rootFrame()->frameFormat();
    // The layout brings it from the screen to the device.
    frame.setMargin(kMargin * QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    sheet->rootFrame()->setFrameFormat(frame);
    sheet->setPageSize(QSizeF(device.width(), device.height()));
    return sheet->pageCount();
}

} // namespace

qreal pointsOnOnePage(const QString& html, const QPagedPaintDevice& device)
{
    QTextDocument document;
    qreal points = kLargestPoints;
    setSize(document, points);
    document.setHtml(html);
    while (points > kSmallestPoints && pagesOn(device, document) > 1) {
        points -= kStep;
        setSize(document, points);
    }
    return points;
}

int leastPages(const QString& html)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    QTextDocument document;
    setSize(document, kSmallestPoints);
    document.setHtml(html);
    return pagesOn(pdf, document);
}

void printReport(const QString& html, bool isOnePage, QPagedPaintDevice& device)
{
    QTextDocument document;
    setSize(document, isOnePage ? pointsOnOnePage(html, device) : kUsualPoints);
    document.setHtml(html);
    document.print(&device);
}

QByteArray reportPdf(const QString& html, bool isOnePage)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        QTextDocument titled;
        titled.setHtml(html);
        pdf.setTitle(titled.metaInformation(QTextDocument::DocumentTitle));
        printReport(html, isOnePage, pdf);
    }
    return buffer.data();
}

} // namespace vlk
