#include "telemetry/fuel_view/fuel_sheet.h"

#include "base/translated.h"
#include "telemetry/fuel_view/fuel_texts.h"
#include "telemetry/view/record_cell.h"

#include <QTextDocument>
#include <QUrl>

#include <cmath>

namespace vlk {

namespace {

constexpr int kPictureWidth = 620; // as wide as the text of an A4 page

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

QString picture(QTextDocument& document, const QString& name, const QImage& image)
{
    if (image.isNull())
        return {};
    document.addResource(QTextDocument::ImageResource, QUrl(name), image);
    return QStringLiteral("<p><img src=\"%1\" width=\"%2\"></p>").arg(name).arg(kPictureWidth);
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
                          .arg(listTime(sheet.from, sheet.utcOffset), listTime(sheet.until, sheet.utcOffset),
                               zoneText(sheet.utcOffset)));
    for (const QString& tank : sheet.tanks)
        html += paragraph(tank);
    html += paragraph(translated("rec_259").arg(numberText(sheet.thresholds.rise, 1),
                                                numberText(sheet.thresholds.fall, 1)));
    html +=
        QStringLiteral("<table width=\"100%\" cellpadding=\"3\">") +
        cells({translated("rec_242"), translated("rec_243").arg(zoneText(sheet.utcOffset)),
               translated("rec_244"), translated("rec_245"), translated("rec_246"), translated("rec_264")},
              "th");
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
    html += picture(document, QStringLiteral("curve"), sheet.curve) +
            picture(document, QStringLiteral("track"), sheet.track);
    document.setHtml(html + QStringLiteral("</body></html>"));
}

} // namespace vlk
