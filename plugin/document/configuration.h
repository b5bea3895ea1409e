#pragma once

// The values of all tables of a configuration file, for whoever walks over everything. A path is
// "TRACK/POINTS/angle".

#include "settings/values.h"

struct CXmlSection;

namespace vlk {

class Configuration
{
public:
    explicit Configuration(const std::vector<const SettingsTable*>& tables);

    // In the order of a save.
    std::vector<Values>& tables() { return tables_; }
    const std::vector<Values>& tables() const { return tables_; }

    // The value at a path, empty where no table has it.
    QString value(const QString& path) const;
    // Whether a file of this state has the key, and what it holds there; null where it has not.
    QString written(const QString& path) const;
    void edit(const QString& path, const QString& text);

    void reset();
    // `root` is the element DEVICE.
    void read(const CXmlSection& root);
    void write(CXmlSection& root) const;

private:
    struct Place
    {
        int table = -1;
        int row = -1;
    };
    Place placeOf(const QString& path) const;

    std::vector<Values> tables_;
};

} // namespace vlk
