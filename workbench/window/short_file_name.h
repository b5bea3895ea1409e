#pragma once

// A file name where there is little room. Of a period's file, "KAMAZ 5490 2026-11-20 08-02 - 2026-11-20
// 17-30.xml", a second date that is the first gives way, then the years, and only then the middle of the
// vehicle: two files of one period differ in their endings. Of others the middle gives way.

#include <QFontMetrics>
#include <QString>

namespace workbench {

QString shortFileName(const QString& name, const QFontMetrics& metrics, int room);

} // namespace workbench
