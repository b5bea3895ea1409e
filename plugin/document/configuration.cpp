#include "document/configuration.h"

#include "document/values_document.h"

namespace vlk {

Configuration::Configuration(const std::vector<const SettingsTable*>& tables)
{
    for (const SettingsTable* table : tables)
        tables_.emplace_back(*table);
}

Configuration::Place Configuration::placeOf(const QString& path) const
{
    for (std::size_t table = 0; table < tables_.size(); ++table) {
        const QString prefix = tables_[table].layout().prefix();
        const int row = path.startsWith(prefix) ? tables_[table].rowAt(path.mid(prefix.size())) : -1;
        if (row >= 0)
            return {static_cast<int>(table), row};
    }
    return {};
}

QString Configuration::value(const QString& path) const
{
    const Place place = placeOf(path);
    return place.row < 0 ? QString() : tables_[place.table].value(place.row);
}

QString Configuration::written(const QString& path) const
{
    const Place place = placeOf(path);
    return place.row >= 0 && tables_[place.table].isWritten(place.row)
               ? tables_[place.table].written(place.row)
               : QString();
}

void Configuration::edit(const QString& path, const QString& text)
{
    if (const Place place = placeOf(path); place.row >= 0)
        tables_[place.table].edit(place.row, text);
}

void Configuration::reset()
{
    for (Values& table : tables_)
        table.reset();
}

void Configuration::read(const CXmlSection& root)
{
    for (Values& table : tables_)
        readFrom(root, table);
}

void Configuration::write(CXmlSection& root) const
{
    for (const Values& table : tables_)
        writeTo(root, table);
}

} // namespace vlk
