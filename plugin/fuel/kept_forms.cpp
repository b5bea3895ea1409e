#include "fuel/kept_forms.h"

#include "base/clock.h"
#include "fuel/form_fuel_sensor.h"

#include <QFile>

#include <algorithm>

namespace vlk {

bool KeptForms::keep(const VLK_Form_Fuel_Sensor& form, const QString& folder, const QString& vehicle)
{
    const QDateTime time = now();
    if (const auto shown = shown_.find(&form); shown != shown_.end())
        return form.keep(shown->second.path, vehicle, time);
    const QString path = newKeptPath(folder, form.name(), vehicle, time);
    // Before there is a file that another program could offer.
    auto claim = std::make_unique<FileClaim>(path);
    if (!form.keep(path, vehicle, time))
        return false;
    show(form, path, std::move(claim));
    return true;
}

void KeptForms::show(const VLK_Form_Fuel_Sensor& form, const QString& path, std::unique_ptr<FileClaim> claim)
{
    shown_[&form] = {path, std::move(claim)};
}

void KeptForms::end(const VLK_Form_Fuel_Sensor& form)
{
    if (const auto shown = shown_.find(&form); shown != shown_.end())
        QFile::remove(shown->second.path);
    release(form);
}

std::vector<KeptTable> KeptForms::offered(const QString& folder) const
{
    std::vector<KeptTable> tables = keptTables(folder);
    std::erase_if(tables, [this](const KeptTable& table) {
        return isClaimed(table.path) || std::ranges::any_of(shown_, [&table](const auto& shown) {
                   return shown.second.path == table.path;
               });
    });
    return tables;
}

} // namespace vlk
