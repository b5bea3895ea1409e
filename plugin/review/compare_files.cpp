#include "review/compare_files.h"

#include "settings/all_settings.h"
#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QFile>
#include <QXmlStreamReader>

namespace vlk::review {

QByteArray configurationText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > CSerialize::maxFileSize)
        return {};
    const QByteArray text = file.readAll();
    QXmlStreamReader reader(text);
    return reader.readNextStartElement() && reader.name() == QLatin1String("DEVICE") ? text : QByteArray();
}

Comparison compareFiles(const QString& before, const QString& after, Secrets secrets,
                        const std::function<void(const Difference&, const DifferenceText&)>& take)
{
    const QString device = QStringLiteral("DEVICE");
    XmlDocument right(configurationText(after), device);
    if (!right.isOpen())
        return Comparison::afterUnreadable;
    Configuration loaded(allSettings());
    loaded.read(*right.root());
    Differences differences;
    if (before.isNull()) {
        differences = {FileState::ofDefaults(loaded), FileState::ofConfiguration(loaded)};
    } else {
        XmlDocument left(configurationText(before), device);
        if (!left.isOpen())
            return Comparison::beforeUnreadable;
        differences = {FileState::ofDocument(*left.root()), FileState::ofDocument(*right.root())};
    }
    for (const Difference& difference : differences.all()) {
        const int table = difference.key < 0 ? 0 : FileKeys::all()[difference.key].table;
        take(difference, textOf(differences, difference, loaded.tables()[table], secrets));
    }
    return Comparison::done;
}

} // namespace vlk::review
