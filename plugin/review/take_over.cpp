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

void setKey(CXmlNode& root, const QString& path, const Held& held)
{
    const QStringList names = path.split(QLatin1Char('/'));
    CXmlNode* element = &root;
    for (int i = 0; i + 1 < names.size(); ++i) {
        CXmlNode* child = element->child(names[i]);
        if (!child && !held.isSaved)
            return;
        element = child ? child : element->addChild(names[i]);
    }
    if (held.isSaved)
        element->addAttribute(names.last(), held.saved);
    else
        element->attributes.erase(std::remove_if(element->attributes.begin(), element->attributes.end(),
                                                 [&](const auto& key) { return key->name == names.last(); }),
                                  element->attributes.end());
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

void layOver(CXmlSection& root, const FileState& from, const std::vector<int>& keys)
{
    if (!root.document())
        return;
    root.commit();
    CXmlNode* node = root.document()->node(nullptr, QStringLiteral("DEVICE"));
    for (const int key : keys)
        setKey(*node, FileKeys::all()[key].path, from.at(key));
}

void takeOver(Configuration& configuration, const FileState& from, const std::vector<int>& keys)
{
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    configuration.write(*document.root());
    layOver(*document.root(), from, keys);
    configuration.read(*document.root());
}

} // namespace vlk::review
