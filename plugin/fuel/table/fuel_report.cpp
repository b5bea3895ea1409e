#include "fuel/table/fuel_report.h"

#include "fuel/table/fuel_sensors.h"

#include <QDateTime>

#include <cmath>

namespace vlk {

namespace {

constexpr int kRowsOfBlank = 15;
constexpr int kPairsOfBlank = 3;
// Above this many points the columns grow instead of their number.
constexpr int kMostInFixedRows = 75;
constexpr int kPairsOfLong = 4;

const QString kBlank = QStringLiteral("&nbsp;");
const QString kTableEnd = QStringLiteral("</table>");
const QString kRow = QStringLiteral("<tr>");
const QString kRowEnd = QStringLiteral("</tr>");

QString tableOf(int padding, const char* width = "90%", int border = 0, const char* align = "center")
{
    return QStringLiteral("<table width='%1' border=%2 cellspacing=0 cellpadding=%3 align=\"%4\">")
        .arg(QLatin1String(width), QString::number(border), QString::number(padding), QLatin1String(align));
}

QString cell(const QString& text, const char* attributes = "align=\"center\"")
{
    return QStringLiteral("<td %1>%2</td>").arg(QLatin1String(attributes), text);
}

QString line(int length)
{
    return QString(length, QLatin1Char('_'));
}

QString head()
{
    return QStringLiteral(
               "<html><head><META http-equiv=\"Content-Type\" content=\"text/html; charset=cp-1251\">"
               "<style type=\"text/css\"></style>"
               "<style> td.border{border-right: 15px solid red;} th.border{border-right: 15px solid red;}"
               "</style></head><body>") +
           tableOf(0) + kRow + QStringLiteral("<td align=\"right\"><U>") + fuelWord("cfgt6_055") +
           QStringLiteral(" F-1.0</U></td>") + kRowEnd + kTableEnd +
           QStringLiteral("<h2 width='90%' align=\"center\">") + fuelWord("cfgt6_056") +
           QStringLiteral("</h2><br/>");
}

QString sensorBlock(const QString& tank)
{
    struct Field
    {
        const char* key;
        bool numbered;
        int length;
    };
    constexpr Field rows[][2] = {{{"cfgt6_058", false, 28}, {"cfgt6_059", false, 27}},
                                 {{"cfgt6_060", false, 30}, {"cfgt6_061", false, 12}},
                                 {{"cfgt6_062", true, 25}, {"cfgt6_063", true, 29}}};
    QString html = tableOf(5) + kRow +
                   cell(QStringLiteral("%1:  <b>").arg(fuelWord("cfgt6_057")) + tank.toHtmlEscaped() +
                        QStringLiteral("</b>")) +
                   kRowEnd + kTableEnd + QStringLiteral("<br/><div>") + tableOf(5);
    for (const auto& row : rows) {
        html += kRow;
        for (const Field& field : row) {
            QString text = fuelWord(field.key);
            if (field.numbered)
                text += QLatin1Char(' ') + fuelWord("abbr_047");
            html += cell(text + line(field.length));
        }
        html += kRowEnd;
    }
    return html + kTableEnd + QStringLiteral("</div>");
}

QString blankRow()
{
    const QString plain = cell(kBlank);
    const QString bordered = cell(kBlank, "class=\"border\" align=\"center\"");
    return kRow + plain + bordered + plain + bordered + plain + plain + kRowEnd;
}

QString table(const FuelPoints& points, bool decimals)
{
    const int count = static_cast<int>(points.size());
    int pairs = kPairsOfBlank;
    int rows = kRowsOfBlank;
    if (count > kMostInFixedRows) {
        pairs = kPairsOfLong;
        rows = (count + pairs - 1) / pairs;
    } else if (count > 0) {
        pairs = (count + kRowsOfBlank - 1) / kRowsOfBlank;
        rows = std::min(count, kRowsOfBlank);
    }

    const auto heading = [](const char* key) {
        return QStringLiteral("<th bgcolor=\"#DCDCDC\" align=\"center\">%1</th>").arg(fuelWord(key));
    };
    QString html = QStringLiteral("<br/><div>") + tableOf(4, "90%", 1) + kRow;
    for (int pair = 0; pair < pairs; ++pair)
        html += heading("cfgt6_064") + heading("cfgt6_044");
    html += kRowEnd;
    for (int row = 0; row < rows; ++row) {
        if (count == 0) {
            html += blankRow();
            continue;
        }
        html += kRow;
        for (int pair = 0; pair < pairs; ++pair) {
            const int index = pair * rows + row;
            if (index >= count) {
                html += cell(kBlank) + cell(kBlank);
                continue;
            }
            const FuelPoint& point = points[static_cast<std::size_t>(index)];
            html += cell(QString::number(static_cast<double>(point.volume), 'f', 1)) +
                    cell(decimals ? QString::number(static_cast<double>(point.value), 'f', 2)
                                  : QString::number(std::trunc(static_cast<double>(point.value)), 'f', 0));
        }
        html += kRowEnd;
    }
    return html + kTableEnd + QStringLiteral("</div>");
}

QString linesForThePen()
{
    struct Line
    {
        const char* key;
        int length;
    };
    constexpr Line blocks[][3] = {{{"cfgt6_065", 51}, {"cfgt6_066", 46}, {"cfgt6_067", 37}},
                                  {{"cfgt6_068", 37}, {"cfgt6_069", 42}, {"cfgt6_070", 44}}};
    QString html;
    for (const auto& block : blocks) {
        html += QStringLiteral("<br/><div>") + tableOf(5);
        for (const Line& row : block)
            html += kRow +
                    cell(QStringLiteral("%1:").arg(fuelWord(row.key)) + line(row.length), "align=\"left\"") +
                    kRowEnd;
        html += kTableEnd + QStringLiteral("</div>");
    }
    return html;
}

QString signature()
{
    const auto inBrackets = [](const char* key) { return cell(QStringLiteral("(%1)").arg(fuelWord(key))); };
    return tableOf(0, "380px", 0, "right") +
           QStringLiteral("<tr><th width='150px' align=\"center\">____________________</th>"
                          "<th width='75px' align=\"center\"></th>"
                          "<th width='150px' align=\"center\">____________________</th></tr>") +
           kRow + inBrackets("cfgt6_073") + cell(QStringLiteral("<p>&nbsp;&nbsp;&nbsp;&nbsp;</p>")) +
           inBrackets("cfgt6_074") + kRowEnd + kTableEnd;
}

QString foot(const QDateTime& time)
{
    const auto heading = [](const char* key, const char* align) {
        return QStringLiteral("<th width='50%'  align=\"%1\">%2:</th>")
            .arg(QLatin1String(align), fuelWord(key));
    };
    return linesForThePen() + QStringLiteral("<br/><br/><div>") + tableOf(0) + kRow +
           heading("cfgt6_071", "left") + heading("cfgt6_072", "right") + kRowEnd + kRow + kRowEnd + kRow +
           cell(time.toString(QStringLiteral("dd.MM.yyyy H:mm:ss")), "align=\"left\"") +
           cell(signature(), "align=\"right\"") + kRowEnd + kTableEnd +
           QStringLiteral("</div></body></html>");
}

} // namespace

QString fuelReport(const QString& sensor, const QString& tank, const FuelPoints& points,
                   const QDateTime& time)
{
    return head() + sensorBlock(tank) + table(points, !sensor.startsWith(QLatin1Char('D'))) + foot(time);
}

} // namespace vlk
