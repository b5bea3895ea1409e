#pragma once

// A file name where there is little room. Of a period's file, "KAMAZ 5490 2026-11-20 08-02 - 2026-11-20
// 17-30.xml", a second date that is the first gives way, then the suffix, the years, and only then the middle
// of the vehicle; of others the middle.

#include <QFontMetrics>
#include <QString>

namespace workbench {

QString shortFileName(const QString& name, const QFontMetrics& metrics, int room);

} // namespace workbench
