#pragma once

// The curves as a picture for others: title, legend, curves with their axes, bands, and what the cursors say,
// dark on white.

#include <QSize>
#include <QString>

class QPainter;

namespace vlk {

class CurvesModel;
struct TimeSpan;

void paintCurves(QPainter& painter, const QSize& size, CurvesModel& model, const TimeSpan& span,
                 const QString& title);

} // namespace vlk
