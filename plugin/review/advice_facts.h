#pragma once

// What rules of advice ask about: the values of a configuration, the record that it makes, and its file.

#include "catalogue/field_mask.h"
#include "review/advice_binding.h"
#include "settings/configuration.h"

struct CXmlSection;

namespace vlk::advice {

class Facts
{
public:
    // `file`: the element DEVICE, null where there is none.
    Facts(const Configuration& configuration, const CXmlSection* file);

    const QString& value(Place place) const;
    const Values& table(Place place) const { return configuration_.tables()[place.table]; }
    // Empty where the file has no such key.
    QString inFile(const QString& path) const;

    // The record holds a field that is ticked and that its format knows.
    bool isTicked(int field) const { return mask_.test(field); }
    bool isKnown(int field) const { return field < knownFields_; }
    int recordBytes() const;
    // The box of the data set that ticks a field, and the format that it waits for, if it does.
    QString boxText(int field) const;
    QString maskWith(int field) const;

private:
    const Configuration& configuration_;
    const CXmlSection* file_;
    FieldMask mask_;
    int knownFields_;
};

} // namespace vlk::advice
