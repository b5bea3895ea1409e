#pragma once

// A file name where there is little room. Of a period's file, "KAMAZ 5490 2026-11-20 08-02 - 2026-11-20
// 17-30.xml", the vehicle gives way first, so that the period can be read; of others the middle.

#include <QFontMetrics>
#include <QString>

namespace workbench {

QString shortFileName(const QString& name, const QFontMetrics& metrics, int room);

} // namespace workbench
