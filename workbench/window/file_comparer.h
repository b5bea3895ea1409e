#pragma once

// Has the plug-in tell two configurations apart. One that cannot do it leaves the keys as they stand in the
// files.

#include "road/setting_change.h"

#include <QTemporaryDir>

namespace workbench {

class PluginLink;

class FileComparer
{
public:
    explicit FileComparer(PluginLink& link) : link_(link) {}

    std::optional<SettingChanges> compare(const QByteArray& before, const QByteArray& after) const;

private:
    PluginLink& link_;
    QTemporaryDir folder_;
};

} // namespace workbench
