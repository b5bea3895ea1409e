#pragma once

// Has the plug-in tell two configurations apart, say what there is to say of one, and bring settings of one
// into another. One that cannot compare leaves the keys as they stand in the files, one that cannot bring
// settings the document as it is.

#include "road/setting_advice.h"
#include "road/setting_change.h"

#include <QTemporaryDir>

namespace vlk {
struct FileCheck;
} // namespace vlk

namespace workbench {

class PluginLink;

class FileComparer
{
public:
    explicit FileComparer(PluginLink& link) : link_(link) {}

    std::optional<SettingChanges> compare(const QByteArray& before, const QByteArray& after) const;
    // The same, with the cause of each change where the window that is open wants the other one to be
    // written.
    std::optional<SettingChanges> compareWritten(const QByteArray& before, const QByteArray& after) const;
    // None when the document cannot be put where the plug-in would look at it.
    std::optional<QVector<SettingAdvice>> advise(const QByteArray& document) const;
    // Paths of keys and sections that no setting reads: what is opened loses them.
    QStringList unknownKeys(const QByteArray& document) const;
    // The document with the settings at the paths as in the other one, and with what they need there.
    QByteArray bring(const QByteArray& document, const QByteArray& other, const QStringList& paths) const;

private:
    // Sends it with the document for its file. False when that cannot be put there, or read.
    bool check(const QByteArray& document, vlk::FileCheck asked) const;
    // Empty when it cannot be put there.
    QString put(const char* name, const QByteArray& document) const;

    PluginLink& link_;
    QTemporaryDir folder_;
};

} // namespace workbench
