#pragma once

// The calibration windows ask for files by these. Empty when the user cancels. Once a file was saved they
// start in its folder, before that in the one of the proposed name.

#include <QStringList>

class QWidget;

namespace vlk {

// The suffix, "csv" or "xml", is the filter, and what a name without one gets. To load, each suffix is a
// filter, the first one at the beginning.
QString askFuelFileToSave(QWidget* parent, const QString& caption, const QString& proposed,
                          const QString& suffix);
QString askFuelFileToLoad(QWidget* parent, const QString& folder, const QStringList& suffixes);

} // namespace vlk
