#include "review/quick_reach.h"

#include "document/values_document.h"
#include "review/take_over.h"
#include "settings/quick_settings.h"
#include "xml/xml_document.h"

#include <algorithm>
#include <iterator>

namespace vlk::review {

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

bool isFixedByQuick(int key)
{
    static const std::vector<int> fixed = [] {
        std::vector<int> keys;
        for (const TableLayout::Row& row : layoutOf(kQuickSettings).rows) {
            if (row.setting->is<Constant>())
                keys.push_back(FileKeys::all().at(row.filePath));
        }
        std::ranges::sort(keys);
        return keys;
    }();
    return key >= 0 && std::ranges::binary_search(fixed, key);
}

} // namespace vlk::review
