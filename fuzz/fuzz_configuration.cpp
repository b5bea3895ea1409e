// The configuration reader over arbitrary bytes: what it accepts must be walked, written and read again, and
// once written by us a document stays the same from save to save.

#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QFile>
#include <QTemporaryDir>

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

QByteArray savedAgain(const QString& path)
{
    closeDocument(CXmlSection(path, "DEVICE").document(), true);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool quiet = (qputenv("QT_LOGGING_RULES", "vlk.xml=false"), true);
    static const QTemporaryDir folder(quiet ? QStringLiteral("/dev/shm/fuzz_configuration_XXXXXX")
                                            : QString());
    const QString path = folder.filePath("file.xml");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    {
        vlk::XmlDocument document(path, "DEVICE");
        if (!document.isOpen())
            return 0;
        if (const auto section = document.root()->child("A"))
            walk(*section, 0);
        walk(*document.root(), 0);
    }
    savedAgain(path);
    return 0;
}
