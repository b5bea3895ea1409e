#pragma once

// The tracker's memory for its configuration: one file in a folder, the one before it as a backup, and the
// factory configuration behind both. A crash between any two steps of a write leaves a whole configuration;
// a damaged file falls back to the backup, then to the factory's.

#include "tracker/configuration_values.h"
#include "tracker/write_report.h"

namespace tracker {

class ConfigurationStore
{
public:
    explicit ConfigurationStore(const QString& folder);

    // Checks the file, keeps the present configuration as the backup and takes the new one.
    WriteReport write(const QString& path);
    const ConfigurationValues& values() const { return values_; }
    const QByteArray& document() const { return document_; }

private:
    bool take(const QByteArray& document);
    QString current() const;
    QString backup() const;

    QString folder_;
    QByteArray document_;
    ConfigurationValues values_;
};

} // namespace tracker
