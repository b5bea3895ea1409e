#include "review/file_keys.h"

#include "settings/all_settings.h"

#include <algorithm>

namespace vlk::review {

const FileKeys& FileKeys::all()
{
    static const FileKeys keys;
    return keys;
}

FileKeys::FileKeys()
{
    for (const SettingsTable* table : allSettings()) {
        const int place = tables();
        const TableLayout& layout = layoutOf(*table);
        layouts_.push_back(&layout);
        first_.push_back(count());
        std::vector<int>& keys = byRow_.emplace_back(layout.rows.size(), -1);
        auto& held = byHolder_.emplace_back(layout.rows.size());
        for (std::size_t row = 0; row < layout.rows.size(); ++row) {
            if (!layout.rows[row].base->stored)
                continue;
            const QString& path = layout.rows[row].filePath;
            if (layout.rows[row].base->secret)
                secretNames_.insert(layout.rows[row].key);
            keys[row] = byPath_.value(path, count());
            if (keys[row] == count()) {
                byPath_.insert(path, count());
                keys_.push_back({path, place, {}});
                for (int end = path.indexOf(QLatin1Char('/')); end >= 0;
                     end = path.indexOf(QLatin1Char('/'), end + 1))
                    elements_.insert(path.left(end));
            }
            keys_[keys[row]].rows.push_back(static_cast<int>(row));
            held[layout.rows[row].target].push_back(keys[row]);
        }
    }
    first_.push_back(count());
}

bool FileKeys::looksSecret(const QString& path) const
{
    // "key[2]" is a second "key".
    return secretNames_.contains(path.section(QLatin1Char('/'), -1).section(QLatin1Char('['), 0, 0));
}

int FileKeys::tableOfSection(const QString& path) const
{
    int table = 0;
    while (table < tables() && !path.startsWith(layout(table).prefix()))
        ++table;
    return table;
}

int FileKeys::tableOf(const SettingsTable& table) const
{
    const auto found =
        std::ranges::find_if(layouts_, [&](const TableLayout* layout) { return layout->table == &table; });
    return found == layouts_.end() ? -1 : static_cast<int>(found - layouts_.begin());
}

} // namespace vlk::review
