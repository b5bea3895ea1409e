#include "fuel/calibration_sheet.h"

#include "fuel/fuelsensor_graph.h"
#include "fuel/paste_preview.h"
#include "fuel/table/fuel_sensors.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace vlk {

namespace {

constexpr QSize kCurve(620, 340);
constexpr int kSharpness = 3; // pixels of the picture for one on the screen

QImage curveOf(const CalibrationSheet& sheet)
{
    VLK_FuelSensor_Graph graph(nullptr);
    graph.setKind(fuelKind(sheet.kind));
    graph.setPoints(sheet.points);
    graph.resize(kCurve);
    QImage image(kCurve * kSharpness, QImage::Format_RGB32);
    image.setDevicePixelRatio(kSharpness);
    graph.render(&image);
    return image;
}

QString head(const CalibrationSheet& sheet)
{
    QString html = QStringLiteral("<h2>%1</h2><table cellpadding=2>").arg(fuelWord("cfgt6_037"));
    const std::pair<const char*, QString> lines[] = {
        {"tmiw_120", sheet.vehicle},
        {"cfgt6_414", sheet.tracker},
        {"cfgt6_415", sheet.sensor},
        {"cfgt6_039", sheet.tank},
        {"cfgt6_416", sheet.time.toString(QStringLiteral("dd.MM.yyyy HH:mm"))},
    };
    for (const auto& [key, text] : lines)
        html += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td><b>%2</b></td></tr>")
                    .arg(fuelWord(key), text.toHtmlEscaped());
    return html + QStringLiteral("</table>");
}

// Down the first pair of columns, then down the second.
QString table(const CalibrationSheet& sheet)
{
    constexpr int kRowsOfOne = 20;
    constexpr int kMostPairs = 4;
    const auto count = static_cast<int>(sheet.rows.size());
    const int pairs = std::clamp((count + kRowsOfOne - 1) / kRowsOfOne, 1, kMostPairs);
    const int rows = (count + pairs - 1) / pairs;
    const QString heading = QStringLiteral("<th>%1</th><th>%2</th>")
                                .arg(fuelWord("cfgt6_040"), fuelWord(fuelKind(sheet.kind).axisCaption));
    QString html = QStringLiteral("<table border=1 cellspacing=0 cellpadding=3><tr>");
    for (int pair = 0; pair < pairs; ++pair)
        html += heading;
    html += QStringLiteral("</tr>");
    for (int row = 0; row < rows; ++row) {
        html += QStringLiteral("<tr>");
        for (int at = row; at < rows * pairs; at += rows) {
            const FuelRow cells = at < count ? sheet.rows[static_cast<std::size_t>(at)] : FuelRow();
            const QLatin1String mark(cells.changing.isEmpty() ? "" : " *");
            for (const QString& text : {cells.volume, QString(cells.value + mark)})
                html += QStringLiteral("<td align=right>%1</td>").arg(text.toHtmlEscaped());
        }
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table>");
}

// What the marks in the table and the rings round points of the curve say in the window.
QString notes(const CalibrationSheet& sheet)
{
    QString html;
    const auto add = [&html](const QString& text) {
        html += QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
    };
    if (std::ranges::any_of(sheet.rows, [](const FuelRow& row) { return !row.changing.isEmpty(); }))
        add(QStringLiteral("* ") + fuelWord("cfgt6_460"));
    if (const QString falling = PastePreview::fallingText(sheet.points); !falling.isEmpty())
        add(falling);
    return html;
}

} // namespace

QString sheetHtml(const CalibrationSheet& sheet)
{
    const QString curve = QStringLiteral("<p><img src=\"curve\" width=%1 height=%2></p>");
    return head(sheet) + curve.arg(kCurve.width()).arg(kCurve.height()) + table(sheet) + notes(sheet);
}

QByteArray sheetPdf(const CalibrationSheet& sheet)
{
    QTextDocument document;
    document.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("curve")), curveOf(sheet));
    document.setHtml(sheetHtml(sheet));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setTitle(QStringLiteral("%1 %2").arg(sheet.sensor, sheet.vehicle));
        document.print(&pdf);
    }
    return buffer.data();
}

} // namespace vlk
