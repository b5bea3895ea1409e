#include "tracker/configuration_values.h"

#include <QSet>
#include <QXmlStreamReader>

namespace tracker {

namespace {

// Deeper than any configuration goes; a hostile file ends here.
constexpr int kDeepest = 32;

struct Level
{
    QString path;
    QString text;
    QHash<QString, int> children; // how many of a name were there
};

} // namespace

ConfigurationValues::ConfigurationValues(const QByteArray& document)
{
    QXmlStreamReader xml(document);
    QVector<Level> levels;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QString name = xml.name().toString();
            if (levels.isEmpty()) {
                root_ = name;
                for (const auto& attribute : xml.attributes())
                    rootAttributes_.insert(attribute.name().toString(), attribute.value().toString());
                levels.append(Level{});
                break;
            }
            if (levels.size() > kDeepest) {
                xml.raiseError(QStringLiteral("nested too deeply"));
                break;
            }
            Level& outer = levels.last();
            const int count = ++outer.children[name];
            QString path = outer.path.isEmpty() ? name : outer.path + QLatin1Char('/') + name;
            if (count > 1)
                path += QStringLiteral("[%1]").arg(count);
            for (const auto& attribute : xml.attributes())
                add(path + QLatin1Char('/') + attribute.name(), attribute.value().toString());
            levels.append(Level{path, {}, {}});
            break;
        }
        case QXmlStreamReader::Characters:
            if (!levels.isEmpty())
                levels.last().text += xml.text();
            break;
        case QXmlStreamReader::EndElement: {
            const Level level = levels.takeLast();
            const QString text = level.text.trimmed();
            if (!text.isEmpty() && !level.path.isEmpty())
                add(level.path, text);
            break;
        }
        default:
            break;
        }
    }
    if (xml.hasError()) {
        error_ =
            QStringLiteral("%1:%2: %3").arg(xml.lineNumber()).arg(xml.columnNumber()).arg(xml.errorString());
        paths_.clear();
        values_.clear();
    }
}

int ConfigurationValues::number(const QString& path, int absent) const
{
    const auto found = values_.constFind(path);
    return found == values_.constEnd() ? absent : found->toInt();
}

int differingKeys(const ConfigurationValues& one, const ConfigurationValues& other)
{
    const auto sectionOf = [](const QString& path) { return path.section(QLatin1Char('/'), 0, 0); };
    const auto sectionsOf = [&](const ConfigurationValues& values) {
        QSet<QString> sections;
        for (const QString& path : values.paths())
            sections.insert(sectionOf(path));
        return sections;
    };
    const QSet<QString> shared = sectionsOf(one).intersect(sectionsOf(other));
    int count = 0;
    for (const QString& path : one.paths())
        count +=
            shared.contains(sectionOf(path)) && (!other.contains(path) || other.text(path) != one.text(path));
    for (const QString& path : other.paths())
        count += shared.contains(sectionOf(path)) && !one.contains(path);
    return count;
}

void ConfigurationValues::add(const QString& path, const QString& value)
{
    if (!values_.contains(path))
        paths_.append(path);
    values_.insert(path, value);
}

} // namespace tracker
