#include "road/sections.h"

#include <QXmlStreamReader>

namespace workbench {

QSet<QString> sectionsOf(const QByteArray& document)
{
    QSet<QString> sections;
    QXmlStreamReader xml(document);
    xml.setNamespaceProcessing(false);
    if (xml.readNextStartElement()) {
        while (xml.readNextStartElement()) {
            sections.insert(xml.qualifiedName().toString());
            xml.skipCurrentElement();
        }
    }
    return sections;
}

QString sectionOf(const QString& path)
{
    return path.section(QLatin1Char('/'), 0, 0).section(QLatin1Char('['), 0, 0);
}

} // namespace workbench
