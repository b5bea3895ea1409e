#include "telemetry/curves/curves_sheet.h"

#include "telemetry/curves/bands_strip.h"
#include "telemetry/curves/curve_legend.h"
#include "telemetry/curves/curves_plot.h"
#include "telemetry/curves/hand_over.h"
#include "telemetry/curves/time_scale.h"
#include "typing/grid.h"

#include <QBuffer>
#include <QLabel>
#include <QPainter>
#include <QSvgGenerator>
#include <QSvgRenderer>
#include <QVBoxLayout>

namespace vlk {

void paintCurves(QPainter& painter, const QSize& size, CurvesModel& model, const TimeSpan& span,
                 const QString& title)
{
    QWidget sheet;
    sheet.setPalette(paperPalette());
    sheet.setAttribute(Qt::WA_DontShowOnScreen);
    const qint32 offset = model.records().utcOffset();
    auto* const heading =
        new QLabel(QStringLiteral("%1%2%3 – %4, %5")
                       .arg(title, QLatin1String(title.isEmpty() ? "" : "   "), momentText(span.from, offset),
                            momentText(span.to, offset), zoneText(offset)),
                   &sheet);
    QFont bold = heading->font();
    bold.setWeight(QFont::DemiBold);
    heading->setFont(bold);
    auto* const legend = new CurveLegend(&model, true, &sheet);
    auto* const plot = new CurvesPlot(&model, &sheet, span);
    auto* const strip = new BandsStrip(&model, plot, &sheet);
    auto* const layout = new QVBoxLayout(&sheet);
    layout->setSpacing(grid::kRow);
    layout->addWidget(heading);
    layout->addWidget(legend);
    layout->addWidget(plot, 1);
    layout->addWidget(strip);
    const auto isOnSheet = [&](Cursor which) {
        const int record = model.cursor(which);
        return record >= 0 && span.contains(model.records().columns().times()[record]);
    };
    const bool hasA = isOnSheet(Cursor::A);
    const bool hasB = isOnSheet(Cursor::B);
    if (hasA || hasB)
        layout->addWidget(new QLabel(
            hasA && hasB ? model.cursorLine() : model.cursorText(hasA ? Cursor::A : Cursor::B), &sheet));
    sheet.resize(size);
    // Lays all out before they are painted.
    sheet.show();
    plot->refresh();
    if (painter.device()->devType() != QInternal::Printer)
        return sheet.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    // A widget would give a printer an image of itself.
    QBuffer lines;
    QSvgGenerator svg;
    svg.setOutputDevice(&lines);
    svg.setResolution(sheet.logicalDpiX()); // or letters take less than the room that they have
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(), size));
    QPainter onto(&svg);
    sheet.render(&onto, QPoint(), QRegion(), QWidget::DrawChildren);
    onto.end();
    QSvgRenderer(lines.data()).render(&painter, QRectF(QPointF(), size));
}

} // namespace vlk
