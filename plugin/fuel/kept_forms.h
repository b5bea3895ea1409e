#pragma once

// Which tables of the calibration window are kept on the disk: those that are not saved, until they are saved
// or given up. What is kept and on show in no form, of this program or of another one, is offered to the
// user.

#include "base/file_claim.h"
#include "fuel/table/kept_tables.h"

#include <map>
#include <memory>

class VLK_Form_Fuel_Sensor;

namespace vlk {

class KeptForms
{
public:
    // Keeps the table of a form in the place of what was kept of it before. False when the disk refused.
    bool keep(const VLK_Form_Fuel_Sensor& form, const QString& folder, const QString& vehicle);
    // The form shows a kept table from now on.
    void show(const VLK_Form_Fuel_Sensor& form, const QString& path, std::unique_ptr<FileClaim> claim);
    // The form shows another table than that which is kept of it, and which is offered from now on.
    void release(const VLK_Form_Fuel_Sensor& form) { shown_.erase(&form); }
    // The form's table is saved or given up: what was kept of it goes.
    void end(const VLK_Form_Fuel_Sensor& form);
    std::vector<KeptTable> offered(const QString& folder) const;

private:
    struct Shown
    {
        QString path;
        std::unique_ptr<FileClaim> claim;
    };

    std::map<const VLK_Form_Fuel_Sensor*, Shown> shown_;
};

} // namespace vlk
