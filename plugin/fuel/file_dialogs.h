#pragma once

// The calibration windows ask for files by these. Empty when the user cancels.

#include <QString>

class QWidget;

namespace vlk {

// The suffix, "csv" or "xml", is the filter, and what a name without one gets.
QString askFuelFileToSave(QWidget* parent, const QString& caption, const QString& proposed,
                          const QString& suffix);
QString askFuelFileToLoad(QWidget* parent, const QString& folder, const QString& suffix);

} // namespace vlk
