#pragma once

// A configuration sets what its sections hold; sections that it does not have stay in the tracker as they
// are.

#include "road/setting_change.h"

#include <QSet>

namespace workbench {

// The names of the elements below the root.
QSet<QString> sectionsOf(const QByteArray& document);

// "TRACK" of "TRACK/POINTS/angle".
QString sectionOf(const QString& path);

} // namespace workbench
