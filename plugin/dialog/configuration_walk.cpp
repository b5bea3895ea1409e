#include "dialog/configuration_walk.h"

#include "dialog/config_pages.h"
#include "link/device.h"
#include "xml/xml_section.h"

namespace vlk {

void loadPages(const ConfigPages& pages, CXmlSection* root, char* ussdBuffer)
{
    const CXmlSectionPtr system = root->existing(QStringLiteral("SYSTEM"));
    const CXmlSectionPtr balance = system ? system->existing(QStringLiteral("BALANCE")) : nullptr;
    if (root->document()) {
        const QString ussd = balance ? balance->getString(QStringLiteral("USSD")) : QString();
        qstrncpy(ussdBuffer, ussd.toLocal8Bit().constData(), kBalanceUssdSize);
    }
    pages.forEach([root](auto& page) { page.loadFromXml(root); });
    // User parameters come last: they ask other pages for the names of what they hold.
    pages.forEach([root](HasUserParams auto& page) { page.loadUserParams(root); });
}

void savePages(const ConfigPages& pages, CXmlSection* root)
{
    if (vlkDevice) {
        root->setString(QStringLiteral("model"), vlkDevice->model());
        root->setString(QStringLiteral("version"), vlkDevice->fileVersion());
        root->setString(QStringLiteral("creator"), QStringLiteral("config"));
        root->setString(QStringLiteral("vendor"), vlkDevice->vendor());
    }
    pages.forEach([root](auto& page) { page.saveToXml(root); });
    pages.forEach([root](HasUserParams auto& page) { page.saveUserParams(root); });
}

} // namespace vlk
