#pragma once

// What rules of advice ask about: the values of a configuration, the record that it makes, and what its file
// holds beside them.

#include "catalogue/field_mask.h"
#include "document/configuration.h"
#include "review/advice_binding.h"

namespace vlk::review::advice {

class Facts
{
public:
    Facts(const Configuration& configuration, const QHash<QString, QString>& unread);

    const QString& value(Place place) const;
    const Values& table(Place place) const { return configuration_.tables()[place.table]; }
    // Empty where the file has no such key, or a setting reads it.
    QString unread(const QString& path) const { return unread_.value(path); }

    // The record holds a field that is ticked and that its format knows.
    bool isTicked(int field) const { return mask_.test(field); }
    bool isKnown(int field) const { return field < knownFields_; }
    int recordBytes() const;
    // The box of the data set that ticks a field, and the format that it waits for, if it does.
    QString boxText(int field) const;
    QString maskWith(int field) const;

private:
    const Configuration& configuration_;
    const QHash<QString, QString>& unread_;
    FieldMask mask_;
    int knownFields_;
};

} // namespace vlk::review::advice
