#pragma once

// The baseline of the configuration: Qt's XML reader over the same file, with a handler that does nothing.

#include <QFile>
#include <QXmlSimpleReader>

namespace bench {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
inline bool readWithoutUse(const QString& path)
{
    QFile file(path);
    QXmlInputSource source(&file);
    QXmlDefaultHandler handler;
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    return reader.parse(source);
}
QT_WARNING_POP

} // namespace bench
