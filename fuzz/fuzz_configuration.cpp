// The configuration reader over arbitrary bytes: what it accepts is walked, changed, written and opened
// again.

#include "xml/xml_document.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

void walk(CXmlSection& section, int depth)
{
    section.getInt("a", 1);
    section.getDouble("b", 1);
    if (CXmlSectionPtr first{section.firstChild("A")}; first && depth < 3)
        walk(*first, depth + 1);
    CXmlSectionPtr(section.nextChild());
    section.setString("a", section.getString("b", "x"));
    section.commit();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QLoggingCategory::setFilterRules("vlk.xml=false");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // In memory where the system has such a folder: every save waits for the disk.
    const QDir memory("/dev/shm");
    static const QTemporaryDir folder((memory.exists() ? memory : QDir::temp()).filePath("fuzz_XXXXXX"));
    const QString path = folder.filePath("file.xml");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        std::abort();
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    {
        vlk::XmlDocument document(path, "DEVICE");
        if (!document.isOpen())
            return 0;
        walk(*document.root(), 0);
        walk(*document.root()->child("A"), 0);
        document.save();
    }
    const vlk::XmlDocument again(path, "DEVICE");
    return 0;
}
