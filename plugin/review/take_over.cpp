#include "review/take_over.h"

#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QStringList>

#include <algorithm>

namespace vlk::review {

namespace {

// The settings without which the setting does not have its key in the file, or not that value: those that
// decide whether it is there, and others that hold the same value.
std::vector<int> companions(const TableLayout& layout, int row, bool isOnOneSide)
{
    const TableLayout::Row& place = layout.rows[row];
    const Group& group = *layout.elements[place.group].group;
    std::vector<int> rows;
    for (const When& condition : {place.base->present, group.present, group.presentToo}) {
        for (const int decider : {condition.row, condition.other}) {
            if (decider >= 0 && isOnOneSide)
                rows.push_back(layout.rows[decider].target);
        }
    }
    for (int other = 0; other < static_cast<int>(layout.rows.size()); ++other) {
        if (other != row && layout.rows[other].target == place.target)
            rows.push_back(other);
    }
    return rows;
}

CXmlNode& nodeOf(const CXmlSection& root)
{
    return *root.document()->node(nullptr, QStringLiteral("DEVICE"));
}

void removeKey(CXmlNode& root, const QString& path)
{
    QStringList names = path.split(QLatin1Char('/'));
    const QString name = names.takeLast();
    CXmlNode* element = &root;
    for (const QString& child : names) {
        element = element->child(child);
        if (!element)
            return;
    }
    auto& keys = element->attributes;
    keys.erase(std::remove_if(keys.begin(), keys.end(), [&](const auto& key) { return key->name == name; }),
               keys.end());
}

} // namespace

std::vector<int> withNeeded(const Differences& differences, std::vector<int> keys)
{
    const FileKeys& all = FileKeys::all();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const Held& before = differences.before().at(keys[i]);
        const Held& after = differences.after().at(keys[i]);
        const int table = all[keys[i]].table;
        for (const int row : companions(all.layout(table), before.isThere ? before.row : after.row,
                                        before.isThere != after.isThere)) {
            const int key = all.of(table, row);
            if (key >= 0 && differences.isDifferent(key) &&
                std::find(keys.begin(), keys.end(), key) == keys.end())
                keys.push_back(key);
        }
    }
    return keys;
}

void setKey(CXmlSection& root, int key, const QString& text)
{
    QStringList names = FileKeys::all()[key].path.split(QLatin1Char('/'));
    const QString name = names.takeLast();
    CXmlNode& device = nodeOf(root);
    CXmlNode* element = &device;
    for (const QString& child : names) {
        CXmlNode* found = element->child(child);
        if (!found) {
            found = element->addChild(child);
            if (element == &device)
                found->addAttribute(QStringLiteral("page"), child);
        }
        element = found;
    }
    element->addAttribute(name, text);
}

void layOver(CXmlSection& root, const FileState& from, const std::vector<int>& keys)
{
    if (!root.document())
        return;
    root.commit();
    for (const int key : keys) {
        if (from.at(key).isSaved)
            setKey(root, key, from.at(key).saved);
        else
            removeKey(nodeOf(root), FileKeys::all()[key].path);
    }
}

void takeOver(Configuration& configuration, const FileState& from, const std::vector<int>& keys)
{
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    configuration.write(*document.root());
    layOver(*document.root(), from, keys);
    configuration.read(*document.root());
}

} // namespace vlk::review
