// The host's check of configurations over arbitrary bytes: what it lets pass must be a document for the
// plug-in's reader too, which would open anything else as an empty one.

#include "workbench/check/configuration_check.h"
#include "xml/xml_document.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QLoggingCategory::setFilterRules("vlk.xml=false");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (workbench::checkConfiguration(document, "R-7106"))
        return 0;
    const QDir memory("/dev/shm");
    static const QTemporaryDir folder((memory.exists() ? memory : QDir::temp()).filePath("fuzz_XXXXXX"));
    QFile file(folder.filePath("file.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size())
        std::abort();
    file.close();
    vlk::XmlDocument opened(file.fileName(), "DEVICE");
    if (!opened.isOpen())
        std::abort();
    return 0;
}
