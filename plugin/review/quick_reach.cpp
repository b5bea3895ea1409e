#include "review/quick_reach.h"

#include "document/values_document.h"
#include "review/take_over.h"
#include "settings/quick_settings.h"
#include "xml/xml_document.h"

#include <algorithm>
#include <iterator>

namespace vlk::review {

std::vector<int> beyondQuick(Configuration written, const FileState& from, const std::vector<int>& keys)
{
    takeOver(written, from, keys);
    XmlDocument document(QString(), QStringLiteral("DEVICE"));
    written.write(*document.root());
    document.root()->commit();
    Values quick(kQuickSettings);
    readFrom(*document.root(), quick);
    FileState state = FileState::ofConfiguration(written);
    state.lay(quick);
    std::vector<int> beyond;
    std::ranges::copy_if(keys, std::back_inserter(beyond),
                         [&](int key) { return !(state.at(key) == from.at(key)); });
    return beyond;
}

} // namespace vlk::review
