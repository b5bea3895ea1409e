#pragma once

// Which settings the tracker has lived by and since when, in a file of the store's folder: what it recorded
// before its configuration changed stays as it was recorded. A damaged file begins anew.

#include "tracker/working_settings.h"

#include <memory>
#include <vector>

namespace tracker {

class SettingsHistory
{
public:
    using Settings = std::shared_ptr<const WorkingSettings>;

    // `present` is what the tracker's configuration says. The last settings in the file become these: a file
    // of an earlier version lacks what that version did not work by. Without a file they have held from the
    // beginning.
    SettingsHistory(const QString& folder, const WorkingSettings& present);

    // What holds from the next second on; false when it is what holds already.
    bool change(qint64 time, const WorkingSettings& settings);

    const Settings& latest() const { return entries_.back().settings; }
    // By which the tracker worked in that second, and the last second in which it did.
    struct Period
    {
        Settings settings;
        qint64 until;
    };
    Period at(qint64 time) const;

private:
    struct Entry
    {
        qint64 time; // holds later than this
        Settings settings;
    };

    void load();
    void save() const;

    QString file_;
    std::vector<Entry> entries_; // by time, never empty
};

} // namespace tracker
