#include "document/configuration_text.h"

#include "settings/all_settings.h"
#include "xml/xml_document.h"

namespace vlk {

Configuration configurationIn(const QByteArray& document)
{
    XmlDocument file(document, QStringLiteral("DEVICE"));
    Configuration configuration(allSettings());
    configuration.read(*file.root());
    return configuration;
}

QByteArray documentOf(const Configuration& configuration)
{
    XmlDocument file(QString(), QStringLiteral("DEVICE"));
    configuration.write(*file.root());
    return file.text();
}

} // namespace vlk
