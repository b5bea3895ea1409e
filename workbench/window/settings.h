#pragma once

// What the workbench remembers from run to run, in an ini file. A damaged file is put aside under the name
// "...ini.damaged" and the defaults hold; values that make no sense read as their defaults.

#include "window/appearance.h"

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

namespace workbench {

// What a file of telemetry is shown in.
enum class TelemetryWindow { Browser = 0, Table = 1 };
enum class DataKind { Telemetry, Configuration };
struct RecentFile
{
    QString path; // absolute
    TelemetryWindow window = TelemetryWindow::Browser;
};

class Settings
{
public:
    static constexpr int kRecentLimit = 10;

    explicit Settings(const QString& file);

    // The damaged file was put aside when this one was opened.
    bool wasDamaged() const { return damaged_; }

    // "ru" or "en"; the system's language until one is chosen.
    QString language() const;
    void setLanguage(const QString& code);

    // Working mode of the plug-in, 0 to 2.
    int mode() const;
    void setMode(int mode);

    Appearance appearance() const;
    void setAppearance(Appearance appearance);

    // What the command line asks for holds until the user chooses otherwise, and is not remembered.
    void setForThisRun(std::optional<QString> language, std::optional<int> mode);

    // Whether a configuration opens in the full window or in the quick one.
    bool fullWindow() const;
    void setFullWindow(bool full);

    // Whether what is about to be written is shown also where it may be skipped.
    bool reviewAlways() const;
    void setReviewAlways(bool always);
    // For how many days backups are kept; 0: for ever.
    int backupDays() const;
    void setBackupDays(int days);

    // The data folders; empty until they are chosen.
    QString telemetryFolder() const;
    QString configurationFolder() const;
    void setFolders(const QString& telemetry, const QString& configuration);

    // Where a file of a kind was chosen last to be opened: its data folder until then, after another data
    // folder was chosen, and when it is gone.
    QString openingFolder(DataKind kind) const;
    void setOpenedFrom(DataKind kind, const QString& path);

    // The last used first.
    QVector<RecentFile> recentFiles() const;
    void addRecentFile(const QString& path, TelemetryWindow window = TelemetryWindow::Browser);
    void removeRecentFile(const QString& path);

    // The file that got a part of its period because the program was ended, and how much of it; told once.
    void setCutShort(const QStringList& parts);
    QStringList takeCutShort();

    // Geometry and state of a window or splitter, by its object name.
    QByteArray layout(const QString& name) const;
    void setLayout(const QString& name, const QByteArray& state);

private:
    void setRecentFiles(const QVector<RecentFile>& files);

    std::unique_ptr<QSettings> store_;
    std::optional<QString> runLanguage_;
    std::optional<int> runMode_;
    bool damaged_ = false;
};

} // namespace workbench

Q_DECLARE_METATYPE(workbench::TelemetryWindow)
