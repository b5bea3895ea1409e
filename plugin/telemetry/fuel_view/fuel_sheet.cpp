#include "telemetry/fuel_view/fuel_sheet.h"

#include "base/translated.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/fuel_view/text_pictures.h"
#include "telemetry/shown/record_cell.h"

#include <QTextDocument>

#include <cmath>
#include <utility>

namespace vlk {

namespace {

// A third more than they take on paper, where their words are so much smaller than those around them.
// Together they have room on one page.
constexpr QSize kCurvePicture(820, 360);
constexpr QSize kTrackPicture(820, 430);
constexpr int kLinesBesidePictures = 13;

QString cells(const QStringList& texts, const char* tag)
{
    QString row = QStringLiteral("<tr>");
    for (const QString& text : texts)
        row += QStringLiteral("<%1 align=\"%3\">%2</%1>")
                   .arg(QLatin1String(tag), text.toHtmlEscaped(),
                        &text - &texts.first() < 2 ? QStringLiteral("left") : QStringLiteral("right"));
    return row + QStringLiteral("</tr>");
}

QString paragraph(const QString& text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

// From the last record with the level before to the first one with the level after.
QString spanText(const FuelEvent& event, qint32 utcOffset)
{
    const bool isOneDay = listDay(event.time, utcOffset) == listDay(event.until, utcOffset);
    return QStringLiteral("%1 – %2").arg(listTime(event.time, utcOffset),
                                         isOneDay ? momentText(event.until, utcOffset, "HH:mm")
                                                  : listTime(event.until, utcOffset));
}

// On one page, be it that of the list or the next one.
void addPictures(QTextDocument& document, const FuelSheet& sheet, int lines)
{
    auto* const pictures = new TextPictures(&document);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    bool isFirst = true;
    const auto add = [&](const PaintSpan& paint, const QSize& size, const QString& caption) {
        if (!paint)
            return;
        QTextBlockFormat block;
        block.setTopMargin(cursor.blockFormat().topMargin());
        if (std::exchange(isFirst, false) && lines > kLinesBesidePictures)
            block.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        if (!caption.isEmpty()) {
            cursor.insertBlock(block, {});
            cursor.insertText(caption);
            block.setPageBreakPolicy(QTextFormat::PageBreak_Auto);
        }
        cursor.insertBlock(block, {});
        pictures->insert(
            cursor,
            [paint, span = sheet.pictured](QPainter& painter, const QSize& size) {
                paint(painter, size, span);
            },
            size);
    };
    // The curve has a heading of its own.
    add(sheet.curve, kCurvePicture, {});
    add(sheet.track, kTrackPicture, sheet.trackCaption);
}

} // namespace

void writeFuelSheet(QTextDocument& document, const FuelSheet& sheet)
{
    const QString title = translated("rec_263");
    QString html =
        QStringLiteral("<html><head><title>%1</title></head><body><h2>%1</h2>").arg(title.toHtmlEscaped());
    if (!sheet.vehicle.isEmpty())
        html += paragraph(QStringLiteral("%1: %2").arg(translated("rec_257"), sheet.vehicle));
    html += paragraph(QStringLiteral("%1 – %2, %3")
                          .arg(listTime(sheet.whole.from, sheet.utcOffset),
                               listTime(sheet.whole.to, sheet.utcOffset), zoneText(sheet.utcOffset)));
    for (const QString& tank : sheet.tanks)
        html += paragraph(tank);
    html += paragraph(translated("rec_259").arg(numberText(sheet.thresholds.rise, 1),
                                                numberText(sheet.thresholds.fall, 1)));
    for (const QString& each : sheet.news)
        html += paragraph(each);
    html +=
        QStringLiteral("<table width=\"100%\" cellpadding=\"3\"><thead>") +
        cells({translated("rec_242"), translated("rec_243").arg(zoneText(sheet.utcOffset)),
               translated("rec_244"), translated("rec_245"), translated("rec_246"), translated("rec_264")},
              "th") +
        QStringLiteral("</thead>");
    double refuelled = 0;
    double drained = 0;
    for (const FuelEvent& event : sheet.events) {
        (event.isRefuelling() ? refuelled : drained) += std::abs(event.litres());
        html +=
            cells({translated(event.isRefuelling() ? "rec_240" : "rec_241"), spanText(event, sheet.utcOffset),
                   numberText(event.before, 1), numberText(event.after, 1), signedText(event.litres(), 1),
                   placeText(event.latitude, event.longitude)},
                  "td");
    }
    html += QStringLiteral("</table>") +
            paragraph(translated("rec_260").arg(numberText(refuelled, 1), numberText(drained, 1)));
    document.setHtml(html + QStringLiteral("</body></html>"));
    constexpr int besideTables = 7; // heading, vehicle, time, thresholds, heads, sums
    addPictures(document, sheet,
                static_cast<int>(sheet.tanks.size() + 2 * sheet.news.size()) + besideTables +
                    static_cast<int>(sheet.events.size()));
}

} // namespace vlk
