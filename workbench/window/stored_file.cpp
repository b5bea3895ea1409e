#include "window/stored_file.h"

#include <QFile>
#include <QXmlStreamReader>

namespace workbench {

StoredFile storedFileKind(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return StoredFile::Unknown;
    if (path.endsWith(QLatin1String(".tmi"), Qt::CaseInsensitive))
        return StoredFile::Telemetry;
    constexpr qint64 beginning = 4096;
    QXmlStreamReader reader(file.read(beginning));
    while (!reader.atEnd() && !reader.isStartElement())
        reader.readNext();
    if (!reader.isStartElement())
        return StoredFile::Unknown;
    if (reader.name() == QLatin1String("DEVICE"))
        return reader.attributes().value(QLatin1String("creator")) == QLatin1String("preset")
                   ? StoredFile::Preset
                   : StoredFile::Configuration;
    if (reader.name() == QLatin1String("FUEL"))
        return StoredFile::Calibration;
    return reader.name() == QLatin1String("TMI") ? StoredFile::Telemetry : StoredFile::Unknown;
}

} // namespace workbench
