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
    if (!file.open(QIODevice::ReadOnly) || file.size() > CSerialize::kMaxFileSize)
        return {};
    const QByteArray text = file.readAll();
    QXmlStreamReader reader(text);
    return reader.readNextStartElement() && reader.name() == QLatin1String("DEVICE") ? text : QByteArray();
}

ComparedFiles comparedFiles(const QString& before, const QString& after)
{
    const QString device = QStringLiteral("DEVICE");
    ComparedFiles files{Comparison::Done, Configuration(allSettings())};
    XmlDocument right(configurationText(after), device);
    if (!right.isOpen()) {
        files.outcome = Comparison::AfterUnreadable;
        return files;
    }
    files.after.read(*right.root());
    if (before.isNull()) {
        files.differences = {FileState::ofDefaults(files.after), FileState::ofConfiguration(files.after)};
        return files;
    }
    XmlDocument left(configurationText(before), device);
    if (left.isOpen())
        files.differences = {FileState::ofDocument(*left.root()), FileState::ofDocument(*right.root())};
    else
        files.outcome = Comparison::BeforeUnreadable;
    return files;
}

Comparison compareFiles(const QString& before, const QString& after, Secrets secrets,
                        const std::function<void(const Difference&, const DifferenceText&)>& take)
{
    const ComparedFiles files = comparedFiles(before, after);
    for (Difference& difference : files.differences.all()) {
        const int key = difference.key;
        const Values& values = files.after.tables()[key < 0 ? 0 : FileKeys::all()[key].table];
        difference.readsAlike = key >= 0 && difference.after.isNull() &&
                                files.differences.before().at(key).meaning == values.value(difference.row);
        take(difference, textOf(files.differences, difference, values, secrets));
    }
    return files.outcome;
}

} // namespace vlk::review
