#include "review/take_over.h"

#include "xml/serialize.h"
#include "xml/xml_document.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <utility>

namespace vlk::review {

namespace {

// The settings without which the setting does not have its key in the file, or not that value: those that
// decide whether it is there, and others that hold the same value.
std::vector<int> companions(const TableLayout& layout, int row, bool isOnOneSide)
{
    const TableLayout::Row& place = layout.rows[row];
    std::vector<int> rows = isOnOneSide ? decidersOf(layout, row) : std::vector<int>();
    for (int other = 0; other < static_cast<int>(layout.rows.size()); ++other) {
        if (other != row && layout.rows[other].target == place.target)
            rows.push_back(other);
    }
    return rows;
}

// The settings that rules of a load tie to one.
std::vector<int> tiedTo(const TableLayout& layout, int row)
{
    std::vector<int> rows;
    const auto tie = [&](std::initializer_list<int> tied) {
        if (std::ranges::find(tied, row) != tied.end())
            std::ranges::copy_if(tied, std::back_inserter(rows), [](int one) { return one >= 0; });
    };
    for (const Sets& rule : layout.table->all<Sets>()) {
        if (rule.moment != Moment::Edit && rule.moment != Moment::Save)
            tie({rule.path.row, rule.when.row, rule.when.other, rule.also[0].row, rule.also[1].row});
    }
    for (const Distance& rule : layout.table->all<Distance>())
        tie({rule.first.row, rule.second.row, rule.gapFrom.row});
    for (const RangeWhen& rule : layout.table->all<RangeWhen>())
        tie({rule.path.row, rule.when.row});
    for (const ExclusiveChoice* sharer : layout.rows[row].sharers)
        rows.push_back(sharer->path.row);
    return rows;
}

CXmlNode& nodeOf(const CXmlSection& root)
{
    return *root.document()->node(nullptr, QStringLiteral("DEVICE"));
}

// What a load makes of it, or an edit alone would.
QString textToLay(const Held& held)
{
    return held.isOfEdit ? held.text : held.saved;
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
    std::erase_if(element->attributes, [&](const CXmlAttribute& key) { return key.name == name; });
}

} // namespace

std::vector<int> decidersOf(const TableLayout& layout, int row)
{
    const TableLayout::Row& place = layout.rows[row];
    const Group& group = *layout.elements[place.group].group;
    std::vector<int> rows;
    for (const When& condition : {place.base->present, group.present, group.presentToo}) {
        for (const int decider : {condition.row, condition.other}) {
            if (decider >= 0)
                rows.push_back(layout.rows[decider].target);
        }
    }
    return rows;
}

std::vector<int> withNeeded(const Differences& differences, std::vector<int> keys)
{
    const FileKeys& all = FileKeys::all();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const Held& before = differences.before().at(keys[i]);
        const Held& after = differences.after().at(keys[i]);
        // What both sides lack, as it was taken out of an earlier state, needs no other.
        const int held = before.isThere ? before.row : after.row;
        if (held < 0)
            continue;
        const int table = all[keys[i]].table;
        for (const int row : companions(all.layout(table), held, before.isThere != after.isThere)) {
            const int key = all.of(table, row);
            if (key >= 0 && differences.isDifferent(key) && std::ranges::find(keys, key) == keys.end())
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
                found->setAttribute(QStringLiteral("page"), child);
        }
        element = found;
    }
    element->setAttribute(name, text);
}

void layOver(CXmlSection& root, const FileState& from, const std::vector<int>& keys)
{
    if (!root.document())
        return;
    root.commit();
    for (const int key : keys) {
        if (const Held& held = from.at(key); held.isSaved)
            setKey(root, key, textToLay(held));
        else
            removeKey(nodeOf(root), FileKeys::all()[key].path);
    }
}

void addWhatComes(CXmlSection& root, const Configuration& before, const KeyTexts& texts,
                  const FileState* from)
{
    Configuration edited = before;
    std::vector<int> given;
    for (const auto& [key, text] : texts) {
        edited.edit(FileKeys::all()[key].path, text);
        given.push_back(key);
    }
    const FileState had = FileState::ofConfiguration(before);
    const FileState has = FileState::ofConfiguration(edited);
    for (int key = 0; key < FileKeys::all().count(); ++key) {
        const bool comes = !had.at(key).isSaved && has.at(key).isSaved;
        if (!comes || std::ranges::find(given, key) != given.end())
            continue;
        const Held* held = from && from->at(key).isSaved ? &from->at(key) : nullptr;
        setKey(root, key, held ? textToLay(*held) : has.at(key).saved);
    }
}

void readAsEdited(Configuration& configuration, CXmlSection& root)
{
    configuration.read(root);
    const FileState read = FileState::ofDocument(root, configuration);
    for (int key = 0; key < FileKeys::all().count(); ++key) {
        if (read.at(key).isOfEdit)
            configuration.edit(FileKeys::all()[key].path, read.at(key).text);
    }
}

void keepTheRest(Values& read, const Values& before, const Values& unchanged)
{
    std::vector<QString> held = read.held();
    for (std::size_t row = 0; row < held.size(); ++row) {
        if (held[row] == unchanged.held()[row])
            held[row] = before.held()[row];
    }
    read.putBack(held);
}

void keepTheRest(Configuration& read, const Configuration& before, const Configuration& unchanged)
{
    for (std::size_t table = 0; table < read.tables().size(); ++table)
        keepTheRest(read.tables()[table], before.tables()[table], unchanged.tables()[table]);
}

void keepUnwritten(Configuration& configuration, const Configuration& before)
{
    const FileState state = FileState::ofConfiguration(configuration);
    const auto isWritten = [&](int key) { return state.at(key).isThere; };
    for (int table = 0; table < FileKeys::all().tables(); ++table) {
        Values& values = configuration.tables()[table];
        std::vector<QString> held = values.held();
        for (int row = 0; row < values.count(); ++row) {
            const std::vector<int>& keys = FileKeys::all().heldBy(table, row);
            if (!keys.empty() && std::ranges::none_of(keys, isWritten))
                held[row] = before.tables()[table].held()[row];
        }
        values.putBack(held);
    }
}

void takeOver(Configuration& configuration, const FileState& from, const std::vector<int>& keys)
{
    const Configuration before = configuration;
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    configuration.write(*document.root());
    Configuration unchanged = configuration;
    readAsEdited(unchanged, *document.root());
    layOver(*document.root(), from, keys);
    KeyTexts texts;
    for (const int key : keys) {
        if (const Held& held = from.at(key); held.isSaved)
            texts.emplace_back(key, textToLay(held));
    }
    addWhatComes(*document.root(), before, texts, &from);
    readAsEdited(configuration, *document.root());
    keepTheRest(configuration, before, unchanged);
}

std::vector<int> takeOver(Configuration& configuration, const Differences& differences, std::vector<int> keys)
{
    const FileKeys& all = FileKeys::all();
    const Configuration present = configuration;
    keys = withNeeded(differences, std::move(keys));
    for (std::size_t taken = 0; taken != keys.size();) {
        taken = keys.size();
        configuration = present;
        takeOver(configuration, differences.before(), keys);
        const FileState now = FileState::ofConfiguration(configuration);
        for (std::size_t i = 0; i < taken; ++i) {
            if (now.at(keys[i]) == differences.before().at(keys[i]))
                continue;
            const int table = all[keys[i]].table;
            const TableLayout& layout = all.layout(table);
            for (const int row : all[keys[i]].rows) {
                for (const int tied : tiedTo(layout, layout.rows[row].target)) {
                    for (const int key : all.heldBy(table, layout.rows[tied].target)) {
                        if (differences.isDifferent(key) && std::ranges::find(keys, key) == keys.end())
                            keys.push_back(key);
                    }
                }
            }
        }
    }
    return keys;
}

} // namespace vlk::review
