#include "dialog/report_sheet.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

namespace vlk {

namespace {

constexpr qreal kUsualPoints = 9;     // points
constexpr qreal kLargestPoints = 9.5; // of the one page, whose columns have room for a host
constexpr qreal kSmallestPoints = 6;  // that can be read on paper
constexpr qreal kStep = 0.5;
constexpr qreal kMargin = 2 / 2.54; // inches, as QTextDocument::print() leaves them

void setSize(QTextDocument& document, qreal points)
{
    QFont font = document.defaultFont();
    font.setPointSizeF(points);
    document.setDefaultFont(font);
}

// A copy as it lies on the pages of the device.
std::unique_ptr<QTextDocument> laidOut(const QPagedPaintDevice& device, const QTextDocument& document)
{
    std::unique_ptr<QTextDocument> sheet(document.clone());
    sheet->documentLayout()->setPaintDevice(const_cast<QPagedPaintDevice*>(&device));
    QTextFrameFormat frame = sheet->rootFrame()->frameFormat();
    // The layout brings it from the screen to the device.
    frame.setMargin(kMargin * QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    sheet->rootFrame()->setFrameFormat(frame);
    sheet->setPageSize(QSizeF(device.width(), device.height()));
    return sheet;
}

int pageOf(const QTextDocument& sheet, const QTextBlock& block)
{
    return static_cast<int>(sheet.documentLayout()->blockBoundingRect(block).top() /
                            sheet.pageSize().height());
}

bool isHeading(const QTextBlock& block)
{
    return block.blockFormat().headingLevel() > 0;
}

// The first heading of some that stand at the foot of a page, what they head on the next one.
QTextBlock headingAtFoot(const QTextDocument& sheet)
{
    QTextBlock first;
    for (QTextBlock block = sheet.begin(); block.isValid(); block = block.next()) {
        if (block.text().isEmpty())
            continue;
        if (!isHeading(block)) {
            if (first.isValid() && pageOf(sheet, first) < pageOf(sheet, block))
                return first;
            first = {};
        } else if (!first.isValid()) {
            first = block;
        }
    }
    return {};
}

// Headings stand on the page of what they head.
void keepHeadings(QTextDocument& document, const QPagedPaintDevice& device)
{
    for (int moved = 0; moved < document.blockCount(); ++moved) {
        const std::unique_ptr<QTextDocument> sheet = laidOut(device, document);
        const QTextBlock heading = headingAtFoot(*sheet);
        if (!heading.isValid())
            return;
        QTextCursor cursor(document.findBlockByNumber(heading.blockNumber()));
        QTextBlockFormat format = cursor.blockFormat();
        if (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore)
            return;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        cursor.setBlockFormat(format);
    }
}

std::unique_ptr<QTextDocument> documentOf(const QString& html, bool isOnePage,
                                          const QPagedPaintDevice& device)
{
    auto document = std::make_unique<QTextDocument>();
    setSize(*document, isOnePage ? pointsOnOnePage(html, device) : kUsualPoints);
    document->setHtml(html);
    keepHeadings(*document, device);
    return document;
}

} // namespace

qreal pointsOnOnePage(const QString& html, const QPagedPaintDevice& device)
{
    QTextDocument document;
    qreal points = kLargestPoints;
    setSize(document, points);
    document.setHtml(html);
    while (points > kSmallestPoints && laidOut(device, document)->pageCount() > 1) {
        points -= kStep;
        setSize(document, points);
    }
    return points;
}

std::unique_ptr<QTextDocument> reportSheet(const QString& html, bool isOnePage,
                                           const QPagedPaintDevice& device)
{
    return laidOut(device, *documentOf(html, isOnePage, device));
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
    return laidOut(pdf, document)->pageCount();
}

void printReport(const QString& html, bool isOnePage, QPagedPaintDevice& device)
{
    documentOf(html, isOnePage, device)->print(&device);
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
