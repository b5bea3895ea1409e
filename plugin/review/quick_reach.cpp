#include "review/quick_reach.h"

#include "document/values_document.h"
#include "review/take_over.h"
#include "settings/quick_settings.h"
#include "xml/xml_document.h"

#include <algorithm>
#include <iterator>

namespace vlk::review {

namespace {

bool isFixed(const TableLayout::Row& row)
{
    return row.setting->is<Constant>() || !row.saves.empty();
}

} // namespace

Values quickOf(const Configuration& configuration)
{
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    configuration.write(*document.root());
    document.root()->commit();
    Values quick(kQuickSettings);
    readFrom(*document.root(), quick);
    return quick;
}

std::vector<int> beyondQuick(Configuration written, const FileState& from, const std::vector<int>& keys)
{
    takeOver(written, from, keys);
    FileState state = FileState::ofConfiguration(written);
    state.lay(quickOf(written));
    std::vector<int> beyond;
    std::ranges::copy_if(keys, std::back_inserter(beyond),
                         [&](int key) { return !(state.at(key) == from.at(key)); });
    return beyond;
}

std::vector<int> followersOf(const TableLayout& layout, int row)
{
    std::vector<int> followers;
    for (int other = 0; other < static_cast<int>(layout.rows.size()); ++other) {
        const std::vector<int> deciders = decidersOf(layout, other);
        if (other != row && (layout.rows[other].target == row || std::ranges::count(deciders, row) > 0))
            followers.push_back(other);
    }
    for (const Presets* presets : layout.rows[row].presets) {
        for (const Path& field : presets->fields)
            followers.push_back(field.row);
    }
    for (const Sets* rule : layout.always) {
        if (rule->when.row == row)
            followers.push_back(rule->path.row);
    }
    std::erase_if(followers, [](int follower) { return follower < 0; });
    return followers;
}

bool isFixedByQuick(int key)
{
    static const std::vector<int> fixed = [] {
        std::vector<int> keys;
        for (const TableLayout::Row& row : layoutOf(kQuickSettings).rows) {
            if (isFixed(row))
                keys.push_back(FileKeys::all().at(row.filePath));
        }
        std::ranges::sort(keys);
        return keys;
    }();
    return key >= 0 && std::ranges::binary_search(fixed, key);
}

bool isFixedByQuick(const QString& path)
{
    const TableLayout& layout = layoutOf(kQuickSettings);
    const int row = layout.rowAt(path);
    return row >= 0 && isFixed(layout.rows[row]);
}

} // namespace vlk::review
