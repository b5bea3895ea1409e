#include "fuel/kept_forms.h"

#include "base/clock.h"
#include "fuel/form_fuel_sensor.h"

#include <QFile>

#include <algorithm>

namespace vlk {

bool KeptForms::keep(const VLK_Form_Fuel_Sensor& form, const QString& folder, const QString& vehicle)
{
    const auto shown = shown_.find(&form);
    const QString before = shown == shown_.end() ? QString() : shown->second;
    const QString path = form.keep(folder, vehicle, now(), before);
    if (path.isEmpty())
        return false;
    show(form, path);
    return true;
}

void KeptForms::end(const VLK_Form_Fuel_Sensor& form)
{
    if (!form.isEdited())
        remove(form);
    release(form);
}

std::vector<KeptTable> KeptForms::offered(const QString& folder) const
{
    std::vector<KeptTable> tables = keptTables(folder);
    std::erase_if(tables, [this](const KeptTable& table) {
        return std::any_of(shown_.begin(), shown_.end(),
                           [&table](const auto& shown) { return shown.second == table.path; });
    });
    return tables;
}

void KeptForms::remove(const VLK_Form_Fuel_Sensor& form)
{
    if (const auto shown = shown_.find(&form); shown != shown_.end())
        QFile::remove(shown->second);
}

} // namespace vlk
