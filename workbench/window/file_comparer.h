#pragma once

// Has the plug-in tell two configurations apart, and say what there is to say of one. One that cannot compare
// leaves the keys as they stand in the files.

#include "road/setting_change.h"

#include <QTemporaryDir>

namespace workbench {

class PluginLink;

class FileComparer
{
public:
    explicit FileComparer(PluginLink& link) : link_(link) {}

    std::optional<SettingChanges> compare(const QByteArray& before, const QByteArray& after) const;
    QVector<SettingAdvice> advise(const QByteArray& document) const;

private:
    // Empty when it cannot be put there.
    QString put(const char* name, const QByteArray& document) const;

    PluginLink& link_;
    QTemporaryDir folder_;
};

} // namespace workbench
