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

    // Checks the document, keeps the present configuration as the backup and takes the new one.
    WriteReport write(const QByteArray& document);
    // As when the power goes in the middle of that: what was being written is damaged.
    void losePower(const QByteArray& document);
    const ConfigurationValues& values() const { return values_; }
    const QByteArray& document() const { return document_; }
    // What was there before the last write; empty where nothing was.
    QByteArray previous() const;
    // All sections are taken but the first one that changed.
    void setSkipsPage(bool skips) { skipsPage_ = skips; }

private:
    void load();
    bool take(const QByteArray& document);
    QString current() const;
    QString backup() const;

    QString folder_;
    QByteArray document_;
    ConfigurationValues values_;
    bool skipsPage_ = false;
};

} // namespace tracker
